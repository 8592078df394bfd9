#pragma once

#include "AppDelegate.h"

#include <QList>
#include <QObject>
#include <QUrl>

#include <memory>
#include <QtQml/qqmlregistration.h>

Q_MOC_INCLUDE("CallObserverDelegate.h")
Q_MOC_INCLUDE("ContactsViewModel.h")
Q_MOC_INCLUDE("HistoryCallDataService.h")
Q_MOC_INCLUDE("HistoryViewModel.h")
Q_MOC_INCLUDE("SettingViewModel.h")

class CallObserverDelegate;
class ContactsViewModel;
class HistoryCallDataService;
class HistoryViewModel;
class QJSEngine;
class QQmlEngine;
class Service;
class SettingViewModel;
class UserDefaultsService;

// The application root: start-up of the shared objects, the choice between
// onboarding and the main screen, and the links opened from the widget.
class QuietonApp : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool hasCompletedFirstLaunch READ hasCompletedFirstLaunch NOTIFY hasCompletedFirstLaunchChanged)
    Q_PROPERTY(HistoryCallDataService *historyDataService READ historyDataService CONSTANT)

public:
    // Call first in main(): every thread that allocates would otherwise get
    // a heap of its own, which keeps freed memory long after a burst of
    // work (reading the address book) is over.
    static void limitHeaps();

    // Leaves out the store lookup of this run (a run that quits at once).
    void skipUpdateCheck() { m_updateCheckWanted = false; }

    // Runs the start-up in order; the instance is the one QML sees.
    explicit QuietonApp(QObject *parent);
    ~QuietonApp() override;
    static QuietonApp *instance();
    static QuietonApp *create(QQmlEngine *, QJSEngine *);

    UserDefaultsService *defaultsService() const { return m_defaultsService; }
    Service *service() const { return m_service; }
    // The call history store in the app's data folder.
    HistoryCallDataService *historyDataService() const { return m_historyDataService.get(); }

    // The models of the screens, made with the shared objects for the
    // screen `owner` that keeps them.
    Q_INVOKABLE CallObserverDelegate *makeCallObserverDelegate(QObject *owner);
    Q_INVOKABLE SettingViewModel *makeSettingViewModel(QObject *owner);
    Q_INVOKABLE HistoryViewModel *makeHistoryViewModel(QObject *owner);
    Q_INVOKABLE ContactsViewModel *makeContactsViewModel(QObject *owner);

    // Read afresh from the settings on every evaluation.
    bool hasCompletedFirstLaunch() const;

    // A link opened into the app (command line or a second launch). Links are
    // handled only by the main screen, so one that arrives before the main
    // screen is up waits for it, and one that arrives during onboarding is dropped.
    Q_INVOKABLE void deliverLink(const QUrl &url);
    // The main screen tells when it is shown and hidden.
    Q_INVOKABLE void setMainViewShown(bool shown);
    // The main screen's handler of a widget link: places the call it carries.
    Q_INVOKABLE void handleOpenUrl(const QUrl &url);

    Q_INVOKABLE static QString linkValue(const QUrl &url, const QString &key);
    Q_INVOKABLE static bool linkFlag(const QUrl &url, const QString &key);

signals:
    void hasCompletedFirstLaunchChanged();
    // A link for the screens that fill themselves from it (the dialler).
    void linkOpened(const QUrl &url);
    // Someone launched the app again without a link: bring the window forward.
    void activationRequested();

private:
    // Starts the update check after the first frame of the app's window; an
    // app without its window does not check.
    void startUpdateCheckAfterFirstFrame();
    bool m_updateCheckWanted = true;

    AppDelegate m_appDelegate;
    UserDefaultsService *m_defaultsService;
    Service *m_service;
    std::unique_ptr<HistoryCallDataService> m_historyDataService;
    bool m_mainViewShown = false;
    QList<QUrl> m_waitingLinks;
};
