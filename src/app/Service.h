#pragma once

#include <QObject>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <optional>

class CallConfirmation;
class QJSEngine;
class QQmlEngine;
class Telephony;
class TextSharer;
class UserDefaultsService;
class WidgetRefresher;

// Dialling and the small shared operations of the app, with the process-wide
// call state: the two call flags and the pending-call record that tells the
// call observer who is being called.
class Service : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool callStartedFromApp READ callStartedFromApp WRITE setCallStartedFromApp NOTIFY callStartedFromAppChanged)
    Q_PROPERTY(bool callFailed READ callFailed WRITE setCallFailed NOTIFY callFailedChanged)
    Q_PROPERTY(QString pendingCallFirstName MEMBER m_pendingCallFirstName NOTIFY pendingCallChanged)
    Q_PROPERTY(QString pendingCallLastName MEMBER m_pendingCallLastName NOTIFY pendingCallChanged)
    Q_PROPERTY(QString pendingCallTelephone MEMBER m_pendingCallTelephone NOTIFY pendingCallChanged)
    Q_PROPERTY(bool pendingCallHidden MEMBER m_pendingCallHidden NOTIFY pendingCallChanged)
    // undefined until set; undefined counts as "save".
    Q_PROPERTY(QVariant pendingCallSaveToHistory READ pendingCallSaveToHistoryValue WRITE setPendingCallSaveToHistoryValue NOTIFY pendingCallChanged)

public:
    static Service *shared();
    static Service *create(QQmlEngine *, QJSEngine *);

    Service(UserDefaultsService *defaultsService, Telephony &telephony, CallConfirmation &confirmation,
            WidgetRefresher &widgets, TextSharer &sharer, QObject *parent = nullptr);

    UserDefaultsService *defaultsService() const { return m_defaultsService; }
    Telephony &telephony() const { return m_telephony; }

    // Places a call to `number`, behind the stored prefix when `hidden`.
    // The outcome is left in callFailed. The user confirms the dial string
    // first when the telephony dials by itself or the call comes from a
    // link; while one confirmation is open, such a call is refused with a
    // notice, so that no tap meant for one number can place another.
    // Returns false only for a request refused because another call is still
    // waiting for the user's answer: its caller then leaves the pending-call
    // record to that call.
    Q_INVOKABLE bool makeCall(const QString &number, bool hidden, bool fromLink = false);
    // Clears the three values the widget shares with the app, then asks the
    // widgets to redraw.
    Q_INVOKABLE void resetWidgetData();
    // Offers the recommendation text with the store page's address.
    Q_INVOKABLE void shareApp();
    // Fills the pending-call record's names, number and privacy in one go.
    Q_INVOKABLE void setPendingCall(const QString &firstName, const QString &lastName, const QString &telephone,
                                    bool hidden);

    static QString shareText();
    // Whether a URL parser takes `address`, percent-encoding what a URL
    // cannot hold as it stands; a call to anything else fails.
    static bool isCallAddress(const QString &address);
    // A telephony's report of a failed request as one well-formed sentence.
    static QString failureNotice(const QString &message);

    bool callStartedFromApp() const { return m_callStartedFromApp; }
    void setCallStartedFromApp(bool value);
    bool callFailed() const { return m_callFailed; }
    void setCallFailed(bool value);

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
    void setPendingCallSaveToHistoryValue(const QVariant &value);

    UserDefaultsService *m_defaultsService;
    Telephony &m_telephony;
    CallConfirmation &m_confirmation;
    WidgetRefresher &m_widgets;
    TextSharer &m_sharer;

    bool m_callStartedFromApp = false;
    bool m_callFailed = false;
    // Never null: a call dialled by number records empty names, not missing ones.
    QString m_pendingCallFirstName = QStringLiteral("");
    QString m_pendingCallLastName = QStringLiteral("");
    QString m_pendingCallTelephone = QStringLiteral("");
    bool m_pendingCallHidden = false;
    std::optional<bool> m_pendingCallSaveToHistory;
};
