#pragma once

#include "Telephony.h"

#include <QStringList>

#include <optional>

// A call request as a telephony takes it: the visual separators people
// write numbers with (space, '-', '.', '(', ')', '/') dropped, digits, '+',
// '*', '#' and the pause characters (',', ';', 'p', 'w') kept.
//
// A request is not a call, and has no target, when its text holds anything
// else (letters, other symbols), when no digit is left after the prefix, or
// when the number is a supplementary-service or USSD code (it starts with
// '*' or '#' and ends with '#', as "*#06#" or "**21*0999123#"): those would
// change the subscriber's settings instead of placing a call.
struct DialTarget
{
    QString prefix; // empty for an emergency number: it is dialled as it is
    QString number;
    bool isEmergency = false;

    QString dialString() const { return prefix + number; }
    bool hasPause() const;

    // A number in `emergencyNumbers` (or 112 or 911) loses its prefix.
    static std::optional<DialTarget> of(const DialRequest &request, const QStringList &emergencyNumbers = {});
};
