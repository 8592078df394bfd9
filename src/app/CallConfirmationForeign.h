#pragma once

#include "CallConfirmation.h"

#include <QJSEngine>
#include <QQmlEngine>
#include <QtQml/qqmlregistration.h>

// Makes the platform's CallConfirmation the QML singleton CallConfirmation,
// so that the window can show the question and pass on the answer.
class CallConfirmationForeign
{
    Q_GADGET
    QML_FOREIGN(CallConfirmation)
    QML_NAMED_ELEMENT(CallConfirmation)
    QML_SINGLETON

public:
    static CallConfirmation *create(QQmlEngine *, QJSEngine *)
    {
        CallConfirmation *instance = &CallConfirmation::shared();
        QJSEngine::setObjectOwnership(instance, QJSEngine::CppOwnership);
        return instance;
    }
};
