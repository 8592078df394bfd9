#include "DesktopUrlOpener.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

bool DesktopUrlOpener::canOpen(const QUrl &url)
{
    return url.isValid() && !url.scheme().isEmpty();
}

bool DesktopUrlOpener::open(const QUrl &url)
{
    return canOpen(url) && QDesktopServices::openUrl(url);
}

void DesktopUrlOpener::openSystemSettings()
{
    // The language and region page of the desktops found on Linux phones and
    // desktops, first match wins.
    const QList<QStringList> candidates = {
        { QStringLiteral("gnome-control-center"), QStringLiteral("region") },
        { QStringLiteral("systemsettings"), QStringLiteral("kcm_regionandlang") },
        { QStringLiteral("plasma-settings"), QStringLiteral("-m"), QStringLiteral("kcm_regionandlang") },
        { QStringLiteral("xfce4-settings-manager") },
    };
    for (const QStringList &command : candidates) {
        const QString program = QStandardPaths::findExecutable(command.first());
        if (!program.isEmpty() && QProcess::startDetached(program, command.mid(1)))
            return;
    }
}
