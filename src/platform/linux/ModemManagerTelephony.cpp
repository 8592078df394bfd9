#include "ModemManagerTelephony.h"

#include "modemmanagercallproxy.h"
#include "modemmanagervoiceproxy.h"
#include "objectmanagerproxy.h"
#include "propertiesproxy.h"

#include <QDBusMessage>

const QString ModemManagerTelephony::serviceName = QStringLiteral("org.freedesktop.ModemManager1");

namespace {

const QString managerPath = QStringLiteral("/org/freedesktop/ModemManager1");
const QString modemInterface = QStringLiteral("org.freedesktop.ModemManager1.Modem");
const QString simInterface = QStringLiteral("org.freedesktop.ModemManager1.Sim");

// MMCallDirection and MMCallState.
constexpr int directionOutgoing = 2;
constexpr int stateUnknown = 0;
constexpr int stateActive = 4;
constexpr int stateHeld = 5;
constexpr int stateTerminated = 7;

} // namespace

ModemManagerTelephony::ModemManagerTelephony(const QDBusConnection &bus, QObject *parent)
    : ModemTelephony(bus, serviceName, parent),
      m_manager(new ObjectManagerProxy(serviceName, managerPath, bus, this))
{
    m_manager->setTimeout(callTimeoutMs);
    // The object manager's signals are taken as messages: with Qt 6.4 a
    // signal whose maps hold arrays did not reach a typed slot in our tests.
    this->bus().connect(serviceName, managerPath, m_manager->interface(), QStringLiteral("InterfacesAdded"), this,
                        SLOT(onInterfacesAdded(QDBusMessage)));
    this->bus().connect(serviceName, managerPath, m_manager->interface(), QStringLiteral("InterfacesRemoved"), this,
                        SLOT(onInterfacesRemoved(QDBusMessage)));
    start();
}

void ModemManagerTelephony::onInterfacesAdded(const QDBusMessage &message)
{
    const QString path = message.arguments().value(0).value<QDBusObjectPath>().path();
    if (!path.isEmpty() && foundInterfaces(path, qdbus_cast<InterfaceProperties>(message.arguments().value(1))))
        emit modemsChanged();
}

void ModemManagerTelephony::readModems(int generation)
{
    whenDone(m_manager->GetManagedObjects(), this, [this, generation](const QDBusPendingReply<ManagedObjects> &reply) {
        if (!isCurrent(generation))
            return;
        if (!reply.isError()) {
            const ManagedObjects objects = reply.value();
            for (auto it = objects.cbegin(); it != objects.cend(); ++it)
                foundInterfaces(it.key().path(), it.value());
        }
        modemsRead(generation, reply);
    });
}

void ModemManagerTelephony::onInterfacesRemoved(const QDBusMessage &message)
{
    const QString path = message.arguments().value(0).value<QDBusObjectPath>().path();
    if (m_voices.contains(path) && message.arguments().value(1).toStringList().contains(ModemManagerVoiceProxy::staticInterfaceName())) {
        removeModem(path);
        emit modemsChanged();
    }
}

bool ModemManagerTelephony::foundInterfaces(const QString &path, const InterfaceProperties &interfaces)
{
    // A modem announced while the list was read is known already.
    if (m_voices.contains(path) || !interfaces.contains(ModemManagerVoiceProxy::staticInterfaceName()))
        return false;
    auto *voice = new ModemManagerVoiceProxy(serviceName, path, bus(), this);
    voice->setTimeout(callTimeoutMs);
    m_voices.insert(path, voice);
    addModem(path);
    connect(voice, &ModemManagerVoiceProxy::CallAdded, this,
            [this, path](const QDBusObjectPath &call) { trackCall(call.path(), path, true); });
    connect(voice, &ModemManagerVoiceProxy::CallDeleted, this,
            [this](const QDBusObjectPath &call) { endCall(call.path()); });
    // Calls that exist already are followed from now on, without reporting
    // how they stand: they were not started while we watched.
    whenDone(voice->ListCalls(), this, [this, path](const QDBusPendingReply<QList<QDBusObjectPath>> &reply) {
        if (reply.isError() || !m_voices.contains(path))
            return;
        for (const QDBusObjectPath &call : reply.value())
            trackCall(call.path(), path, false);
    });
    const QString sim = interfaces.value(modemInterface).value(QStringLiteral("Sim")).value<QDBusObjectPath>().path();
    if (sim.isEmpty() || sim == QLatin1String("/"))
        return true;
    PropertiesProxy simProperties(serviceName, sim, bus());
    whenDone(simProperties.GetAll(simInterface), this, [this, path](const QDBusPendingReply<QVariantMap> &reply) {
        if (!reply.isError())
            setEmergencyNumbers(path, reply.value().value(QStringLiteral("EmergencyNumbers")).toStringList());
    });
    return true;
}

void ModemManagerTelephony::forgetModem(const QString &modem)
{
    delete m_voices.take(modem);
}

void ModemManagerTelephony::dial(const QString &modem, const DialTarget &target)
{
    const QVariantMap properties{ { QStringLiteral("number"), target.dialString() } };
    whenDone(m_voices.value(modem)->CreateCall(properties), this, [this, modem](const QDBusPendingReply<QDBusObjectPath> &reply) {
        if (reply.isError()) {
            failRequest(reply.error());
            return;
        }
        const QString path = reply.value().path();
        trackCall(path, modem, true);
        ModemManagerCallProxy call(serviceName, path, bus());
        call.setTimeout(callTimeoutMs);
        whenDone(call.Start(), this, [this, modem, path](const QDBusPendingReply<> &started) {
            if (!started.isError())
                return;
            failRequest(started.error());
            // The call that could not start is of no use to anyone.
            if (ModemManagerVoiceProxy *voice = m_voices.value(modem))
                voice->DeleteCall(QDBusObjectPath(path));
        });
    });
}

void ModemManagerTelephony::trackCall(const QString &path, const QString &modem, bool announce)
{
    Call *call = path.isEmpty() ? nullptr : followCall(path, modem);
    if (!call)
        return;
    call->known = false;
    call->started = false;

    // A state that changes while the first reading is under way wins over it.
    auto stateSeen = std::make_shared<bool>(false);
    auto *proxy = new ModemManagerCallProxy(serviceName, path, bus(), this);
    call->proxy = proxy;
    connect(proxy, &ModemManagerCallProxy::StateChanged, this, [this, path, stateSeen](int, int state, uint) {
        if (Call *call = findCall(path)) {
            *stateSeen = true;
            setState(*call, state);
            report(path);
        }
    });

    PropertiesProxy properties(serviceName, path, bus());
    properties.setTimeout(callTimeoutMs);
    whenDone(properties.GetAll(ModemManagerCallProxy::staticInterfaceName()), this,
             [this, path, announce, stateSeen](const QDBusPendingReply<QVariantMap> &reply) {
                 Call *call = findCall(path);
                 if (!call || call->known)
                     return;
                 if (reply.isError()) {
                     // The call went away before it could be read.
                     forgetCall(path);
                     return;
                 }
                 call->isOutgoing = reply.value().value(QStringLiteral("Direction")).toInt() == directionOutgoing;
                 if (!*stateSeen)
                     setState(*call, reply.value().value(QStringLiteral("State")).toInt());
                 call->known = true;
                 report(path, announce);
             });
}

void ModemManagerTelephony::setState(Call &call, int state)
{
    call.started = state != stateUnknown;
    // A held call has been answered before it could be put on hold.
    if (state == stateActive || state == stateHeld)
        call.hasConnected = true;
    call.hasEnded = state == stateTerminated;
}
