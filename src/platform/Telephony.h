#pragma once

#include <QObject>
#include <QString>

// One change of one call on the device.
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
// a normal call) and the number, both as the app has them; a backend turns
// them into what its own telephony takes.
struct DialRequest
{
    QString prefix;
    QString number;

    QString dialString() const { return prefix + number; }
};

// The phone's telephony: call requests, and call-state events on the main
// thread, one per change of a call.
class Telephony : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    // A short name for the log line that announces the choice of backend.
    virtual QString backendName() const = 0;
    virtual bool canOpen(const DialRequest &request) = 0;
    // The outcome arrives later as events or a failure.
    virtual void open(const DialRequest &request) = 0;
    // A telephony that places the call itself (a modem) has the app ask the
    // user first; a desktop handler application asks on its own.
    virtual bool placesCallsItself() const { return false; }

signals:
    void callChanged(const CallEvent &call);
    void requestFailed(const QString &message);
};
