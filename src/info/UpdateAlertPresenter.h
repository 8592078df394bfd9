#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;
class QQuickItem;
class QQuickWindow;

// The update alert, offered to every screen: "New version", with "Update
// Now" (and "Not now" unless the update is forced) over the screen's window.
class UpdateAlertPresenter : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_MOC_INCLUDE(<QQuickItem>)

public:
    static UpdateAlertPresenter *create(QQmlEngine *, QJSEngine *);

    // Opens the alert over `window`'s content and returns it (it removes
    // itself once closed). Shows nothing, and returns null, when the window
    // has no QML content to host it.
    static QObject *showAppUpdateAlert(QQuickWindow *window, const QString &version, bool force, const QString &appURL,
                                   bool isTestFlight);

    // The same from a screen: the alert goes over the screen's window.
    Q_INVOKABLE QObject *showAppUpdateAlertWithVersion(QQuickItem *screen, const QString &version, bool force,
                                                   const QString &appURL, bool isTestFlight);

    // "Update Now": opens `appURL` when it is an address; anything else does nothing.
    Q_INVOKABLE static void openAppURL(const QString &appURL);

private:
    using QObject::QObject;
};
