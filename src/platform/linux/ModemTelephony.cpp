#include "ModemTelephony.h"

#include "DBusTypes.h"

#include <QDBusError>
#include <QDBusMetaType>
#include <QDBusServiceWatcher>

#include <algorithm>

ModemTelephony::ModemTelephony(const QDBusConnection &bus, const QString &serviceName, QObject *parent)
    : Telephony(parent), m_bus(bus)
{
    qDBusRegisterMetaType<InterfaceProperties>();
    qDBusRegisterMetaType<ManagedObjects>();
    qDBusRegisterMetaType<ObjectProperties>();
    qDBusRegisterMetaType<ObjectPropertiesList>();
    auto *watcher = new QDBusServiceWatcher(serviceName, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &ModemTelephony::ownerChanged);
}

std::optional<DialTarget> ModemTelephony::targetOf(const DialRequest &request) const
{
    QStringList emergency;
    for (const QStringList &numbers : m_emergencyNumbers)
        emergency += numbers;
    std::optional<DialTarget> target = DialTarget::of(request, emergency);
    if (target && !accepts(*target))
        return std::nullopt;
    return target;
}

bool ModemTelephony::canOpen(const DialRequest &request)
{
    return targetOf(request) && m_inventory != Inventory::NoService && mayPlaceCalls();
}

void ModemTelephony::open(const DialRequest &request)
{
    if (m_inventory == Inventory::Reading) {
        // Asked right at start-up (a widget link): go on once the modems are known.
        m_waitingRequest = request;
        return;
    }
    this->request(request);
}

void ModemTelephony::request(const DialRequest &request)
{
    const std::optional<DialTarget> target = targetOf(request);
    if (!target) {
        emit requestFailed(tr("The phone cannot call this number."));
        return;
    }
    if (m_modems.isEmpty()) {
        emit requestFailed(tr("No modem is ready to place calls."));
        return;
    }
    dial(m_modems.constFirst(), *target);
}

void ModemTelephony::ownerChanged(const QString &, const QString &oldOwner, const QString &newOwner)
{
    // The watcher may still hear of a change made before it was set up: the
    // service appearing under the owner whose modems are known already, or
    // an earlier owner going. Reading the same modems again would end the
    // calls under way and let a request made meanwhile find no modem.
    if (newOwner == m_owner || (newOwner.isEmpty() && oldOwner != m_owner))
        return;
    m_owner = newOwner;
    const bool serviceRunning = !newOwner.isEmpty();
    ++m_generation;
    const QStringList modems = m_modems;
    for (const QString &modem : modems)
        removeModem(modem);
    m_inventory = serviceRunning ? Inventory::Reading : Inventory::NoService;
    if (serviceRunning)
        readModems(m_generation);
    // Once read, the new modems are announced.
    if (!serviceRunning || !modems.isEmpty())
        emit modemsChanged();
    // A request that waited for the modems of a service that went fails now.
    if (!serviceRunning && m_waitingRequest)
        request(*std::exchange(m_waitingRequest, std::nullopt));
}

void ModemTelephony::modemsRead(int generation, const QDBusPendingCall &reply)
{
    if (!isCurrent(generation))
        return;
    const bool serviceAnswered = !reply.isError();
    if (serviceAnswered)
        m_owner = reply.reply().service();
    m_inventory = serviceAnswered ? Inventory::Known : Inventory::NoService;
    emit modemsChanged();
    if (m_waitingRequest)
        request(*std::exchange(m_waitingRequest, std::nullopt));
}

void ModemTelephony::addModem(const QString &path)
{
    if (m_modems.contains(path))
        return;
    m_modems.append(path);
    std::sort(m_modems.begin(), m_modems.end());
}

void ModemTelephony::removeModem(const QString &path)
{
    if (!m_modems.removeAll(path))
        return;
    m_emergencyNumbers.remove(path);
    const QStringList calls = m_calls.keys();
    for (const QString &call : calls) {
        if (m_calls.value(call).modem == path)
            endCall(call);
    }
    forgetModem(path);
}

void ModemTelephony::setEmergencyNumbers(const QString &modem, const QStringList &numbers)
{
    if (m_modems.contains(modem))
        m_emergencyNumbers.insert(modem, numbers);
}

ModemTelephony::Call *ModemTelephony::followCall(const QString &path, const QString &modem)
{
    if (m_calls.contains(path))
        return nullptr;
    Call &call = m_calls[path];
    call.modem = modem;
    return &call;
}

void ModemTelephony::report(const QString &path, bool announce)
{
    Call *call = findCall(path);
    if (!call)
        return;
    const CallEvent event{ path, call->isOutgoing, call->hasConnected, call->hasEnded };
    if (!announce)
        call->reported = event;
    if (!call->known || call->reported == event)
        return;
    if (!call->reported && (!call->started || call->hasEnded))
        return;
    call->reported = event;
    emit callChanged(event);
}

void ModemTelephony::endCall(const QString &path)
{
    Call *call = findCall(path);
    if (!call)
        return;
    call->hasEnded = true;
    report(path);
    forgetCall(path);
}

void ModemTelephony::forgetCall(const QString &path)
{
    delete m_calls.take(path).proxy;
}

void ModemTelephony::failRequest(const QDBusError &error)
{
    const QString reason = error.message().isEmpty() ? error.name() : error.message();
    emit requestFailed(tr("The call could not be placed: %1").arg(reason));
}
