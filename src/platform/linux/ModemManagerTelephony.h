#pragma once

#include "DBusTypes.h"
#include "ModemTelephony.h"

class ModemManagerVoiceProxy;
class ObjectManagerProxy;
class QDBusMessage;

// Places calls through ModemManager on the system bus, the telephony service
// of most Linux phones.
//
// The voice modems are read with the object manager and followed through
// InterfacesAdded/InterfacesRemoved. A call becomes Voice.CreateCall with the
// dial string as the number, then Call.Start. ModemManager checks nothing of
// the number but that it is there, and an AT modem gets it as "ATD<number>;",
// where a 3GPP modem ignores the pause modifiers ',' and 'W' (the digits after
// them would join the number) and ';' ends the command: a dial string with a
// pause is refused. Emergency numbers are the SIM's EmergencyNumbers with
// 112 and 911. Call events come from each call's Direction and State.
class ModemManagerTelephony : public ModemTelephony
{
    Q_OBJECT
public:
    static const QString serviceName;

    explicit ModemManagerTelephony(const QDBusConnection &bus, QObject *parent = nullptr);

    QString backendName() const override { return QStringLiteral("ModemManager"); }

protected:
    void readModems(int generation) override;
    // A pause would join the digits after it to the number.
    bool accepts(const DialTarget &target) const override { return !target.hasPause(); }
    void dial(const QString &modem, const DialTarget &target) override;
    void forgetModem(const QString &modem) override;

private slots:
    void onInterfacesAdded(const QDBusMessage &message);
    void onInterfacesRemoved(const QDBusMessage &message);

private:
    // Follows the modem at `path` if it is a voice modem not known yet.
    bool foundInterfaces(const QString &path, const InterfaceProperties &interfaces);
    void trackCall(const QString &path, const QString &modem, bool announce);
    void setState(Call &call, int state);

    ObjectManagerProxy *m_manager;
    QHash<QString, ModemManagerVoiceProxy *> m_voices;
};
