#include "SearchTyping.h"

#include "Clock.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace bench {

void idleFor(int ms)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms)
        QCoreApplication::processEvents();
}

QList<double> typeIntoScreen(QObject *vm, const QString &screen, const QString &list, const QStringList &session,
                             int rounds)
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQuickWindow window;
    window.resize(400, 800);
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quieton/Lists/") + screen));
    std::unique_ptr<QObject> view(component.createWithInitialProperties({ { QStringLiteral("vm"), QVariant::fromValue(vm) } }));
    auto *item = qobject_cast<QQuickItem *>(view.get());
    if (!item)
        qFatal("%s", qPrintable(component.errorString()));
    item->setParentItem(window.contentItem());
    item->setSize(window.size());
    window.show();
    auto *listView = item->findChild<QQuickItem *>(list);
    if (!listView)
        qFatal("no list named %s", qPrintable(list));
    QMetaObject::invokeMethod(listView, "forceLayout");
    // A person looks at the list for a moment before typing.
    idleFor(1000);
    QList<double> ms;
    for (int round = 0; round < rounds; ++round) {
        for (const QString &text : session) {
            const double start = threadCpuMs();
            vm->setProperty("searchText", text);
            QMetaObject::invokeMethod(listView, "forceLayout");
            // The rows the list let go of, deleted as the app's event loop
            // does after each keystroke; left to pile up, they made the
            // collector's marking slower keystroke after keystroke.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            ms.append(threadCpuMs() - start);
        }
    }
    vm->setProperty("searchText", QString());
    return ms;
}

} // namespace bench
