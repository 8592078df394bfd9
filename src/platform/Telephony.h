#pragma once

#include <QObject>
#include <QString>

// One change of one call on the device, as the call observer sees it.
struct CallEvent
{
    QString callId;
    bool isOutgoing = false;
    bool hasConnected = false;
    bool hasEnded = false;
};
Q_DECLARE_METATYPE(CallEvent)

// The phone's telephony: call requests and call-state events.
//
// A request receives the dial string exactly as the app composed it
// ('#', '*', '+' and spaces included); a backend encodes it only where its
// own format needs that. Events are delivered on the main thread, one per
// change of a call.
class Telephony : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    // A short name for the log line that announces the choice of backend.
    virtual QString backendName() const = 0;
    // Whether a call to `dialString` can be requested at all.
    virtual bool canOpen(const QString &dialString) = 0;
    // Requests the call; the outcome arrives later as events or a failure.
    virtual void open(const QString &dialString) = 0;

signals:
    void callChanged(const CallEvent &call);
    // A request the telephony refused (bad number, no network), for a short notice.
    void requestFailed(const QString &message);
};
