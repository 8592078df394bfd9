#include "RecordingTelephony.h"

bool RecordingTelephony::canOpen(const QString &dialString)
{
    asked.append(dialString);
    return callsPossible;
}

void RecordingTelephony::open(const QString &dialString)
{
    opened.append(dialString);
}

void RecordingTelephony::report(const QString &id, bool outgoing, bool connected, bool ended)
{
    emit callChanged(CallEvent{ id, outgoing, connected, ended });
}
