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

    bool operator==(const CallEvent &) const = default;
};
Q_DECLARE_METATYPE(CallEvent)

// One call request: the caller-ID code put in front of the number (empty for
// a normal call) and the number, both exactly as the app has them ('#', '*',
// '+' and spaces included). A backend turns them into what its own telephony
// takes.
struct DialRequest
{
    QString prefix;
    QString number;

    // What the user sees and the log shows: the prefix immediately followed by the number.
    QString dialString() const { return prefix + number; }
};

// The phone's telephony: call requests and call-state events.
//
// Events are delivered on the main thread, one per change of a call.
class Telephony : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    // A short name for the log line that announces the choice of backend.
    virtual QString backendName() const = 0;
    // Whether the call can be requested at all.
    virtual bool canOpen(const DialRequest &request) = 0;
    // Requests the call; the outcome arrives later as events or a failure.
    virtual void open(const DialRequest &request) = 0;
    // Whether this telephony places the call itself (a modem), so that the
    // app asks the user to confirm first, as a phone's own dialler does. A
    // desktop handler application asks on its own.
    virtual bool placesCallsItself() const { return false; }

signals:
    void callChanged(const CallEvent &call);
    // A request the telephony refused (bad number, no network), for a short notice.
    void requestFailed(const QString &message);
};
