#pragma once

#include "AppDelegate.h"
#include "CallConfirmation.h"
#include "CheckUpdate.h"
#include "CrashManager.h"
#include "HistoryCallDataService.h"
#include "Platform.h"
#include "Service.h"
#include "UserDefaultsService.h"

#include <QList>
#include <QLocale>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

class QWindow;
class ContactsViewModel;
class DialerViewModel;
class HistoryViewModel;
class MainViewModel;
class SettingViewModel;
class WelcomeViewModel;

// The application root and the one place where the shared objects are made:
// the platform parts, the settings store (whose creation writes the
// first-launch defaults), the service, the history store, the crash manager
// and the update checker, in that order. Every model gets what it uses from
// here, through its constructor; the window gets this object as its `app`.
//
// It also chooses between onboarding and the main screen and handles the
// links opened from the widget.
class QuietonApp : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by main()")
    Q_MOC_INCLUDE("ContactsViewModel.h")
    Q_MOC_INCLUDE("DialerViewModel.h")
    Q_MOC_INCLUDE("HistoryViewModel.h")
    Q_MOC_INCLUDE("MainViewModel.h")
    Q_MOC_INCLUDE("SettingViewModel.h")
    Q_MOC_INCLUDE("WelcomeViewModel.h")
    Q_PROPERTY(bool hasCompletedFirstLaunch READ hasCompletedFirstLaunch NOTIFY hasCompletedFirstLaunchChanged)
    Q_PROPERTY(Service *service READ service CONSTANT)
    Q_PROPERTY(CallConfirmation *confirmation READ confirmation CONSTANT)
    Q_PROPERTY(UserDefaultsService *defaultsService READ defaultsService CONSTANT)
    Q_PROPERTY(HistoryCallDataService *historyDataService READ historyDataService CONSTANT)
    Q_PROPERTY(CheckUpdate *checkNewVersionService READ checkNewVersionService CONSTANT)
    Q_PROPERTY(UrlOpener *urlOpener READ urlOpener CONSTANT)

public:
    // Starts with `parts`, whose empty fields get the Linux backends; the
    // update check asks where `updateCheck` says.
    explicit QuietonApp(PlatformParts parts = {}, CheckUpdate::Config updateCheck = CheckUpdate::Config::fromBuild(),
                        QObject *parent = nullptr);
    ~QuietonApp() override;

    static void nameApplication();
    // Translates the app's texts into the first of `locale`'s languages that
    // the app speaks (English, the texts as written, needs nothing); call it
    // before the first screen is made, and again to change the language.
    // Returns the language installed, or an empty text for English.
    static QString installTranslation(const QLocale &locale = QLocale::system());

    UserDefaultsService *defaultsService() { return &m_defaultsService; }
    Service *service() { return &m_service; }
    HistoryCallDataService *historyDataService() { return &m_historyDataService; }
    CheckUpdate *checkNewVersionService() { return &m_checkNewVersionService; }
    CrashManager &crashManager() { return m_crashManager; }
    CallConfirmation *confirmation() { return &m_confirmation; }
    UrlOpener *urlOpener() { return m_platform.urlOpener.get(); }

    // Asks the store for a newer version once the window's first frame is up.
    void checkForUpdateAfterFirstFrame(QWindow *window);

    Q_INVOKABLE WelcomeViewModel *createWelcomeViewModel(QObject *owner);
    Q_INVOKABLE MainViewModel *createMainViewModel(QObject *owner);
    Q_INVOKABLE DialerViewModel *createDialerViewModel(QObject *owner);
    Q_INVOKABLE ContactsViewModel *createContactsViewModel(QObject *owner);
    Q_INVOKABLE HistoryViewModel *createHistoryViewModel(QObject *owner);
    Q_INVOKABLE SettingViewModel *createSettingViewModel(QObject *owner);

    // Read afresh from the settings on every evaluation.
    bool hasCompletedFirstLaunch() const;

    // A link opened into the app (command line or a second launch). Links are
    // handled only by the main screen, so one that arrives before the main
    // screen is up waits for it, and one that arrives during onboarding is dropped.
    Q_INVOKABLE void deliverLink(const QUrl &url);
    Q_INVOKABLE void setMainViewShown(bool shown);
    // The main screen's handler of a widget link: places the call it carries.
    Q_INVOKABLE void handleOpenUrl(const QUrl &url);

signals:
    void hasCompletedFirstLaunchChanged();
    // A link for the screens that fill themselves from it (the dialler).
    void linkOpened(const QUrl &url);
    // Someone launched the app again without a link: bring the window forward.
    void activationRequested();

private:
    AppDelegate m_appDelegate;
    PlatformParts m_platform;
    UserDefaultsService m_defaultsService;
    CallConfirmation m_confirmation;
    Service m_service;
    HistoryCallDataService m_historyDataService;
    CrashManager m_crashManager;
    CheckUpdate m_checkNewVersionService;
    bool m_mainViewShown = false;
    QList<QUrl> m_waitingLinks;
};
