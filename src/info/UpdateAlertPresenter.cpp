#include "UpdateAlertPresenter.h"

#include "Platform.h"
#include "UrlOpener.h"

#include <QJSEngine>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QUrl>

UpdateAlertPresenter *UpdateAlertPresenter::create(QQmlEngine *engine, QJSEngine *)
{
    return new UpdateAlertPresenter(engine);
}

QObject *UpdateAlertPresenter::showAppUpdateAlert(QQuickWindow *window, const QString &version, bool force,
                                              const QString &appURL, bool isTestFlight)
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

    QQmlComponent component(engine, QUrl(QStringLiteral("qrc:/Quieton/info/AppUpdateAlert.qml")));
    QObject *alert = component.createWithInitialProperties({
        { QStringLiteral("parent"), QVariant::fromValue(window->contentItem()) },
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

QObject *UpdateAlertPresenter::showAppUpdateAlertWithVersion(QQuickItem *screen, const QString &version, bool force,
                                                         const QString &appURL, bool isTestFlight)
{
    return screen ? showAppUpdateAlert(screen->window(), version, force, appURL, isTestFlight) : nullptr;
}

void UpdateAlertPresenter::openAppURL(const QString &appURL)
{
    const QUrl url(appURL, QUrl::StrictMode);
    if (url.isValid() && !url.scheme().isEmpty())
        Platform::urlOpener().open(url);
}
