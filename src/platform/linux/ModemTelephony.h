#pragma once

#include "DialTarget.h"
#include "Telephony.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QHash>
#include <QStringList>

#include <optional>

class QDBusError;

// What the telephonies that drive a modem service on the system bus share:
// the voice modems (read when the service appears, emptied when it goes),
// the request that waits while they are read, their emergency numbers, and
// the calls being followed, one CallEvent per change. The user confirms a
// call before it is requested: open() dials at once.
class ModemTelephony : public Telephony
{
    Q_OBJECT
    enum class Inventory { Reading, Known, NoService };

public:
    // A call this service can place, and a voice modem known or being read.
    bool canOpen(const DialRequest &request) override;
    void open(const DialRequest &request) override;
    bool placesCallsItself() const override { return true; }

    bool mayPlaceCalls() const { return m_inventory == Inventory::Reading || !m_modems.isEmpty(); }
    // Sorted.
    QStringList voiceModems() const { return m_modems; }
    // Nothing when `request` is not a call or the service cannot place it.
    std::optional<DialTarget> targetOf(const DialRequest &request) const;

signals:
    void modemsChanged();

protected:
    // Replies of a modem that has gone quiet still end; a minute is plenty
    // for dialling and far from forever.
    static constexpr int callTimeoutMs = 60000;

    // Runs `then` with the finished call; the watcher goes with `context`.
    template<typename Reply, typename Then>
    static void whenDone(const Reply &pending, QObject *context, Then then)
    {
        auto *watcher = new QDBusPendingCallWatcher(pending, context);
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [then, watcher] {
            watcher->deleteLater();
            then(Reply(*watcher));
        });
    }

    ModemTelephony(const QDBusConnection &bus, const QString &serviceName, QObject *parent);

    // One call being followed.
    struct Call
    {
        QString modem;
        QObject *proxy = nullptr;  // the backend's, deleted with the call
        bool known = true;         // direction and state read
        bool started = true;       // placed or ringing, not only created
        bool isOutgoing = false;
        bool hasConnected = false;
        bool hasEnded = false;
        std::optional<CallEvent> reported;
    };

    // The last step of a constructor.
    void start() { readModems(m_generation); }
    // Answers with modemsRead(generation, ...).
    virtual void readModems(int generation) = 0;
    virtual bool accepts(const DialTarget &target) const = 0;
    virtual void dial(const QString &modem, const DialTarget &target) = 0;
    // Drops what was kept for a modem no longer used.
    virtual void forgetModem(const QString &modem) = 0;

    QDBusConnection &bus() { return m_bus; }
    // Whether a reply started in `generation` is still wanted.
    bool isCurrent(int generation) const { return generation == m_generation; }
    void modemsRead(int generation, const QDBusPendingCall &reply);
    void addModem(const QString &path);
    void removeModem(const QString &path);
    void setEmergencyNumbers(const QString &modem, const QStringList &numbers);

    Call *findCall(const QString &path)
    {
        const auto found = m_calls.find(path);
        return found == m_calls.end() ? nullptr : &*found;
    }
    // Starts following a call of `modem`; null when it is followed already.
    Call *followCall(const QString &path, const QString &modem);
    // Reports the call if it changed; a call that ends without ever having
    // started is never reported. Without `announce`, takes its present state
    // as already reported (a call that existed before it was watched).
    void report(const QString &path, bool announce = true);
    void endCall(const QString &path);
    void forgetCall(const QString &path);

    void failRequest(const QDBusError &error);

private:
    void ownerChanged(const QString &service, const QString &oldOwner, const QString &newOwner);
    void request(const DialRequest &request);

    QDBusConnection m_bus;
    Inventory m_inventory = Inventory::Reading;
    int m_generation = 0;
    QString m_owner; // the service's unique name, once known
    QStringList m_modems;
    QHash<QString, QStringList> m_emergencyNumbers;
    QHash<QString, Call> m_calls;
    std::optional<DialRequest> m_waitingRequest;
};
