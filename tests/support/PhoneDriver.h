#pragma once

#include <QObject>
#include <QVariantList>

#include "TestApp.h"

class RecordingTelephony;
class TestApp;

// What QML tests need of the phone and of the history file: the requests a
// recording telephony got, calls it reports on demand, and the call records
// as the app's history file holds them.
class PhoneDriver : public QObject
{
    Q_OBJECT
public:
    explicit PhoneDriver(TestApp &app, QObject *parent = nullptr);

    // Lowers both call flags, as after a call the app saw through.
    Q_INVOKABLE void resetCallFlags();

    Q_INVOKABLE void setCallsPossible(bool possible);
    Q_INVOKABLE int openedCount() const;
    // The last dial string the telephony was asked about, and the last one
    // it was asked to call; empty when there was none.
    Q_INVOKABLE QString lastAsked() const;
    Q_INVOKABLE QString lastOpened() const;
    Q_INVOKABLE void report(const QString &id, bool outgoing, bool connected, bool ended);

    // The records in the app's history file, read afresh from disk, each a
    // map of firstName, lastName, telephone and callHidden.
    Q_INVOKABLE QVariantList storedRows() const;

protected:
    RecordingTelephony *telephony() const { return m_telephony; }
    TestApp &app() const { return m_app; }

private:
    TestApp &m_app;
    RecordingTelephony *m_telephony;
};
