#include "SimulatedModem.h"

#include "PrivateBus.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QTest>

SimulatedModem::SimulatedModem(PrivateBus &bus, int stepMs, int modemAfterMs, const QStringList &extraArguments)
    : m_bus(bus)
{
    const QStringList arguments = QStringList{ scriptPath(),
                                               QStringLiteral("--bus"), bus.address(),
                                               QStringLiteral("--step-ms"), QString::number(stepMs),
                                               QStringLiteral("--modem-after-ms"), QString::number(modemAfterMs) }
            + extraArguments;
    m_process = bus.startService(QStringLiteral("/usr/bin/python3"), arguments,
                                 QStringLiteral("org.freedesktop.ModemManager1"));
}

SimulatedModem::~SimulatedModem()
{
    stop();
}

void SimulatedModem::stop()
{
    if (!m_process)
        return;
    lines();
    m_bus.stopService(m_process);
    m_process = nullptr;
}

QStringList SimulatedModem::lines()
{
    if (m_process) {
        while (m_process->canReadLine() || m_process->waitForReadyRead(0)) {
            if (!m_process->canReadLine())
                continue;
            m_lines.append(QString::fromUtf8(m_process->readLine()).trimmed());
        }
    }
    return m_lines;
}

QStringList SimulatedModem::createdNumbers()
{
    QStringList numbers;
    const QString marker = QStringLiteral("CreateCall ");
    for (const QString &line : lines()) {
        if (line.startsWith(marker))
            numbers.append(line.mid(marker.size()));
    }
    return numbers;
}

bool SimulatedModem::waitForLine(const QString &prefix, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    do {
        for (const QString &line : lines()) {
            if (line.startsWith(prefix))
                return true;
        }
        QTest::qWait(20);
    } while (!deadline.hasExpired());
    return false;
}

QString SimulatedModem::scriptPath()
{
    return QStringLiteral(QUIETON_SOURCE_DIR "/tools/simulated-modem.py");
}
