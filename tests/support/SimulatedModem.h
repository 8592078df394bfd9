#pragma once

#include <QStringList>

class PrivateBus;
class QProcess;

// tools/simulated-modem.py running on a private bus, with what it reports.
class SimulatedModem
{
public:
    // `stepMs` is the time between two states of a call, `modemAfterMs`
    // delays the modem's appearance, `extraArguments` go to the simulator
    // as they are (e.g. "--no-network").
    SimulatedModem(PrivateBus &bus, int stepMs = 150, int modemAfterMs = 0, const QStringList &extraArguments = {});
    ~SimulatedModem() { stop(); }
    SimulatedModem(const SimulatedModem &) = delete;
    SimulatedModem &operator=(const SimulatedModem &) = delete;

    bool isRunning() const { return m_process != nullptr; }
    // Stops the simulator (its name leaves the bus).
    void stop();

    // Every line it printed so far ("CreateCall #31#0612", "State <path> 4", ...).
    QStringList lines();
    // The numbers it was asked to create calls for, in order.
    QStringList createdNumbers();
    // Waits until it printed a line that starts with `prefix`.
    bool waitForLine(const QString &prefix, int timeoutMs = 10000);

private:
    PrivateBus &m_bus;
    QProcess *m_process = nullptr;
    QStringList m_lines;
};
