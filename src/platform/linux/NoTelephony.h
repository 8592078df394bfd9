#pragma once

#include "Telephony.h"

// The telephony of a machine that cannot place calls: every request is refused.
class NoTelephony : public Telephony
{
    Q_OBJECT
public:
    using Telephony::Telephony;
    QString backendName() const override { return QStringLiteral("none"); }
    bool canOpen(const DialRequest &) override { return false; }
    void open(const DialRequest &) override { }
};
