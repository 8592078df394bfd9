#include "OfonoTelephony.h"

#include "ofonomanagerproxy.h"
#include "ofonomodemproxy.h"
#include "ofonovoicecallmanagerproxy.h"
#include "ofonovoicecallproxy.h"

#include <QDBusMessage>
#include <QRegularExpression>

const QString OfonoTelephony::serviceName = QStringLiteral("org.ofono");

OfonoTelephony::OfonoTelephony(const QDBusConnection &bus, QObject *parent)
    : ModemTelephony(bus, serviceName, parent),
      m_manager(new OfonoManagerProxy(serviceName, QStringLiteral("/"), bus, this))
{
    m_manager->setTimeout(callTimeoutMs);
    // ModemAdded is taken as a message: with Qt 6.4 it did not reach a typed
    // slot in our tests, relayed or not (its properties hold arrays).
    this->bus().connect(serviceName, m_manager->path(), m_manager->interface(), QStringLiteral("ModemAdded"), this,
                        SLOT(onModemAdded(QDBusMessage)));
    connect(m_manager, &OfonoManagerProxy::ModemRemoved, this, [this](const QDBusObjectPath &path) {
        removeModem(path.path()); // which drops its voice calls proxy
        delete m_modemProxies.take(path.path()).modem;
        emit modemsChanged();
    });
    start();
}

void OfonoTelephony::onModemAdded(const QDBusMessage &message)
{
    const QString path = message.arguments().value(0).value<QDBusObjectPath>().path();
    const QVariantMap properties = qdbus_cast<QVariantMap>(message.arguments().value(1));
    if (path.isEmpty())
        return;
    updateModem(path, properties.value(QStringLiteral("Interfaces")).toStringList());
    emit modemsChanged();
}

std::optional<std::pair<QString, QString>> OfonoTelephony::dialArguments(const DialTarget &target)
{
    static const QRegularExpression number(QStringLiteral("^\\+?[0-9*#]{1,80}$"));
    QString dialString = target.dialString();
    QString hideCallerId = QStringLiteral("default");
    if (dialString.startsWith(QLatin1String("#31#"))) {
        dialString.remove(0, 4);
        hideCallerId = QStringLiteral("enabled");
    } else if (dialString.startsWith(QLatin1String("*31#"))) {
        dialString.remove(0, 4);
        hideCallerId = QStringLiteral("disabled");
    }
    if (!number.match(dialString).hasMatch())
        return std::nullopt;
    return std::pair{ dialString, hideCallerId };
}

void OfonoTelephony::readModems(int generation)
{
    // The voice modems of an earlier reading are gone already, with their
    // voice calls proxies; the modems themselves go now.
    for (const Modem &modem : std::as_const(m_modemProxies))
        delete modem.modem;
    m_modemProxies.clear();
    whenDone(m_manager->GetModems(), this, [this, generation](const QDBusPendingReply<ObjectPropertiesList> &reply) {
        if (!isCurrent(generation))
            return;
        if (!reply.isError()) {
            for (const auto &[modem, properties] : reply.value())
                updateModem(modem.path(), properties.value(QStringLiteral("Interfaces")).toStringList());
        }
        modemsRead(generation, reply);
    });
}

void OfonoTelephony::updateModem(const QString &path, const QStringList &interfaces)
{
    Modem &modem = m_modemProxies[path];
    if (!modem.modem) {
        modem.modem = new OfonoModemProxy(serviceName, path, bus(), this);
        connect(modem.modem, &OfonoModemProxy::PropertyChanged, this, [this, path](const QString &name, const QDBusVariant &value) {
            if (name != QLatin1String("Interfaces"))
                return;
            updateModem(path, value.variant().toStringList());
            emit modemsChanged();
        });
    }
    const bool voice = interfaces.contains(OfonoVoiceCallManagerProxy::staticInterfaceName());
    if (voice == (modem.calls != nullptr))
        return;
    if (!voice) {
        removeModem(path);
        return;
    }
    auto *calls = new OfonoVoiceCallManagerProxy(serviceName, path, bus(), this);
    calls->setTimeout(callTimeoutMs);
    modem.calls = calls;
    addModem(path);
    connect(calls, &OfonoVoiceCallManagerProxy::CallAdded, this, [this, path](const QDBusObjectPath &call, const QVariantMap &properties) {
        addCall(call.path(), path, properties.value(QStringLiteral("State")).toString(), true);
    });
    connect(calls, &OfonoVoiceCallManagerProxy::CallRemoved, this, [this](const QDBusObjectPath &call) { endCall(call.path()); });
    connect(calls, &OfonoVoiceCallManagerProxy::PropertyChanged, this, [this, path](const QString &name, const QDBusVariant &value) {
        if (name == QLatin1String("EmergencyNumbers"))
            setEmergencyNumbers(path, value.variant().toStringList());
    });
    whenDone(calls->GetProperties(), this, [this, path](const QDBusPendingReply<QVariantMap> &reply) {
        if (!reply.isError())
            setEmergencyNumbers(path, reply.value().value(QStringLiteral("EmergencyNumbers")).toStringList());
    });
    // Calls that exist already are followed from now on, without reporting
    // how they stand: they were not started while we watched.
    whenDone(calls->GetCalls(), this, [this, path](const QDBusPendingReply<ObjectPropertiesList> &reply) {
        if (reply.isError() || !voiceModems().contains(path))
            return;
        for (const auto &[call, properties] : reply.value())
            addCall(call.path(), path, properties.value(QStringLiteral("State")).toString(), false);
    });
}

void OfonoTelephony::forgetModem(const QString &modem)
{
    // The modem itself stays known, for its Interfaces property.
    const auto found = m_modemProxies.find(modem);
    if (found != m_modemProxies.end())
        delete std::exchange(found->calls, nullptr);
}

void OfonoTelephony::dial(const QString &modem, const DialTarget &target)
{
    OfonoVoiceCallManagerProxy *calls = m_modemProxies.value(modem).calls;
    const auto arguments = dialArguments(target);
    if (!calls || !arguments)
        return;
    // The call itself is announced by CallAdded; only a failure matters here.
    // An untyped reply also takes the string some oFono stand-ins answer with.
    const QDBusPendingReply<> pending = calls->Dial(arguments->first, arguments->second);
    whenDone(pending, this, [this](const QDBusPendingReply<> &reply) {
        if (reply.isError())
            failRequest(reply.error());
    });
}

void OfonoTelephony::addCall(const QString &path, const QString &modem, const QString &state, bool announce)
{
    Call *call = followCall(path, modem);
    if (!call)
        return;
    // oFono has no direction: a call that is first seen dialling is ours.
    call->isOutgoing = state == QLatin1String("dialing") || state == QLatin1String("alerting");
    applyState(*call, state);
    auto *proxy = new OfonoVoiceCallProxy(serviceName, path, bus(), this);
    call->proxy = proxy;
    connect(proxy, &OfonoVoiceCallProxy::PropertyChanged, this, [this, path](const QString &name, const QDBusVariant &value) {
        Call *call = findCall(path);
        if (!call || name != QLatin1String("State"))
            return;
        applyState(*call, value.variant().toString());
        report(path);
    });
    report(path, announce);
}

void OfonoTelephony::applyState(Call &call, const QString &state)
{
    if (state == QLatin1String("active") || state == QLatin1String("held"))
        call.hasConnected = true;
    else if (state == QLatin1String("disconnected"))
        call.hasEnded = true;
}
