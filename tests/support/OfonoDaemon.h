#pragma once

#include "PrivateBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariantList>

// The real oFono daemon (ofonod) on a private system bus, with one modem:
// oFono's phonesim driver speaks AT commands over loopback TCP to
// tests/support/at-modem.py, which records every ATD line it is sent.
//
// The bus and the modem start at once; ofonod starts with them, or later
// with startDaemon() (to show an app picking oFono up). startDaemon() powers
// the modem and brings it online until it offers org.ofono.VoiceCallManager.
// The machine's own system bus and oFono storage are never touched.
// Everything started is stopped on destruction.
class OfonoDaemon
{
public:
    enum class Start { Now, Later };

    explicit OfonoDaemon(Start start = Start::Now);
    ~OfonoDaemon();
    OfonoDaemon(const OfonoDaemon &) = delete;
    OfonoDaemon &operator=(const OfonoDaemon &) = delete;

    // Whether ofonod is installed at all (tests skip without it).
    static bool isInstalled();

    // Starts ofonod and brings the modem online; false (with error()) when
    // it did not come up in time.
    bool startDaemon();
    // Stops ofonod: org.ofono leaves the bus.
    void stopDaemon();
    bool isReady() const { return m_ready; }
    // What went wrong, with the end of ofonod's log.
    QString error() const { return m_error; }

    QString address() const { return m_bus.address(); }
    QDBusConnection connection() { return m_bus.connection(); }
    // The modem's object path in oFono.
    static QString modemPath();
    // A blocking oFono method call, on the modem unless `path` says otherwise.
    QDBusMessage call(const QString &interface, const QString &method, const QVariantList &args = {},
                      const QString &path = QString());

    // What followed "ATD" in every dial command the modem received, in order
    // ("0612" for "ATD0612;", "+33612345678I" for "ATD+33612345678I;").
    QStringList dials() const { return m_dials; }
    // The next dial command not taken yet, waiting for it; empty after the time limit.
    QString takeDial(int timeoutMs = 10000);

    // Waits until oFono lists `count` calls on the modem.
    bool waitForCalls(int count, int timeoutMs = 10000);

    // The other side of the call: starts ringing, answers, hangs up (NO CARRIER).
    void alert() { control("alert"); }
    void answer() { control("answer"); }
    void hangUp() { control("hangup"); }
    // An incoming call from `number` (RING and +CLIP).
    void ring(const QString &number) { control("ring " + number.toUtf8()); }

private:
    bool startModem();
    bool bringUp();
    void fail(const QString &what);
    void control(const QByteArray &command);
    // The properties of one oFono interface of the modem.
    QVariantMap properties(const QString &interface);

    PrivateBus m_bus{ PrivateBus::Type::System };
    QTemporaryDir m_directory;
    QProcess m_modem;
    QProcess m_daemon;
    int m_port = 0;
    QStringList m_dials;
    int m_taken = 0;
    bool m_ready = false;
    QString m_error;
};
