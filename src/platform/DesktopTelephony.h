#pragma once

#include "Telephony.h"

#include <optional>

// Hands call requests to the desktop's registered tel: handler. It reports
// "cannot open" when no handler is registered, and sees no call events.
class DesktopTelephony : public Telephony
{
    Q_OBJECT
public:
    using Telephony::Telephony;

    // Whether the desktop has a tel: handler (asked once, then remembered).
    static bool handlerRegistered();
    // The tel: address handed to the handler: '#' and spaces percent-encoded.
    static QString telAddress(const QString &dialString);

    QString backendName() const override { return QStringLiteral("desktop tel: handler"); }
    bool canOpen(const DialRequest &request) override;
    void open(const DialRequest &request) override;
};
