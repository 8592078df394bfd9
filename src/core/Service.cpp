#include "Service.h"

#include "BuildConfig.h"
#include "CallConfirmation.h"
#include "KeyValueStore.h"
#include "Telephony.h"
#include "TextSharer.h"
#include "UserDefaultsService.h"
#include "WidgetRefresher.h"

#include <QRegularExpression>
#include <QTextStream>
#include <QUrl>

namespace {

bool isCallAddress(const QString &address)
{
    // Today's URL parsers percent-encode whatever a URL cannot hold as it
    // stands (spaces, other characters, a stray '%') and give up only on a
    // broken structure: no scheme, a port that is not a number, or a '[' that
    // does not enclose an IP address. Host-name rules do not apply beyond
    // that: after "tel://" comes a dial string such as "0611 111 111" or
    // "#31#", not a host.
    static const QRegularExpression url(
            QStringLiteral(R"(^[A-Za-z][A-Za-z0-9+.-]*:(?:(?!//)|//(?:[^/?#]*@)?(?:\[([^\]]*)\]|[^/?#@\[\]:]*)(?::([0-9]*))?(?:[/?#]|$)))"),
            QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = url.match(address);
    if (!match.hasMatch())
        return false;
    const QString port = match.captured(2);
    bool portFits = true;
    if (!port.isEmpty() && (port.toUInt(&portFits) > 65535 || !portFits))
        return false;
    return !match.hasCaptured(1) || QUrl(QStringLiteral("http://[%1]").arg(match.captured(1))).isValid();
}

QString failureNotice(const QString &message)
{
    // One sentence however the telephony put it: single blanks, none before
    // a mark, a capital first and a full stop last, never an open ": " or " .".
    static const QRegularExpression blanksBeforeMarks(QStringLiteral(R"(\s+(?=[.,;:!?]))"));
    static const QRegularExpression openEnd(QStringLiteral(R"([\s.,;:]+$)"));
    QString text = message.simplified().remove(blanksBeforeMarks).remove(openEnd);
    if (text.isEmpty())
        return Service::tr("The call could not be placed.");
    text[0] = text[0].toUpper();
    return text.endsWith(u'!') || text.endsWith(u'?') ? text : text + u'.';
}

} // namespace

Service::Service(UserDefaultsService *defaultsService, Telephony &telephony, CallConfirmation &confirmation,
                 WidgetRefresher &widgets, TextSharer &sharer, QObject *parent)
    : QObject(parent),
      m_defaultsService(defaultsService),
      m_telephony(telephony),
      m_confirmation(confirmation),
      m_widgets(widgets),
      m_sharer(sharer)
{
    connect(&m_sharer, &TextSharer::notice, this, &Service::notice);
    connect(&m_telephony, &Telephony::requestFailed, this,
            [this](const QString &message) { emit notice(failureNotice(message)); });
}

bool Service::makeCall(const QString &number, bool hidden, bool fromLink)
{
    setCallStartedFromApp(true);

    const QString prefix = m_defaultsService->userDefaults().stringValue(QStringLiteral("prefix")).value_or(QString());
    const DialRequest request{ hidden ? prefix : QString(), number };
    const QString address = QStringLiteral("tel://") + request.dialString();

    if (!isCallAddress(address) || !m_telephony.canOpen(request)) {
        setCallFailed(true);
        return true;
    }
    // A link may arrive while the user is reading the dial string of another
    // call: it never takes that question's place, and is not kept for later,
    // where a second tap on "Call" would place it unread.
    const bool confirm = fromLink || m_telephony.placesCallsItself();
    if (confirm && m_confirmation.isPending()) {
        emit notice(tr("%1 was not called: first answer the call waiting on screen.").arg(request.dialString()));
        return false;
    }
    // The address as composed: the URL's own rendering would rewrite a bare
    // number such as 0612 as if it were a host address.
    QTextStream(stdout) << "## User dial : " << address << Qt::endl;
    if (confirm)
        m_confirmation.ask(request.dialString(), this, [this, request] { m_telephony.open(request); });
    else
        m_telephony.open(request);
    return true;
}

void Service::resetWidgetData()
{
    if (KeyValueStore *widgetSuite = m_defaultsService->userDefaultsShared()) {
        widgetSuite->setString(QStringLiteral("phoneNumberWidget"), QString());
        widgetSuite->setBool(QStringLiteral("hiddenNumberWidget"), false);
        widgetSuite->setBool(QStringLiteral("saveToHistoryWidget"), false);
    }
    m_widgets.reloadAllTimelines();
}

void Service::shareApp()
{
    m_sharer.share(tr("Check out this cool app! ") + QStringLiteral(QUIETON_STORE_PAGE_URL));
}

bool Service::placeCall(const PendingCall &call, bool fromLink)
{
    if (makeCall(call.telephone, call.hidden, fromLink)) {
        const auto text = [](const QString &value) { return value.isNull() ? QStringLiteral("") : value; };
        m_pendingCallFirstName = text(call.firstName);
        m_pendingCallLastName = text(call.lastName);
        m_pendingCallTelephone = text(call.telephone);
        m_pendingCallHidden = call.hidden;
        if (call.saveToHistory)
            m_pendingCallSaveToHistory = call.saveToHistory;
        emit pendingCallChanged();
    }
    return m_callFailed;
}

void Service::setPendingCallSaveToHistory(std::optional<bool> value)
{
    m_pendingCallSaveToHistory = value;
    emit pendingCallChanged();
}

QVariant Service::pendingCallSaveToHistoryValue() const
{
    return m_pendingCallSaveToHistory ? QVariant(*m_pendingCallSaveToHistory) : QVariant();
}
