#pragma once

#include <QObject>
#include <QProperty>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

class CrashManager;
class Service;
class UserDefaultsService;

// The dialler's typed number and its two per-call choices. The choices start
// from the settings and are re-read from them each time the dialler appears;
// changing them here never writes the settings.
class DialerViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the app's start-up")
    Q_PROPERTY(QString numberPhoneTyping READ numberPhoneTyping WRITE setNumberPhoneTyping NOTIFY numberPhoneTypingChanged)
    Q_PROPERTY(bool toggleHiddenNumber READ toggleHiddenNumber WRITE setToggleHiddenNumber NOTIFY toggleHiddenNumberChanged)
    Q_PROPERTY(bool toggleSaveToHistory READ toggleSaveToHistory WRITE setToggleSaveToHistory NOTIFY toggleSaveToHistoryChanged)
    Q_PROPERTY(Service *service READ service CONSTANT)

public:
    DialerViewModel(UserDefaultsService &defaultsService, Service &service, CrashManager &crashManager,
                    QObject *parent = nullptr);

    Service *service() const { return m_service; }

    QString numberPhoneTyping() const { return m_numberPhoneTyping; }
    void setNumberPhoneTyping(const QString &number) { m_numberPhoneTyping = number; }
    bool toggleHiddenNumber() const { return m_toggleHiddenNumber; }
    void setToggleHiddenNumber(bool hidden) { m_toggleHiddenNumber = hidden; }
    bool toggleSaveToHistory() const { return m_toggleSaveToHistory; }
    // Also makes it the pending call's save choice.
    void setToggleSaveToHistory(bool save);

    // Takes the two choices from the settings again.
    Q_INVOKABLE void loadSettings();
    // A widget link shows its number and choices here; placing its call is
    // the app's business.
    void fillFromLink(const QUrl &link);
    // The call button: dials the typed number and fills the pending-call
    // record. Returns whether the dialling-error alert is due.
    Q_INVOKABLE bool call();

    Q_INVOKABLE void appendDigit(const QString &key);
    Q_INVOKABLE void deleteLast();
    Q_INVOKABLE void clear();

signals:
    void numberPhoneTypingChanged();
    void toggleHiddenNumberChanged();
    void toggleSaveToHistoryChanged();

private:
    UserDefaultsService *m_defaultsService;
    CrashManager &m_crashManager;
    Service *m_service;
    Q_OBJECT_BINDABLE_PROPERTY(DialerViewModel, QString, m_numberPhoneTyping, &DialerViewModel::numberPhoneTypingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(DialerViewModel, bool, m_toggleHiddenNumber, &DialerViewModel::toggleHiddenNumberChanged)
    Q_OBJECT_BINDABLE_PROPERTY(DialerViewModel, bool, m_toggleSaveToHistory, &DialerViewModel::toggleSaveToHistoryChanged)
};
