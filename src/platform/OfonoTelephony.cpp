#include "OfonoTelephony.h"

#include "CallConfirmation.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QRegularExpression>

#include <algorithm>

const QString OfonoTelephony::serviceName = QStringLiteral("org.ofono");

namespace {

const QString managerInterface = QStringLiteral("org.ofono.Manager");
const QString modemInterface = QStringLiteral("org.ofono.Modem");
const QString voiceCallManagerInterface = QStringLiteral("org.ofono.VoiceCallManager");
const QString voiceCallInterface = QStringLiteral("org.ofono.VoiceCall");

constexpr int callTimeoutMs = 60000;

// One (object path, properties) entry of an a(oa{sv}) value per element.
QList<std::pair<QString, QVariantMap>> objectsWithProperties(const QDBusArgument &array)
{
    QList<std::pair<QString, QVariantMap>> objects;
    array.beginArray();
    while (!array.atEnd()) {
        QDBusObjectPath path;
        QVariantMap properties;
        array.beginStructure();
        array >> path >> properties;
        array.endStructure();
        objects.append({ path.path(), properties });
    }
    array.endArray();
    return objects;
}

QString errorText(const QDBusError &error)
{
    return error.message().isEmpty() ? error.name() : error.message();
}

// A property value as it comes in a PropertyChanged signal (v).
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

OfonoTelephony::OfonoTelephony(const QDBusConnection &bus, CallConfirmation &confirmation, QObject *parent)
    : Telephony(parent),
      m_bus(bus),
      m_confirmation(confirmation),
      m_watcher(new QDBusServiceWatcher(serviceName, bus, QDBusServiceWatcher::WatchForOwnerChange, this))
{
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) {
                serviceGone();
                if (!newOwner.isEmpty())
                    readModems();
            });

    // An empty path follows every object of the service: each modem and call.
    m_bus.connect(serviceName, QStringLiteral("/"), managerInterface, QStringLiteral("ModemAdded"), this,
                  SLOT(onModemAdded(QDBusMessage)));
    m_bus.connect(serviceName, QStringLiteral("/"), managerInterface, QStringLiteral("ModemRemoved"), this,
                  SLOT(onModemRemoved(QDBusMessage)));
    m_bus.connect(serviceName, QString(), modemInterface, QStringLiteral("PropertyChanged"), this,
                  SLOT(onModemPropertyChanged(QDBusMessage)));
    m_bus.connect(serviceName, QString(), voiceCallManagerInterface, QStringLiteral("CallAdded"), this,
                  SLOT(onCallAdded(QDBusMessage)));
    m_bus.connect(serviceName, QString(), voiceCallManagerInterface, QStringLiteral("CallRemoved"), this,
                  SLOT(onCallRemoved(QDBusMessage)));
    m_bus.connect(serviceName, QString(), voiceCallInterface, QStringLiteral("PropertyChanged"), this,
                  SLOT(onCallPropertyChanged(QDBusMessage)));
    readModems();
}

bool OfonoTelephony::canOpen(const DialRequest &)
{
    switch (m_inventory) {
    case Inventory::Reading:
        return true;
    case Inventory::Known:
        return !m_modems.isEmpty();
    case Inventory::NoService:
        return false;
    }
    return false;
}

void OfonoTelephony::open(const DialRequest &request)
{
    const QString dialString = request.dialString();
    // A number oFono would refuse fails at once, whatever the modems are doing.
    if (!isDialableNumber(dialString)) {
        emit requestFailed(tr("The phone cannot dial %1.").arg(dialString));
        return;
    }
    if (m_inventory == Inventory::Reading) {
        // Asked right at start-up (a widget link): go on once the modems are known.
        m_waitingRequest = dialString;
        return;
    }
    requestCall(dialString);
}

bool OfonoTelephony::isDialableNumber(const QString &dialString)
{
    static const QRegularExpression number(QStringLiteral("^\\+?[0-9*#]{1,80}$"));
    return number.match(dialString).hasMatch();
}

