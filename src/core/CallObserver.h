#pragma once

#include "Telephony.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include "CallObserverDelegate.h"

// Watches the phone's calls and hands every change of every call to its
// delegate, while one is set. Changes arrive on the main thread.
class CallObserver : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main screen's model")
    Q_PROPERTY(CallObserverDelegate *delegate READ delegate NOTIFY delegateChanged)

public:
    explicit CallObserver(Telephony &telephony, QObject *parent = nullptr);

    CallObserverDelegate *delegate() const { return m_delegate; }
    // null clears it.
    Q_INVOKABLE void setDelegate(CallObserverDelegate *delegate);

signals:
    void delegateChanged();

private:
    void forward(const CallEvent &call);

    QPointer<CallObserverDelegate> m_delegate;
};
