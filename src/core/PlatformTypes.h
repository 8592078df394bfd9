#pragma once

#include "CallConfirmation.h"
#include "UrlOpener.h"

#include <QtQml/qqml.h>

// The platform objects that screens are handed, known to QML by name.
struct CallConfirmationForeign
{
    Q_GADGET
    QML_FOREIGN(CallConfirmation)
    QML_NAMED_ELEMENT(CallConfirmation)
    QML_UNCREATABLE("Made at start-up")
};

struct UrlOpenerForeign
{
    Q_GADGET
    QML_FOREIGN(UrlOpener)
    QML_NAMED_ELEMENT(UrlOpener)
    QML_UNCREATABLE("A platform part")
};
