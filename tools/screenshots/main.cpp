// Renders each scene file to a PNG of a phone-sized window, on settings and
// data folders of its own so that the user's are never touched.
//
//   quieton-screenshots OUTPUT_DIR SCENE.qml...
//
// A scene's root is an Item; it may declare `property int settleMs` (how long
// to let it settle before the picture, 1200 ms by default) and
// `property var steps` (a list of [delayMs, function] run in order first)
// and `property string addressBook`: the folder beside the scenes folder
// whose vCards make the address book ("" for none, "blocked" for a book
// that cannot be read), set up before the steps run. Scenes reach the app
// (made as at start-up, with its own update check off this machine) as
// `testApp`, and its `service` and `defaults`.
#include "Appearance.h"
#include "QuietonApp.h"

#include <QDir>
#include <QQmlContext>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJSValue>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickView>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>


namespace {
void wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}
void copyFolder(const QDir &from, const QDir &to)
{
    to.mkpath(QStringLiteral("."));
    for (const QFileInfo &entry : from.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (entry.isDir())
            copyFolder(QDir(entry.filePath()), QDir(to.filePath(entry.fileName())));
        else
            QFile::copy(entry.filePath(), to.filePath(entry.fileName()));
    }
}

void setUpAddressBook(const QDir &scenes, const QString &name)
{
    const QString book = QDir(qEnvironmentVariable("XDG_DATA_HOME")).filePath(QStringLiteral("contacts"));
    QFile::remove(book);
    QDir(book).removeRecursively();
    if (name == QLatin1StringView("blocked")) {
        QFile blocker(book);
        blocker.open(QIODevice::WriteOnly);
    } else if (!name.isEmpty()) {
        copyFolder(QDir(scenes.filePath(QStringLiteral("../") + name)), QDir(book));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QDir(home.path()).filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", QDir(home.path()).filePath(QStringLiteral("data")).toUtf8());

    // The scenes are plain items: the style takes the dark look from its
    // own variable, the way the app's window takes it from the theme.
    const bool dark = qgetenv("QUIETON_COLOR_SCHEME") == "dark";
    if (dark)
        qputenv("QT_QUICK_CONTROLS_MATERIAL_THEME", "Dark");

    QGuiApplication app(argc, argv);
    QuietonApp::installTranslation();
    QQuickStyle::setStyle(QStringLiteral("Material"));
    Appearance::applyTextScaleOverride();
    const QStringList args = app.arguments().mid(1);
    if (args.size() < 2) {
        std::fprintf(stderr, "usage: quieton-screenshots OUTPUT_DIR SCENE.qml...\n");
        return 2;
    }
    const QDir out(args.first());
    out.mkpath(QStringLiteral("."));

    CheckUpdate::Config offline = CheckUpdate::Config::fromBuild();
    offline.lookupOrigin = offline.apiOrigin = QStringLiteral("http://127.0.0.1:9");
    QuietonApp quieton({}, offline);

    // A phone in portrait unless QUIETON_SCREEN_SIZE says otherwise ("720x360").
    QSize size(360, 720);
    const QList<QByteArray> dimensions = qgetenv("QUIETON_SCREEN_SIZE").split('x');
    if (dimensions.size() == 2 && dimensions[0].toInt() > 0 && dimensions[1].toInt() > 0)
        size = QSize(dimensions[0].toInt(), dimensions[1].toInt());

    int failures = 0;
    for (const QString &scene : args.mid(1)) {
        QQuickView view;
        view.engine()->addImportPath(QStringLiteral("qrc:/"));
        view.rootContext()->setContextProperty(QStringLiteral("testApp"), &quieton);
        view.rootContext()->setContextProperty(QStringLiteral("service"), quieton.service());
        view.rootContext()->setContextProperty(QStringLiteral("defaults"), quieton.defaultsService());
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setColor(dark ? Qt::black : QColor(0xF2, 0xF2, 0xF7));
        view.resize(size);
        view.setSource(QUrl::fromLocalFile(QFileInfo(scene).absoluteFilePath()));
        if (view.status() != QQuickView::Ready) {
            for (const auto &error : view.errors())
                std::fprintf(stderr, "%s\n", qPrintable(error.toString()));
            ++failures;
            continue;
        }
        view.show();
        QQuickItem *root = view.rootObject();
        const QVariant addressBook = root->property("addressBook");
        if (addressBook.isValid())
            setUpAddressBook(QFileInfo(scene).absoluteDir(), addressBook.toString());
        wait(300);
        const QJSValue steps = root->property("steps").value<QJSValue>();
        for (quint32 i = 0; steps.isArray() && i < steps.property(QStringLiteral("length")).toUInt(); ++i) {
            const QJSValue step = steps.property(i);
            wait(step.property(0).toInt());
            const QJSValue result = step.property(1).call();
            if (result.isError())
                std::fprintf(stderr, "%s: step %u: %s\n", qPrintable(scene), i, qPrintable(result.toString()));
        }
        const QVariant settle = root->property("settleMs");
        wait(settle.isValid() ? settle.toInt() : 1200);
        const QString file = out.filePath(QFileInfo(scene).completeBaseName() + QStringLiteral(".png"));
        if (!view.grabWindow().save(file)) {
            ++failures;
            continue;
        }
        std::printf("%s\n", qPrintable(file));
    }
    return failures == 0 ? 0 : 1;
}
