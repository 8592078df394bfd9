#pragma once

#include "PrivateBus.h"

#include <QDBusMessage>
#include <QTemporaryDir>

// The real oFono daemon (ofonod) on a private bus with one modem: oFono's
// phonesim driver speaks AT commands over loopback TCP to
// tests/support/at-modem.py, which records every ATD line it is sent. The
// modem is powered and online, offering voice calls, once the constructor
// returns, or error() says why not. The machine's own system bus and oFono
// storage are never touched.
class OfonoDaemon
{
public:
    OfonoDaemon();
    ~OfonoDaemon();
    OfonoDaemon(const OfonoDaemon &) = delete;
    OfonoDaemon &operator=(const OfonoDaemon &) = delete;

    static bool isInstalled();
    // The modem's object path in oFono.
    static QString modemPath() { return QStringLiteral("/qtest"); }

    bool isReady() const { return m_error.isEmpty(); }
    // What went wrong, with the end of ofonod's log.
    QString error() const { return m_error; }
    QDBusConnection connection() { return m_bus.connection(); }

    // What followed "ATD" in every dial command the modem received, in order
    // ("0612" for "ATD0612;", "+33612345678I" for "ATD+33612345678I;").
    QStringList dials() const { return m_dials; }
    // Waits until oFono lists `count` calls on the modem.
    bool waitForCalls(int count);

    // The far end: starts ringing, answers, hangs up (NO CARRIER), or calls from `number`.
    void alert() { control("alert"); }
    void answer() { control("answer"); }
    void hangUp() { control("hangup"); }
    void ring(const QString &number) { control("ring " + number.toUtf8()); }

private:
    QString start();
    QString bringUp();
    QDBusMessage call(const QString &interface, const QString &method, const QVariantList &args = {});
    QVariant property(const QString &interface, const QString &name);
    void control(const QByteArray &command);

    PrivateBus m_bus;
    QTemporaryDir m_directory;
    QProcess m_modem;
    QProcess m_daemon;
    QStringList m_dials;
    QString m_error;
};
