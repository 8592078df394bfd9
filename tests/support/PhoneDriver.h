#pragma once

#include "RecordingTelephony.h"
#include "TestApp.h"

#include <QObject>
#include <QVariantList>

// What QML tests need of the phone and of the history file: the requests a
// recording telephony got, calls it reports on demand, and the call records
// as the app's history file holds them.
class PhoneDriver : public QObject
{
    Q_OBJECT
public:
    explicit PhoneDriver(TestApp &app, QObject *parent = nullptr) : QObject(parent), m_app(app) { }

    // Lowers both call flags, as after a call the app saw through.
    Q_INVOKABLE void resetCallFlags();

    Q_INVOKABLE void setCallsPossible(bool possible) { m_app.telephony->callsPossible = possible; }
    Q_INVOKABLE int openedCount() const { return int(m_app.telephony->opened.size()); }
    // The last dial string the telephony was asked about, and the last one
    // it was asked to call; empty when there was none.
    Q_INVOKABLE QString lastAsked() const { return m_app.telephony->asked.value(m_app.telephony->asked.size() - 1); }
    Q_INVOKABLE QString lastOpened() const { return m_app.telephony->opened.value(m_app.telephony->opened.size() - 1); }
    Q_INVOKABLE void report(const QString &id, bool outgoing, bool connected, bool ended) { m_app.telephony->report(id, outgoing, connected, ended); }

    // The records in the app's history file, read afresh from disk, each a
    // map of firstName, lastName, telephone and callHidden.
    Q_INVOKABLE QVariantList storedRows() const;

protected:
    TestApp &app() const { return m_app; }

private:
    TestApp &m_app;
};
