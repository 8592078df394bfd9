#pragma once

#include "Telephony.h"

#include <QStringList>

// A telephony that records the requests it gets and reports calls on demand.
// Like the real ones, it refuses what is no call: no digit in the number, a
// character that is neither a digit, a dial sign nor a written separator,
// or a service code (*#06#, **21*0999123#).
class RecordingTelephony : public Telephony
{
    Q_OBJECT
public:
    using Telephony::Telephony;

    bool callsPossible = true;
    // Whether it dials by itself, as a modem does (the app then confirms).
    bool dialsItself = false;
    QStringList asked;
    QStringList opened;

    QString backendName() const override { return QStringLiteral("recording"); }
    bool canOpen(const DialRequest &request) override;
    bool placesCallsItself() const override { return dialsItself; }
    void open(const DialRequest &request) override;

    // Reports one change of a call to whoever observes the telephony.
    void report(const QString &id, bool outgoing, bool connected, bool ended);
};
