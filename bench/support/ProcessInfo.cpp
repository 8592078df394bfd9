#include "ProcessInfo.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

namespace bench {

qint64 statusKb(const char *field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(field))
            return line.mid(qstrlen(field)).trimmed().split(' ').value(0).toLongLong();
    }
    return -1;
}

int runSelf(const QStringList &arguments)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QCoreApplication::applicationFilePath(), arguments);
    child.waitForFinished(120000);
    return child.exitCode();
}

} // namespace bench
