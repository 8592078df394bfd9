// The confirmation before a call, from Service.makeCall through the dialog
// to the simulated modem on a private bus.
#include "CallConfirmation.h"
#include "ModemManagerTelephony.h"
#include "Platform.h"
#include "PrivateBus.h"
#include "QuickTestSetup.h"
#include "SimulatedModem.h"

#include <QQmlContext>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

// What the simulated modem was asked, for the QML test.
class ModemProbe : public QObject
{
    Q_OBJECT
public:
    explicit ModemProbe(SimulatedModem &modem) : m_modem(modem) { }
    Q_INVOKABLE QStringList createdNumbers() { return m_modem.createdNumbers(); }

private:
    SimulatedModem &m_modem;
};

class Setup : public QuickTestSetup
{
    Q_OBJECT
public slots:
    void cleanupTestCase()
    {
        m_modem.reset();
        m_bus.reset();
    }

protected:
    void prepare() override
    {
        m_bus = std::make_unique<PrivateBus>();
        m_modem = std::make_unique<SimulatedModem>(*m_bus, 150);
        m_probe = std::make_unique<ModemProbe>(*m_modem);
        Platform::setTelephony(std::make_unique<ModemManagerTelephony>(m_bus->connection(), CallConfirmation::shared()));
    }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("simulatedModem"), m_probe.get());
        context->setContextProperty(QStringLiteral("modemRunning"), m_modem->isRunning());
    }

private:
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<SimulatedModem> m_modem;
    std::unique_ptr<ModemProbe> m_probe;
};

QUICK_TEST_MAIN_WITH_SETUP(callconfirmation, Setup)
#include "tst_callconfirmation.moc"
