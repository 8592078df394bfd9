#pragma once

#include <QString>

class CheckUpdate;
class QObject;
class QQuickWindow;

namespace UpdateAlertPresenter {

// Opens the update alert over `window`'s content and returns it (it removes
// itself once closed); null when the window has no QML content to host it.
QObject *showAppUpdateAlert(QQuickWindow *window, CheckUpdate *checker, const QString &version, bool force,
                            const QString &appURL, bool isTestFlight);

} // namespace UpdateAlertPresenter
