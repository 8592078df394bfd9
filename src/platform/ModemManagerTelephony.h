#pragma once

#include "Telephony.h"

#include <QDBusConnection>
#include <QHash>
#include <QStringList>

#include <optional>

class CallConfirmation;
class QDBusMessage;
class QDBusServiceWatcher;

// Places calls through ModemManager on the system bus, the telephony service
// of most Linux phones.
//
// It keeps a list of the modems that offer voice calls (read with the object
// manager, then followed through InterfacesAdded/InterfacesRemoved and the
// service coming and going) and follows every call of those modems. A call
// request is first confirmed by the user (CallConfirmation), then becomes
// Voice.CreateCall with the dial string as the number, then Call.Start. Call
// events come from each call's Direction and State. Every D-Bus call is
// asynchronous: nothing here waits for the modem.
class ModemManagerTelephony : public Telephony
{
    Q_OBJECT
public:
    static const QString serviceName;

    explicit ModemManagerTelephony(const QDBusConnection &bus, CallConfirmation &confirmation,
                                   QObject *parent = nullptr);

    QString backendName() const override { return QStringLiteral("ModemManager"); }
    // True while a voice modem is known, and while the modems are still
    // being read (the request then waits for the answer).
    bool canOpen(const DialRequest &request) override;
    void open(const DialRequest &request) override;
    bool placesCallsItself() const override { return true; }

    // The object paths of the voice-capable modems, sorted.
    QStringList voiceModems() const;

signals:
    // The list of voice modems was read or changed.
    void modemsChanged();

private slots:
    void onInterfacesAdded(const QDBusMessage &message);
    void onInterfacesRemoved(const QDBusMessage &message);
    void onCallAdded(const QDBusMessage &message);
    void onCallDeleted(const QDBusMessage &message);
    void onCallStateChanged(const QDBusMessage &message);
    void onPropertiesChanged(const QDBusMessage &message);

private:
    enum class Inventory { Reading, Known, NoService };

    struct Call
    {
        QString modem;
        bool loaded = false;   // Direction and State read
        bool announce = false; // a new call: its first state is reported too
        int direction = 0;
        int state = 0;
        bool directionSeen = false; // set by a signal while the first read was under way
        bool stateSeen = false;
        bool hasBeenActive = false;
        bool removed = false;
        std::optional<CallEvent> reported;
    };

    void readModems();
    void serviceGone();
    void addModem(const QString &path);
    void removeModem(const QString &path);
    void listCalls(const QString &modem);
    void requestCall(const QString &dialString);
    void createCall(const QString &dialString);
    void startCall(const QString &modem, const QString &callPath);
    void trackCall(const QString &path, const QString &modem, bool announce);
    void setState(Call &call, int state);
    void report(const QString &path);
    void endCall(const QString &path);
    void fail(const QString &reason);

    QDBusConnection m_bus;
    CallConfirmation &m_confirmation;
    QDBusServiceWatcher *m_watcher;
    Inventory m_inventory = Inventory::Reading;
    int m_generation = 0;
    QStringList m_modems;
    QHash<QString, Call> m_calls;
    std::optional<QString> m_waitingRequest;
};
