#include "ModemManagerTelephony.h"

#include "CallConfirmation.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <algorithm>

const QString ModemManagerTelephony::serviceName = QStringLiteral("org.freedesktop.ModemManager1");

namespace {

const QString managerPath = QStringLiteral("/org/freedesktop/ModemManager1");
const QString objectManagerInterface = QStringLiteral("org.freedesktop.DBus.ObjectManager");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString voiceInterface = QStringLiteral("org.freedesktop.ModemManager1.Modem.Voice");
const QString callInterface = QStringLiteral("org.freedesktop.ModemManager1.Call");

// MMCallDirection and MMCallState.
constexpr int directionOutgoing = 2;
constexpr int stateUnknown = 0;
constexpr int stateActive = 4;
constexpr int stateHeld = 5;
constexpr int stateTerminated = 7;

// Replies of a modem that has gone quiet still end; a minute is plenty for
// dialling and far from forever.
constexpr int callTimeoutMs = 60000;

// The interface names of an a{sa{sv}} value.
QStringList interfaceNames(const QDBusArgument &interfaces)
{
    QStringList names;
    interfaces.beginMap();
    while (!interfaces.atEnd()) {
        QString name;
        QVariantMap properties;
        interfaces.beginMapEntry();
        interfaces >> name >> properties;
        interfaces.endMapEntry();
        names.append(name);
    }
    interfaces.endMap();
    return names;
}

QString errorText(const QDBusError &error)
{
    return error.message().isEmpty() ? error.name() : error.message();
}

} // namespace

ModemManagerTelephony::ModemManagerTelephony(const QDBusConnection &bus, CallConfirmation &confirmation,
                                             QObject *parent)
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

    // An empty path follows every object of the service: each call and modem.
    m_bus.connect(serviceName, managerPath, objectManagerInterface, QStringLiteral("InterfacesAdded"), this,
                  SLOT(onInterfacesAdded(QDBusMessage)));
    m_bus.connect(serviceName, managerPath, objectManagerInterface, QStringLiteral("InterfacesRemoved"), this,
                  SLOT(onInterfacesRemoved(QDBusMessage)));
    m_bus.connect(serviceName, QString(), voiceInterface, QStringLiteral("CallAdded"), this,
                  SLOT(onCallAdded(QDBusMessage)));
    m_bus.connect(serviceName, QString(), voiceInterface, QStringLiteral("CallDeleted"), this,
                  SLOT(onCallDeleted(QDBusMessage)));
    m_bus.connect(serviceName, QString(), callInterface, QStringLiteral("StateChanged"), this,
                  SLOT(onCallStateChanged(QDBusMessage)));
    m_bus.connect(serviceName, QString(), propertiesInterface, QStringLiteral("PropertiesChanged"), this,
                  SLOT(onPropertiesChanged(QDBusMessage)));
    readModems();
}

bool ModemManagerTelephony::canOpen(const DialRequest &)
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

void ModemManagerTelephony::open(const DialRequest &request)
{
    const QString dialString = request.dialString();
    if (m_inventory == Inventory::Reading) {
        // Asked right at start-up (a widget link): go on once the modems are known.
        m_waitingRequest = dialString;
        return;
    }
    requestCall(dialString);
}

QStringList ModemManagerTelephony::voiceModems() const
{
    return m_modems;
}

void ModemManagerTelephony::readModems()
{
    m_inventory = Inventory::Reading;
    const int generation = ++m_generation;
    const QDBusMessage message = QDBusMessage::createMethodCall(serviceName, managerPath, objectManagerInterface,
                                                                QStringLiteral("GetManagedObjects"));
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, generation](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        if (generation != m_generation)
            return;
        const QDBusMessage reply = call->reply();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) {
            m_inventory = Inventory::NoService;
        } else {
            // a{oa{sa{sv}}}
            const QDBusArgument objects = reply.arguments().constFirst().value<QDBusArgument>();
            objects.beginMap();
            while (!objects.atEnd()) {
                QDBusObjectPath path;
                objects.beginMapEntry();
                objects >> path;
                const bool voice = interfaceNames(objects).contains(voiceInterface);
                objects.endMapEntry();
                if (voice)
                    addModem(path.path());
            }
            objects.endMap();
            m_inventory = Inventory::Known;
        }
        emit modemsChanged();
        if (const std::optional<QString> waiting = std::exchange(m_waitingRequest, std::nullopt))
            requestCall(*waiting);
    });
}

