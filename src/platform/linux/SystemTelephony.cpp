#include "SystemTelephony.h"

#include "DesktopTelephony.h"
#include "ModemManagerTelephony.h"
#include "NoTelephony.h"
#include "OfonoTelephony.h"

#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QStandardPaths>
#include <QTextStream>

SystemTelephony::SystemTelephony(const QDBusConnection &systemBus, QObject *parent) : Telephony(parent)
{
    const QStringList services{ ModemManagerTelephony::serviceName, OfonoTelephony::serviceName };
    // Only the bus names are asked here, so that start-up stays cheap; the
    // modems themselves are read asynchronously.
    QDBusConnectionInterface *bus = systemBus.isConnected() ? systemBus.interface() : nullptr;
    for (const QString &service : services) {
        if (bus && bus->isServiceRegistered(service).value())
            m_running.insert(service);
    }
    auto *watcher = new QDBusServiceWatcher(services.first(), systemBus, QDBusServiceWatcher::WatchForOwnerChange, this);
    watcher->addWatchedService(services.last());
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &service, const QString &, const QString &newOwner) {
                if (newOwner.isEmpty())
                    m_running.remove(service);
                else
                    m_running.insert(service);
                choose();
            });

    m_modemManager = std::make_unique<ModemManagerTelephony>(systemBus);
    m_ofono = std::make_unique<OfonoTelephony>(systemBus);
    for (ModemTelephony *modems : { static_cast<ModemTelephony *>(m_modemManager.get()),
                                    static_cast<ModemTelephony *>(m_ofono.get()) }) {
        forward(*modems);
        connect(modems, &ModemTelephony::modemsChanged, this, &SystemTelephony::choose);
    }
    choose();
}

SystemTelephony::~SystemTelephony() = default;

void SystemTelephony::forward(Telephony &telephony)
{
    connect(&telephony, &Telephony::callChanged, this, &Telephony::callChanged);
    connect(&telephony, &Telephony::requestFailed, this, &Telephony::requestFailed);
}

void SystemTelephony::choose()
{
    const std::pair<QString, ModemTelephony *> modemServices[]{ { ModemManagerTelephony::serviceName, m_modemManager.get() },
                                                                { OfonoTelephony::serviceName, m_ofono.get() } };
    Telephony *chosen = nullptr;
    // A running service with voice modems (or whose modems are still being read) first.
    for (const auto &[service, modems] : modemServices) {
        if (!m_running.contains(service))
            continue;
        if (modems->mayPlaceCalls()) {
            chosen = modems;
            break;
        }
        if (!chosen)
            chosen = modems;
    }
    if (!chosen) {
        if (!m_withoutModem) {
            if (QStandardPaths::findExecutable(QStringLiteral("xdg-mime")).isEmpty())
                m_withoutModem = std::make_unique<NoTelephony>();
            else
                m_withoutModem = std::make_unique<DesktopTelephony>();
            forward(*m_withoutModem);
        }
        chosen = m_withoutModem.get();
    }
    if (chosen == m_current)
        return;
    m_current = chosen;
    QTextStream(stdout) << "Telephony: " << m_current->backendName() << Qt::endl;
}
