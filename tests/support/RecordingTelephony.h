#pragma once

#include "Telephony.h"

#include <QStringList>

// A telephony that records the requests it gets and reports calls on demand.
class RecordingTelephony : public Telephony
{
    Q_OBJECT
public:
    using Telephony::Telephony;

    bool callsPossible = true;
    QStringList asked;
    QStringList opened;

    QString backendName() const override { return QStringLiteral("recording"); }
    bool canOpen(const DialRequest &request) override;
    void open(const DialRequest &request) override;

    // Reports one change of a call to whoever observes the telephony.
    void report(const QString &id, bool outgoing, bool connected, bool ended);
};
