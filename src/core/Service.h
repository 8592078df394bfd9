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

// Who the app is calling, as the call observer needs to know it.
struct PendingCall
{
    QString firstName;
    QString lastName;
    QString telephone; // as the user gave it, without the prefix
    bool hidden = false;
    // Whether to record the call; std::nullopt keeps the record's choice.
    std::optional<bool> saveToHistory;
};

// Dialling and the small shared operations of the app, with the process-wide
// call state: the two call flags and the pending-call record that tells the
// call observer who is being called. Screens read that state; they change it
// only by placing a call or by dismissing the dialling-error alert.
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

    // Places a call to `number`, behind the stored prefix when `hidden`.
    // The outcome is left in callFailed. The user confirms the dial string
    // first when the telephony dials by itself or the call comes from a
    // link; while one confirmation is open, such a call is refused with a
    // notice, so that no tap meant for one number can place another.
    // Returns false only for a request refused because another call is still
    // waiting for the user's answer: its caller then leaves the pending-call
    // record to that call.
    bool makeCall(const QString &number, bool hidden, bool fromLink = false);
    // The one way a screen or a link places a call: makeCall, then `call`
    // becomes the pending-call record, unless the call was refused for one
    // that waits for the user's answer. Returns whether the dialling-error
    // alert is due (callFailed).
    bool placeCall(const PendingCall &call, bool fromLink = false);
    // The dialling-error alert's "OK".
    Q_INVOKABLE void acknowledgeCallFailure() { setCallFailed(false); }
    // Clears the three values the widget shares with the app, then asks the
    // widgets to redraw.
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
    // A short message for the user (sharing, calls that failed after they
    // were requested, a link that came while a confirmation was open).
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
