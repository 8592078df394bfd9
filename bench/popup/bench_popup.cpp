// Work done on the main thread per touch in the popup, onboarding and user
// guide: presenting and dismissing a popup, each finger move of a drag, a
// "Next" tap, a guide tick (which writes the settings file) and building the
// onboarding screen. Prints medians and worst cases in milliseconds; the
// budget for a tap or a move is 2 ms.
#include "Clock.h"
#include "Output.h"
#include "Statistics.h"
#include "TemporaryHome.h"
#include "QuietonApp.h"
#include "WelcomeViewModel.h"
#include "UserGuideForQuietonViewModel.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>


using namespace bench;

namespace {

void report(const char *what, const QList<double> &ms)
{
    out() << what << ": median " << QString::number(median(ms), 'f', 3) << " ms, worst "
          << QString::number(maximum(ms), 'f', 3) << " ms over " << ms.size() << Qt::endl;
}

// A mouse event delivered to the window at once, as the platform would.
void send(QWindow *window, QEvent::Type type, QPoint at)
{
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, window->mapToGlobal(at), Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &event);
}

// By object name, through the visual tree (where repeated items live).
QQuickItem *find(QQuickItem *root, const char *name)
{
    if (root->objectName() == QLatin1StringView(name))
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = find(child, name))
            return found;
    }
    return nullptr;
}

const char *scene = R"(
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Popup
Item {
    width: 400; height: 800
    property alias popup: popup
    PopupView {
        id: popup
        ColumnLayout {
            Label { text: "Enter a prefix"; font.bold: true }
            TextField { text: "#31#"; Layout.preferredWidth: 260 }
            Button { text: "Save" }
        }
    }
}
)";

} // namespace

int main(int argc, char *argv[])
{
    TemporaryHome home;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    QQuickView view;
    view.engine()->addImportPath(QStringLiteral("qrc:/"));
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(400, 800);
    {
        QQmlComponent component(view.engine());
        component.setData(scene, QUrl::fromLocalFile(home.filePath(QStringLiteral("popup.qml"))));
        auto *root = qobject_cast<QQuickItem *>(component.create());
        if (!root) {
            out() << component.errorString() << Qt::endl;
            return 1;
        }
        view.setContent(QUrl(), &component, root);
    }
    view.show();
    QTest::qWaitForWindowExposed(&view);
    QQuickItem *root = view.rootObject();
    QObject *popup = root->property("popup").value<QObject *>();
    QQuickItem *card = popup->property("card").value<QQuickItem *>();

    QList<double> present, dismiss, moves;
    double followed = 0;
    for (int i = 0; i < 100; ++i) {
        QElapsedTimer timer;
        timer.start();
        popup->setProperty("isPresented", true);
        present.append(msSince(timer));
        QTest::qWait(400);
        if (i < 20) {
            // A drag that springs back: every move is timed.
            // On the card's margin: the fields inside keep their own touches.
            const QPoint start = card->mapToScene(QPointF(card->width() / 2, 8)).toPoint();
            QTest::mousePress(&view, Qt::LeftButton, {}, start);
            for (int step = 1; step <= 10; ++step) {
                timer.restart();
                QTest::mouseMove(&view, start + QPoint(0, step * 4));
                moves.append(msSince(timer));
            }
            followed = std::max(followed, popup->property("offsetY").toDouble());
            QTest::mouseRelease(&view, Qt::LeftButton, {}, start + QPoint(0, 40));
            QTest::qWait(600);
        }
        timer.restart();
        popup->setProperty("isPresented", false);
        dismiss.append(msSince(timer));
        QTest::qWait(300);
    }
    report("popup present", present);
    report("popup dismiss", dismiss);
    report("popup drag move", moves);
    if (followed < 20) {
        out() << "the popup did not follow the drag" << Qt::endl;
        return 1;
    }

    // Onboarding: building it, and "Next" taps.
    QList<double> build, next;
    QuietonApp quieton;
    for (int i = 0; i < 10; ++i) {
        QQmlComponent component(view.engine(), QUrl(QStringLiteral("qrc:/Quieton/Settings/WelcomeView.qml")));
        QElapsedTimer timer;
        timer.start();
        auto *welcome = qobject_cast<QQuickItem *>(component.createWithInitialProperties(
                { { QStringLiteral("vm"), QVariant::fromValue(quieton.createWelcomeViewModel(&view)) } }));
        if (!welcome) {
            out() << component.errorString() << Qt::endl;
            return 1;
        }
        welcome->setParentItem(root);
        welcome->setSize(QSizeF(400, 800));
        build.append(msSince(timer));
        QTest::qWait(100);
        for (int page = 0; page < 2; ++page) {
            QQuickItem *button = find(welcome, page == 0 ? "nextButton0" : "nextButton1");
            const QPoint at = button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint();
            send(&view, QEvent::MouseButtonPress, at);
            timer.restart();
            send(&view, QEvent::MouseButtonRelease, at);
            next.append(msSince(timer));
            QTest::qWait(900);
        }
        if (welcome->property("vm").value<QObject *>()->property("selectedPage").toInt() != 2) {
            out() << "the Next buttons did not turn the pages" << Qt::endl;
            return 1;
        }
        delete welcome;
    }
    report("onboarding build", build);
    report("onboarding Next tap", next);

    // The guide's tick: a countdown step, then the stored flag on every tick.
    QList<double> count, store;
    UserGuideForQuietonViewModel guide(*quieton.defaultsService());
    // The ticks' log lines go nowhere while they are timed.
    out().flush();
    std::fflush(stdout);
    const int savedStdout = ::dup(STDOUT_FILENO);
    const int devNull = ::open("/dev/null", O_WRONLY);
    ::dup2(devNull, STDOUT_FILENO);
    for (int i = 0; i < 50; ++i) {
        int left = 5;
        QElapsedTimer timer;
        for (int s = 0; s < 5; ++s) {
            timer.restart();
            left = guide.tick(left);
            count.append(msSince(timer));
        }
        timer.restart();
        guide.tick(left);
        store.append(msSince(timer));
    }
    std::fflush(stdout);
    ::dup2(savedStdout, STDOUT_FILENO);
    ::close(devNull);
    ::close(savedStdout);
    report("guide countdown tick", count);
    report("guide tick storing the flag", store);
    return 0;
}
