#include "RecordingTelephony.h"

bool RecordingTelephony::canOpen(const DialRequest &request)
{
    asked.append(request.dialString());
    return callsPossible;
}

void RecordingTelephony::open(const DialRequest &request)
{
    opened.append(request.dialString());
}

void RecordingTelephony::report(const QString &id, bool outgoing, bool connected, bool ended)
{
    emit callChanged(CallEvent{ id, outgoing, connected, ended });
}
