#pragma once

#include "DBusTypes.h"
#include "ModemTelephony.h"

class OfonoManagerProxy;
class OfonoModemProxy;
class OfonoVoiceCallManagerProxy;
class QDBusMessage;

// Places calls through oFono on the system bus.
//
// It follows the modems that offer org.ofono.VoiceCallManager (GetModems,
// ModemAdded/ModemRemoved and each modem's Interfaces property), their
// EmergencyNumbers, and the calls of those modems (CallAdded/CallRemoved and
// each call's State). A call becomes VoiceCallManager.Dial(number,
// hide_callerid). oFono takes a number only as an optional '+' then 1 to 80
// of 0-9, '*' and '#': a leading caller-ID code becomes its own per-call
// switch ("#31#" + number is Dial(number, "enabled"), "*31#" + number is
// Dial(number, "disabled")), anything else is dialled as it is when oFono
// takes it, and refused otherwise.
class OfonoTelephony : public ModemTelephony
{
    Q_OBJECT
public:
    static const QString serviceName;

    explicit OfonoTelephony(const QDBusConnection &bus, QObject *parent = nullptr);

    QString backendName() const override { return QStringLiteral("oFono"); }

    // Dial's two arguments for `target`, or nothing when oFono cannot take it.
    static std::optional<std::pair<QString, QString>> dialArguments(const DialTarget &target);

protected:
    void readModems(int generation) override;
    bool accepts(const DialTarget &target) const override { return dialArguments(target).has_value(); }
    void dial(const QString &modem, const DialTarget &target) override;
    void forgetModem(const QString &modem) override;

private slots:
    void onModemAdded(const QDBusMessage &message);

private:
    struct Modem
    {
        OfonoModemProxy *modem = nullptr;
        OfonoVoiceCallManagerProxy *calls = nullptr; // while it offers voice calls
    };

    void updateModem(const QString &path, const QStringList &interfaces);
    void addCall(const QString &path, const QString &modem, const QString &state, bool announce);
    void applyState(Call &call, const QString &state);

    OfonoManagerProxy *m_manager;
    QHash<QString, Modem> m_modemProxies;
};
