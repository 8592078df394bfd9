#include "DesktopTelephony.h"

#include <QDesktopServices>
#include <QProcess>
#include <QTimer>
#include <QUrl>

namespace {

// xdg-mime answers in a few milliseconds; a look-up that takes this long has hung.
constexpr int lookupLimitMs = 5000;

// The tel: address handed to the handler: '#' and other reserved characters percent-encoded.
QString telAddress(const QString &dialString)
{
    return QStringLiteral("tel:") + QString::fromLatin1(QUrl::toPercentEncoding(dialString, "+*-.()"));
}

} // namespace

DesktopTelephony::DesktopTelephony(QObject *parent) : Telephony(parent) {}

DesktopTelephony::~DesktopTelephony()
{
    if (m_lookup) {
        m_lookup->disconnect(this);
        m_lookup->kill();
        m_lookup->waitForFinished(1000);
    }
}

bool DesktopTelephony::canOpen(const DialRequest &request)
{
    if (!DialTarget::of(request))
        return false;
    if (m_handler != Handler::Registered)
        lookUp(); // for the next request: a handler may have been installed since
    return m_handler != Handler::None;
}

void DesktopTelephony::open(const DialRequest &request)
{
    const std::optional<DialTarget> target = DialTarget::of(request);
    if (!target) {
        emit requestFailed(tr("The phone cannot call this number."));
        return;
    }
    if (m_handler == Handler::Registered) {
        hand(*target);
        return;
    }
    m_waiting = target;
    lookUp();
}

void DesktopTelephony::lookUp()
{
    if (m_lookup)
        return;
    m_lookup = new QProcess(this);
    connect(m_lookup, &QProcess::finished, this, [this](int exitCode, QProcess::ExitStatus status) {
        const QByteArray output = m_lookup->readAllStandardOutput().trimmed();
        if (status != QProcess::NormalExit || exitCode != 0)
            answered(Handler::Unknown);
        else
            answered(output.isEmpty() ? Handler::None : Handler::Registered);
    });
    connect(m_lookup, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            answered(Handler::Unknown);
    });
    m_lookup->start(QStringLiteral("xdg-mime"), { QStringLiteral("query"), QStringLiteral("default"),
                                                  QStringLiteral("x-scheme-handler/tel") });
    // A look-up killed for taking too long finishes as a crash: no answer.
    QTimer::singleShot(lookupLimitMs, m_lookup, &QProcess::kill);
}

void DesktopTelephony::answered(Handler handler)
{
    if (m_lookup) {
        m_lookup->deleteLater();
        m_lookup = nullptr;
    }
    m_handler = handler;
    const std::optional<DialTarget> waiting = std::exchange(m_waiting, std::nullopt);
    if (!waiting)
        return;
    switch (handler) {
    case Handler::Registered:
        hand(*waiting);
        break;
    case Handler::None:
        emit requestFailed(tr("No application on this computer places phone calls."));
        break;
    case Handler::Unknown:
        emit requestFailed(tr("The desktop did not say which application places phone calls. Please try again."));
        break;
    }
}

void DesktopTelephony::hand(const DialTarget &target)
{
    if (!QDesktopServices::openUrl(QUrl(telAddress(target.dialString()))))
        emit requestFailed(tr("The desktop could not hand the call to a phone application."));
}