void ModemManagerTelephony::serviceGone()
{
    ++m_generation;
    const QStringList modems = m_modems;
    for (const QString &modem : modems)
        removeModem(modem);
    m_inventory = Inventory::NoService;
    emit modemsChanged();
}

void ModemManagerTelephony::addModem(const QString &path)
{
    if (m_modems.contains(path))
        return;
    m_modems.append(path);
    std::sort(m_modems.begin(), m_modems.end());
    listCalls(path);
}

void ModemManagerTelephony::removeModem(const QString &path)
{
    m_modems.removeAll(path);
    const QStringList calls = m_calls.keys();
    for (const QString &call : calls) {
        if (m_calls.value(call).modem == path)
            endCall(call);
    }
}

void ModemManagerTelephony::listCalls(const QString &modem)
{
    // Calls that exist already are followed from now on, without reporting
    // how they stand: they were not started while we watched.
    const QDBusMessage message = QDBusMessage::createMethodCall(serviceName, modem, voiceInterface,
                                                                QStringLiteral("ListCalls"));
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, modem](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusPendingReply<QList<QDBusObjectPath>> reply = *call;
        if (reply.isError() || !m_modems.contains(modem))
            return;
        for (const QDBusObjectPath &path : reply.value())
            trackCall(path.path(), modem, false);
    });
}

void ModemManagerTelephony::requestCall(const QString &dialString)
{
    if (m_modems.isEmpty()) {
        emit requestFailed(tr("No modem is ready to place calls."));
        return;
    }
    m_confirmation.ask(dialString, this, [this, dialString] { createCall(dialString); });
}

void ModemManagerTelephony::createCall(const QString &dialString)
{
    if (m_modems.isEmpty()) {
        emit requestFailed(tr("No modem is ready to place calls."));
        return;
    }
    const QString modem = m_modems.constFirst();
    QDBusMessage message = QDBusMessage::createMethodCall(serviceName, modem, voiceInterface,
                                                          QStringLiteral("CreateCall"));
    message << QVariantMap{ { QStringLiteral("number"), dialString } };
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, modem](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *call;
        if (reply.isError()) {
            fail(errorText(reply.error()));
            return;
        }
        const QString path = reply.value().path();
        trackCall(path, modem, true);
        startCall(modem, path);
    });
}

void ModemManagerTelephony::startCall(const QString &modem, const QString &callPath)
{
    const QDBusMessage message = QDBusMessage::createMethodCall(serviceName, callPath, callInterface,
                                                                QStringLiteral("Start"));
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, modem, callPath](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusPendingReply<> reply = *call;
        if (!reply.isError())
            return;
        fail(errorText(reply.error()));
        // The call that could not start is of no use to anyone.
        QDBusMessage remove = QDBusMessage::createMethodCall(serviceName, modem, voiceInterface,
                                                             QStringLiteral("DeleteCall"));
        remove << QVariant::fromValue(QDBusObjectPath(callPath));
        m_bus.asyncCall(remove, callTimeoutMs);
    });
}

void ModemManagerTelephony::trackCall(const QString &path, const QString &modem, bool announce)
{
    if (path.isEmpty() || m_calls.contains(path))
        return;
    Call &tracked = m_calls[path];
    tracked.modem = modem;
    tracked.announce = announce;

    QDBusMessage message = QDBusMessage::createMethodCall(serviceName, path, propertiesInterface,
                                                          QStringLiteral("GetAll"));
    message << callInterface;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, path](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        auto found = m_calls.find(path);
        if (found == m_calls.end() || found->loaded)
            return;
        const QDBusPendingReply<QVariantMap> reply = *call;
        if (reply.isError()) {
            // The call went away before it could be read.
            m_calls.erase(found);
            return;
        }
        const QVariantMap properties = reply.value();
        if (!found->directionSeen)
            found->direction = properties.value(QStringLiteral("Direction")).toInt();
        if (!found->stateSeen)
            setState(*found, properties.value(QStringLiteral("State")).toInt());
        found->loaded = true;
        if (!found->announce) {
            found->reported = CallEvent{ path, found->direction == directionOutgoing, found->hasBeenActive,
                                         found->state == stateTerminated };
            return;
        }
        report(path);
    });
}