QStringList OfonoTelephony::voiceModems() const
{
    return m_modems;
}

void OfonoTelephony::readModems()
{
    m_inventory = Inventory::Reading;
    const int generation = ++m_generation;
    const QDBusMessage message = QDBusMessage::createMethodCall(serviceName, QStringLiteral("/"), managerInterface,
                                                                QStringLiteral("GetModems"));
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, generation](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        if (generation != m_generation)
            return;
        const QDBusMessage reply = call->reply();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) {
            m_inventory = Inventory::NoService;
        } else {
            const auto modems = objectsWithProperties(reply.arguments().constFirst().value<QDBusArgument>());
            for (const auto &[path, properties] : modems)
                updateModem(path, properties.value(QStringLiteral("Interfaces")).toStringList());
            m_inventory = Inventory::Known;
        }
        emit modemsChanged();
        if (const std::optional<QString> waiting = std::exchange(m_waitingRequest, std::nullopt))
            requestCall(*waiting);
    });
}

void OfonoTelephony::serviceGone()
{
    ++m_generation;
    const QStringList modems = m_modems;
    for (const QString &modem : modems)
        removeModem(modem);
    m_inventory = Inventory::NoService;
    emit modemsChanged();
}

void OfonoTelephony::updateModem(const QString &path, const QStringList &interfaces)
{
    const bool voice = interfaces.contains(voiceCallManagerInterface);
    if (voice == m_modems.contains(path))
        return;
    if (!voice) {
        removeModem(path);
        return;
    }
    m_modems.append(path);
    std::sort(m_modems.begin(), m_modems.end());
    readCalls(path);
}

void OfonoTelephony::removeModem(const QString &path)
{
    m_modems.removeAll(path);
    const QStringList calls = m_calls.keys();
    for (const QString &call : calls) {
        if (m_calls.value(call).modem == path)
            endCall(call);
    }
}

void OfonoTelephony::readCalls(const QString &modem)
{
    // Calls that exist already are followed from now on, without reporting
    // how they stand: they were not started while we watched.
    const QDBusMessage message = QDBusMessage::createMethodCall(serviceName, modem, voiceCallManagerInterface,
                                                                QStringLiteral("GetCalls"));
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, modem](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusMessage reply = call->reply();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty() || !m_modems.contains(modem))
            return;
        const auto calls = objectsWithProperties(reply.arguments().constFirst().value<QDBusArgument>());
        for (const auto &[path, properties] : calls) {
            if (m_calls.contains(path))
                continue;
            Call &known = addCall(path, modem, properties.value(QStringLiteral("State")).toString());
            known.reported = CallEvent{ path, known.isOutgoing, known.hasConnected, known.hasEnded };
        }
    });
}

void OfonoTelephony::requestCall(const QString &dialString)
{
    if (m_modems.isEmpty()) {
        emit requestFailed(tr("No modem is ready to place calls."));
        return;
    }
    if (!isDialableNumber(dialString)) {
        emit requestFailed(tr("The phone cannot dial %1.").arg(dialString));
        return;
    }
    m_confirmation.ask(dialString, this, [this, dialString] { dial(dialString); });
}

void OfonoTelephony::dial(const QString &dialString)
{
    if (m_modems.isEmpty()) {
        emit requestFailed(tr("No modem is ready to place calls."));
        return;
    }
    const QString modem = m_modems.constFirst();
    QDBusMessage message = QDBusMessage::createMethodCall(serviceName, modem, voiceCallManagerInterface,
                                                          QStringLiteral("Dial"));
    message << dialString << QStringLiteral("default");
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, modem](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusMessage reply = call->reply();
        if (reply.type() != QDBusMessage::ReplyMessage) {
            emit requestFailed(tr("The call could not be placed: %1").arg(errorText(call->error())));
            return;
        }
        // oFono answers with the call's object path; some implementations
        // send it as a string.
        const QVariant value = reply.arguments().value(0);
        const QString path = value.canConvert<QDBusObjectPath>() ? value.value<QDBusObjectPath>().path()
                                                                  : value.toString();
        if (!path.isEmpty() && !m_calls.contains(path)) {
            addCall(path, modem, QStringLiteral("dialing"));
            report(path);
        }
    });
}

