#include "DesktopTelephony.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

bool DesktopTelephony::handlerRegistered()
{
    static const bool registered = [] {
        QProcess query;
        query.start(QStringLiteral("xdg-mime"), { QStringLiteral("query"), QStringLiteral("default"),
                                                  QStringLiteral("x-scheme-handler/tel") });
        if (!query.waitForFinished(2000) || query.exitStatus() != QProcess::NormalExit || query.exitCode() != 0)
            return false;
        return !query.readAllStandardOutput().trimmed().isEmpty();
    }();
    return registered;
}

QString DesktopTelephony::telAddress(const QString &dialString)
{
    return QStringLiteral("tel:") + QString::fromLatin1(QUrl::toPercentEncoding(dialString, "+*-.()"));
}

bool DesktopTelephony::canOpen(const DialRequest &)
{
    return handlerRegistered();
}

void DesktopTelephony::open(const DialRequest &request)
{
    const QString dialString = request.dialString();
    if (!QDesktopServices::openUrl(QUrl(telAddress(dialString))))
        emit requestFailed(tr("The desktop could not hand the call to a phone application."));
}