void ModemManagerTelephony::setState(Call &call, int state)
{
    call.state = state;
    // A held call has been answered before it could be put on hold.
    if (state == stateActive || state == stateHeld)
        call.hasBeenActive = true;
}

void ModemManagerTelephony::report(const QString &path)
{
    auto found = m_calls.find(path);
    if (found == m_calls.end() || !found->loaded)
        return;
    // A call is created in the unknown state and only becomes one once it
    // starts: one that ends without having started is never reported.
    if (!found->reported && (found->state == stateUnknown || found->state == stateTerminated || found->removed))
        return;
    const CallEvent event{ path, found->direction == directionOutgoing, found->hasBeenActive,
                           found->removed || found->state == stateTerminated };
    if (found->reported && found->reported->isOutgoing == event.isOutgoing
        && found->reported->hasConnected == event.hasConnected && found->reported->hasEnded == event.hasEnded)
        return;
    found->reported = event;
    emit callChanged(event);
}

void ModemManagerTelephony::endCall(const QString &path)
{
    auto found = m_calls.find(path);
    if (found == m_calls.end())
        return;
    found->removed = true;
    report(path);
    m_calls.remove(path);
}

void ModemManagerTelephony::fail(const QString &reason)
{
    emit requestFailed(tr("The call could not be placed: %1").arg(reason));
}

void ModemManagerTelephony::onInterfacesAdded(const QDBusMessage &message)
{
    const QList<QVariant> args = message.arguments();
    if (args.size() < 2)
        return;
    const QString path = args.at(0).value<QDBusObjectPath>().path();
    if (interfaceNames(args.at(1).value<QDBusArgument>()).contains(voiceInterface)) {
        addModem(path);
        emit modemsChanged();
    }
}

void ModemManagerTelephony::onInterfacesRemoved(const QDBusMessage &message)
{
    const QList<QVariant> args = message.arguments();
    if (args.size() < 2)
        return;
    const QString path = args.at(0).value<QDBusObjectPath>().path();
    if (m_modems.contains(path) && args.at(1).toStringList().contains(voiceInterface)) {
        removeModem(path);
        emit modemsChanged();
    }
}

void ModemManagerTelephony::onCallAdded(const QDBusMessage &message)
{
    if (!m_modems.contains(message.path()) || message.arguments().isEmpty())
        return;
    trackCall(message.arguments().constFirst().value<QDBusObjectPath>().path(), message.path(), true);
}

void ModemManagerTelephony::onCallDeleted(const QDBusMessage &message)
{
    if (message.arguments().isEmpty())
        return;
    endCall(message.arguments().constFirst().value<QDBusObjectPath>().path());
}

void ModemManagerTelephony::onCallStateChanged(const QDBusMessage &message)
{
    auto found = m_calls.find(message.path());
    if (found == m_calls.end() || message.arguments().size() < 2)
        return;
    setState(*found, message.arguments().at(1).toInt());
    found->stateSeen = true;
    report(message.path());
}

void ModemManagerTelephony::onPropertiesChanged(const QDBusMessage &message)
{
    const QList<QVariant> args = message.arguments();
    if (args.size() < 2 || args.at(0).toString() != callInterface)
        return;
    auto found = m_calls.find(message.path());
    if (found == m_calls.end())
        return;
    const QVariantMap changed = qdbus_cast<QVariantMap>(args.at(1));
    if (changed.contains(QStringLiteral("Direction"))) {
        found->direction = changed.value(QStringLiteral("Direction")).toInt();
        found->directionSeen = true;
    }
    if (changed.contains(QStringLiteral("State"))) {
        setState(*found, changed.value(QStringLiteral("State")).toInt());
        found->stateSeen = true;
    }
    report(message.path());
}