OfonoTelephony::Call &OfonoTelephony::addCall(const QString &path, const QString &modem, const QString &state)
{
    Call &call = m_calls[path];
    call.modem = modem;
    // oFono has no direction: a call that is first seen dialling is ours.
    call.isOutgoing = state == QLatin1String("dialing") || state == QLatin1String("alerting");
    applyState(call, state);
    return call;
}

void OfonoTelephony::applyState(Call &call, const QString &state)
{
    if (state == QLatin1String("active") || state == QLatin1String("held"))
        call.hasConnected = true;
    else if (state == QLatin1String("disconnected"))
        call.hasEnded = true;
}

void OfonoTelephony::report(const QString &path)
{
    auto found = m_calls.find(path);
    if (found == m_calls.end())
        return;
    const CallEvent event{ path, found->isOutgoing, found->hasConnected, found->hasEnded };
    if (found->reported && found->reported->isOutgoing == event.isOutgoing
        && found->reported->hasConnected == event.hasConnected && found->reported->hasEnded == event.hasEnded)
        return;
    found->reported = event;
    emit callChanged(event);
}

void OfonoTelephony::endCall(const QString &path)
{
    auto found = m_calls.find(path);
    if (found == m_calls.end())
        return;
    found->hasEnded = true;
    report(path);
    m_calls.erase(found);
}

void OfonoTelephony::onModemAdded(const QDBusMessage &message)
{
    const QList<QVariant> args = message.arguments();
    if (args.size() < 2)
        return;
    const QVariantMap properties = qdbus_cast<QVariantMap>(args.at(1));
    updateModem(args.at(0).value<QDBusObjectPath>().path(), properties.value(QStringLiteral("Interfaces")).toStringList());
    emit modemsChanged();
}

void OfonoTelephony::onModemRemoved(const QDBusMessage &message)
{
    if (message.arguments().isEmpty())
        return;
    removeModem(message.arguments().constFirst().value<QDBusObjectPath>().path());
    emit modemsChanged();
}

void OfonoTelephony::onModemPropertyChanged(const QDBusMessage &message)
{
    const QList<QVariant> args = message.arguments();
    if (args.size() < 2 || args.at(0).toString() != QLatin1String("Interfaces"))
        return;
    updateModem(message.path(), unwrapped(args.at(1)).toStringList());
    emit modemsChanged();
}

void OfonoTelephony::onCallAdded(const QDBusMessage &message)
{
    const QList<QVariant> args = message.arguments();
    if (args.size() < 2 || !m_modems.contains(message.path()))
        return;
    const QString path = args.at(0).value<QDBusObjectPath>().path();
    if (m_calls.contains(path))
        return;
    const QVariantMap properties = qdbus_cast<QVariantMap>(args.at(1));
    addCall(path, message.path(), properties.value(QStringLiteral("State")).toString());
    report(path);
}

void OfonoTelephony::onCallRemoved(const QDBusMessage &message)
{
    if (message.arguments().isEmpty())
        return;
    endCall(message.arguments().constFirst().value<QDBusObjectPath>().path());
}

void OfonoTelephony::onCallPropertyChanged(const QDBusMessage &message)
{
    const QList<QVariant> args = message.arguments();
    if (args.size() < 2 || args.at(0).toString() != QLatin1String("State"))
        return;
    auto found = m_calls.find(message.path());
    if (found == m_calls.end())
        return;
    applyState(*found, unwrapped(args.at(1)).toString());
    report(message.path());
}
