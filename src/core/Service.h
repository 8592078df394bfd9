#pragma once

#include <QObject>
#include <QProperty>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <optional>

class CallConfirmation;
class Telephony;
class TextSharer;
class UserDefaultsService;
class WidgetRefresher;

// Who the app is calling.
struct PendingCall
{
    QString firstName;
    QString lastName;
    QString telephone; // as the user gave it, without the prefix
    bool hidden = false;
    // Whether to record the call; std::nullopt keeps the record's choice.
    std::optional<bool> saveToHistory;
};

// Dialling and the small shared operations of the app, with the call state:
// the two call flags and the pending-call record. Screens change it only by
// placing a call or by dismissing the dialling-error alert.
class Service : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made at start-up")
    Q_PROPERTY(bool callStartedFromApp READ callStartedFromApp NOTIFY callStartedFromAppChanged)
    Q_PROPERTY(bool callFailed READ callFailed NOTIFY callFailedChanged)
    Q_PROPERTY(QString pendingCallFirstName READ pendingCallFirstName NOTIFY pendingCallChanged)
    Q_PROPERTY(QString pendingCallLastName READ pendingCallLastName NOTIFY pendingCallChanged)
    Q_PROPERTY(QString pendingCallTelephone READ pendingCallTelephone NOTIFY pendingCallChanged)
    Q_PROPERTY(bool pendingCallHidden READ pendingCallHidden NOTIFY pendingCallChanged)
    // undefined until set; undefined counts as "save".
    Q_PROPERTY(QVariant pendingCallSaveToHistory READ pendingCallSaveToHistoryValue NOTIFY pendingCallChanged)

public:
    Service(UserDefaultsService *defaultsService, Telephony &telephony, CallConfirmation &confirmation,
            WidgetRefresher &widgets, TextSharer &sharer, QObject *parent = nullptr);

    // Places a call to `number`, behind the stored prefix when `hidden`;
    // the outcome is left in callFailed. A call the user must confirm is
    // refused with a notice while another confirmation is open, so that no
    // tap meant for one number places another: only then returns false.
    bool makeCall(const QString &number, bool hidden, bool fromLink = false);
    // makeCall, then `call` becomes the pending-call record unless refused.
    // Returns callFailed.
    bool placeCall(const PendingCall &call, bool fromLink = false);
    Q_INVOKABLE void acknowledgeCallFailure() { setCallFailed(false); }
    Q_INVOKABLE void resetWidgetData();
    Q_INVOKABLE void shareApp();

    bool callStartedFromApp() const { return m_callStartedFromApp; }
    void setCallStartedFromApp(bool value) { m_callStartedFromApp = value; }
    bool callFailed() const { return m_callFailed; }
    void setCallFailed(bool value) { m_callFailed = value; }

    QString pendingCallFirstName() const { return m_pendingCallFirstName; }
    QString pendingCallLastName() const { return m_pendingCallLastName; }
    QString pendingCallTelephone() const { return m_pendingCallTelephone; }
    bool pendingCallHidden() const { return m_pendingCallHidden; }
    std::optional<bool> pendingCallSaveToHistory() const { return m_pendingCallSaveToHistory; }
    void setPendingCallSaveToHistory(std::optional<bool> value);

signals:
    void callStartedFromAppChanged();
    void callFailedChanged();
    void pendingCallChanged();
    void notice(const QString &message);

private:
    QVariant pendingCallSaveToHistoryValue() const;

    UserDefaultsService *m_defaultsService;
    Telephony &m_telephony;
    CallConfirmation &m_confirmation;
    WidgetRefresher &m_widgets;
    TextSharer &m_sharer;

    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Service, bool, m_callStartedFromApp, false, &Service::callStartedFromAppChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Service, bool, m_callFailed, false, &Service::callFailedChanged)
    // Never null: a call dialled by number records empty names, not missing ones.
    QString m_pendingCallFirstName = QStringLiteral("");
    QString m_pendingCallLastName = QStringLiteral("");
    QString m_pendingCallTelephone = QStringLiteral("");
    bool m_pendingCallHidden = false;
    std::optional<bool> m_pendingCallSaveToHistory;
};
