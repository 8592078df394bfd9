#pragma once

#include "Telephony.h"

#include <QDBusConnection>
#include <QHash>
#include <QStringList>

#include <optional>

class CallConfirmation;
class QDBusMessage;
class QDBusServiceWatcher;

// Places calls through oFono on the system bus.
//
// It follows the modems that offer org.ofono.VoiceCallManager (GetModems,
// ModemAdded/ModemRemoved and each modem's Interfaces property) and the calls
// of those modems (CallAdded/CallRemoved and each call's State). A call
// request is confirmed by the user (CallConfirmation), then becomes
// VoiceCallManager.Dial(number, "default"): the dial string's own prefix
// decides whether the number is withheld. Every D-Bus call is asynchronous.
class OfonoTelephony : public Telephony
{
    Q_OBJECT
public:
    static const QString serviceName;

    explicit OfonoTelephony(const QDBusConnection &bus, CallConfirmation &confirmation, QObject *parent = nullptr);

    QString backendName() const override { return QStringLiteral("oFono"); }
    // True while a voice modem is known, and while the modems are still
    // being read (the request then waits for the answer).
    bool canOpen(const DialRequest &request) override;
    void open(const DialRequest &request) override;
    bool placesCallsItself() const override { return true; }

    // Whether oFono accepts `dialString` as a number: an optional '+' and
    // 1 to 80 of the characters 0-9, '*' and '#'.
    static bool isDialableNumber(const QString &dialString);

    // The object paths of the modems that offer voice calls, sorted.
    QStringList voiceModems() const;

signals:
    // The list of voice modems was read or changed.
    void modemsChanged();

private slots:
    void onModemAdded(const QDBusMessage &message);
    void onModemRemoved(const QDBusMessage &message);
    void onModemPropertyChanged(const QDBusMessage &message);
    void onCallAdded(const QDBusMessage &message);
    void onCallRemoved(const QDBusMessage &message);
    void onCallPropertyChanged(const QDBusMessage &message);

private:
    enum class Inventory { Reading, Known, NoService };

    struct Call
    {
        QString modem;
        bool isOutgoing = false;
        bool hasConnected = false;
        bool hasEnded = false;
        std::optional<CallEvent> reported;
    };

    void readModems();
    void serviceGone();
    void updateModem(const QString &path, const QStringList &interfaces);
    void removeModem(const QString &path);
    void readCalls(const QString &modem);
    void requestCall(const QString &dialString);
    void dial(const QString &dialString);
    Call &addCall(const QString &path, const QString &modem, const QString &state);
    void applyState(Call &call, const QString &state);
    void report(const QString &path);
    void endCall(const QString &path);

    QDBusConnection m_bus;
    CallConfirmation &m_confirmation;
    QDBusServiceWatcher *m_watcher;
    Inventory m_inventory = Inventory::Reading;
    int m_generation = 0;
    QStringList m_modems;
    QHash<QString, Call> m_calls;
    std::optional<QString> m_waitingRequest;
};
