#include "UpdateAlertPresenter.h"

#include "CheckUpdate.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QUrl>

QObject *UpdateAlertPresenter::showAppUpdateAlert(QQuickWindow *window, CheckUpdate *checker, const QString &version,
                                                  bool force, const QString &appURL, bool isTestFlight)
{
    if (!window || !window->contentItem())
        return nullptr;
    // The engine that made the window's content makes the alert.
    QQmlEngine *engine = qmlEngine(window);
    const QList<QQuickItem *> content = window->contentItem()->childItems();
    for (qsizetype i = 0; !engine && i < content.size(); ++i)
        engine = qmlEngine(content.at(i));
    if (!engine)
        return nullptr;
    QQmlComponent component(engine, QUrl(QStringLiteral("qrc:/Quieton/Info/AppUpdateAlert.qml")));
    QObject *alert = component.createWithInitialProperties({
        { QStringLiteral("parent"), QVariant::fromValue(window->contentItem()) },
        { QStringLiteral("checker"), QVariant::fromValue(checker) },
        { QStringLiteral("version"), version },
        { QStringLiteral("force"), force },
        { QStringLiteral("appURL"), appURL },
        { QStringLiteral("isTestFlight"), isTestFlight },
    });
    if (!alert) {
        qWarning().noquote() << component.errorString();
        return nullptr;
    }
    alert->setParent(window);
    QQmlEngine::setObjectOwnership(alert, QQmlEngine::JavaScriptOwnership);
    QMetaObject::invokeMethod(alert, "open");
    return alert;
}
