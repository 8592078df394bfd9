#include "SimulatedModem.h"

#include "PrivateBus.h"

#include <QProcess>
#include <QTest>

SimulatedModem::SimulatedModem(PrivateBus &bus, int stepMs, int modemAfterMs, const QStringList &extraArguments)
    : m_bus(bus)
{
    const QStringList arguments{ QStringLiteral(QUIETON_SOURCE_DIR "/tools/simulated-modem.py"),
                                 QStringLiteral("--bus"), bus.address(),
                                 QStringLiteral("--step-ms"), QString::number(stepMs),
                                 QStringLiteral("--modem-after-ms"), QString::number(modemAfterMs) };
    m_process = bus.startService(QStringLiteral("/usr/bin/python3"), arguments + extraArguments,
                                 QStringLiteral("org.freedesktop.ModemManager1"));
}

void SimulatedModem::stop()
{
    if (!m_process)
        return;
    lines();
    m_bus.stopService(std::exchange(m_process, nullptr));
}

QStringList SimulatedModem::lines()
{
    while (m_process && (m_process->canReadLine() || m_process->waitForReadyRead(0))) {
        if (m_process->canReadLine())
            m_lines.append(QString::fromUtf8(m_process->readLine()).trimmed());
    }
    return m_lines;
}

QStringList SimulatedModem::createdNumbers()
{
    QStringList numbers;
    for (const QString &line : lines()) {
        if (line.startsWith(QLatin1String("CreateCall ")))
            numbers.append(line.mid(11));
    }
    return numbers;
}

bool SimulatedModem::waitForLine(const QString &prefix, int timeoutMs)
{
    return QTest::qWaitFor([&] {
        const QStringList all = lines();
        return std::any_of(all.cbegin(), all.cend(), [&](const QString &line) { return line.startsWith(prefix); });
    }, timeoutMs);
}
