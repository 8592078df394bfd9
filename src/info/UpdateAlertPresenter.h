#pragma once

#include <QString>

class CheckUpdate;
class QObject;
class QQuickWindow;

// The update alert: "New version", with "Update Now" (and "Not now" unless
// the update is forced) over a window's content; "Update Now" goes through
// the checker that found the update.
namespace UpdateAlertPresenter {

// Opens the alert over `window`'s content and returns it (it removes itself
// once closed). Shows nothing, and returns null, when the window has no QML
// content to host it.
QObject *showAppUpdateAlert(QQuickWindow *window, CheckUpdate *checker, const QString &version, bool force,
                            const QString &appURL, bool isTestFlight);

} // namespace UpdateAlertPresenter
