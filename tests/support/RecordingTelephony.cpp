#include "RecordingTelephony.h"

#include <QRegularExpression>

bool RecordingTelephony::canOpen(const DialRequest &request)
{
    asked.append(request.dialString());
    static const QRegularExpression separators(QStringLiteral("[ ().\\-/]"));
    static const QRegularExpression call(QStringLiteral("^(?![*#].*#$)[0-9+*#,;]*[0-9][0-9+*#,;]*$"));
    return callsPossible && call.match(QString(request.number).remove(separators)).hasMatch();
}

void RecordingTelephony::open(const DialRequest &request)
{
    opened.append(request.dialString());
}

void RecordingTelephony::report(const QString &id, bool outgoing, bool connected, bool ended)
{
    emit callChanged(CallEvent{ id, outgoing, connected, ended });
}
