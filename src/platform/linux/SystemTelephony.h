#pragma once

#include "Telephony.h"

#include <QDBusConnection>
#include <QSet>

#include <memory>

class ModemManagerTelephony;
class OfonoTelephony;

// The telephony of the moment: ModemManager when it runs, else oFono, else
// the desktop's tel: handler (when xdg-mime is there), else none; a modem
// service with voice modems first. Each change is logged with a
// "Telephony: " line. The modem telephonies live as long as this one, so
// that a call that ends when its service goes is still reported.
class SystemTelephony : public Telephony
{
    Q_OBJECT
public:
    explicit SystemTelephony(const QDBusConnection &systemBus, QObject *parent = nullptr);
    ~SystemTelephony() override;

    QString backendName() const override { return m_current->backendName(); }
    bool canOpen(const DialRequest &request) override { return m_current->canOpen(request); }
    void open(const DialRequest &request) override { m_current->open(request); }
    bool placesCallsItself() const override { return m_current->placesCallsItself(); }

private:
    void choose();
    void forward(Telephony &telephony);

    QSet<QString> m_running;
    std::unique_ptr<ModemManagerTelephony> m_modemManager;
    std::unique_ptr<OfonoTelephony> m_ofono;
    std::unique_ptr<Telephony> m_withoutModem;
    Telephony *m_current = nullptr;
};
