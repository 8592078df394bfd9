#include "Service.h"

#include "BuildConfig.h"
#include "KeyValueStore.h"
#include "Platform.h"
#include "Telephony.h"
#include "TextSharer.h"
#include "UserDefaultsService.h"
#include "WidgetRefresher.h"

#include <QJSEngine>
#include <QTextStream>
#include <QUrl>

#include <cctype>

Service *Service::shared()
{
    static Service *const instance = [] {
        auto *service = new Service(UserDefaultsService::shared(), Platform::telephony(), Platform::widgets(),
                                    Platform::sharer());
        return service;
    }();
    return instance;
}

Service *Service::create(QQmlEngine *, QJSEngine *)
{
    Service *instance = shared();
    QJSEngine::setObjectOwnership(instance, QJSEngine::CppOwnership);
    return instance;
}

Service::Service(UserDefaultsService *defaultsService, Telephony &telephony, WidgetRefresher &widgets,
                 TextSharer &sharer, QObject *parent)
    : QObject(parent), m_defaultsService(defaultsService), m_telephony(telephony), m_widgets(widgets), m_sharer(sharer)
{
    connect(&m_sharer, &TextSharer::notice, this, &Service::notice);
    connect(&m_telephony, &Telephony::requestFailed, this, &Service::notice);
}

void Service::makeCall(const QString &number, bool hidden)
{
    setCallStartedFromApp(true);

    const QString prefix = m_defaultsService->userDefaults().stringValue(QStringLiteral("prefix")).value_or(QString());
    const DialRequest request{ hidden ? prefix : QString(), number };
    const QString address = QStringLiteral("tel://") + request.dialString();

    if (!isCallAddress(address)) {
        setCallFailed(true);
        return;
    }
    if (!m_telephony.canOpen(request)) {
        setCallFailed(true);
        return;
    }
    // The address as composed: the URL's own rendering would rewrite a bare
    // number such as 0612 as if it were a host address.
    QTextStream(stdout) << "## User dial : " << address << Qt::endl;
    m_telephony.open(request);
}

bool Service::isCallAddress(const QString &address)
{
    // A URL is made only of the characters URLs allow (RFC 3986: letters,
    // digits, -._~ :/?#[]@ !$&'()*+,;= and %-escapes). Host-name rules do not
    // apply: after "tel://" comes a dial string such as *67 or #31#, not a host.
    static const QByteArray allowed = QByteArrayLiteral("-._~:/?#[]@!$&'()*+,;=");
    for (qsizetype i = 0; i < address.size(); ++i) {
        const char16_t c = address[i].unicode();
        if (c >= 128)
            return false;
        if ((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || allowed.contains(char(c)))
            continue;
        if (c == u'%' && i + 2 < address.size() && isxdigit(address[i + 1].unicode()) && isxdigit(address[i + 2].unicode())) {
            i += 2;
            continue;
        }
        return false;
    }
    return true;
}

void Service::resetWidgetData()
{
    if (KeyValueStore *widgetSuite = m_defaultsService->userDefaultsShared())
        widgetSuite->setString(QStringLiteral("phoneNumberWidget"), QString());
    if (KeyValueStore *widgetSuite = m_defaultsService->userDefaultsShared())
        widgetSuite->setBool(QStringLiteral("hiddenNumberWidget"), false);
    if (KeyValueStore *widgetSuite = m_defaultsService->userDefaultsShared())
        widgetSuite->setBool(QStringLiteral("saveToHistoryWidget"), false);
    m_widgets.reloadAllTimelines();
}

QString Service::shareText()
{
    return tr("Check out this cool app! ") + QStringLiteral(QUIETON_STORE_PAGE_URL);
}

void Service::shareApp()
{
    m_sharer.share(shareText());
}

void Service::setPendingCall(const QString &firstName, const QString &lastName, const QString &telephone, bool hidden)
{
    const auto text = [](const QString &value) { return value.isNull() ? QStringLiteral("") : value; };
    m_pendingCallFirstName = text(firstName);
    m_pendingCallLastName = text(lastName);
    m_pendingCallTelephone = text(telephone);
    m_pendingCallHidden = hidden;
    emit pendingCallChanged();
}

void Service::setCallStartedFromApp(bool value)
{
    if (m_callStartedFromApp == value)
        return;
    m_callStartedFromApp = value;
    emit callStartedFromAppChanged();
}

void Service::setCallFailed(bool value)
{
    if (m_callFailed == value)
        return;
    m_callFailed = value;
    emit callFailedChanged();
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

void Service::setPendingCallSaveToHistoryValue(const QVariant &value)
{
    setPendingCallSaveToHistory(value.isValid() && !value.isNull() ? std::optional<bool>(value.toBool()) : std::nullopt);
}
