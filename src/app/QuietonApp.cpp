#include "QuietonApp.h"

#include "CallObserverDelegate.h"
#include "CheckUpdate.h"
#include "ContactsViewModel.h"
#include "CrashManager.h"
#include "HistoryCallDataService.h"
#include "HistoryViewModel.h"
#include "Platform.h"
#include "Service.h"
#include "SettingViewModel.h"
#include "UserDefaultsService.h"
#include "WidgetLink.h"

#include <QTextStream>

#include <QGuiApplication>
#include <QJSEngine>
#include <QQuickWindow>
#include <QTimer>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {
QuietonApp *theApp = nullptr;
}

void QuietonApp::limitHeaps()
{
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 2);
#endif
}

QuietonApp::QuietonApp(QObject *parent)
    : QObject(parent),
      m_defaultsService(UserDefaultsService::shared()),
      m_service(Service::shared()),
      m_historyDataService(std::make_unique<HistoryCallDataService>(
          Platform::dataDirectory() + QLatin1Char('/') + QLatin1StringView(HistoryCallDataService::containerName)
          + QStringLiteral(".sqlite")))
{
    m_appDelegate.didFinishLaunching();
    theApp = this;
    connect(m_defaultsService, &UserDefaultsService::valueChanged, this, [this](const QString &key) {
        if (key == QLatin1StringView("hasCompletedFirstLaunch"))
            emit hasCompletedFirstLaunchChanged();
    });
    // The update check runs off the UI thread, and starts only once the
    // window has shown its first frame so that start-up never shares its time
    // with it.
    QTimer::singleShot(0, this, &QuietonApp::startUpdateCheckAfterFirstFrame);
}

QuietonApp::~QuietonApp()
{
    if (theApp == this)
        theApp = nullptr;
}

CallObserverDelegate *QuietonApp::makeCallObserverDelegate(QObject *owner)
{
    auto *delegate = new CallObserverDelegate(m_historyDataService.get(), m_defaultsService, m_service, owner);
    QJSEngine::setObjectOwnership(delegate, QJSEngine::CppOwnership);
    return delegate;
}

SettingViewModel *QuietonApp::makeSettingViewModel(QObject *owner)
{
    auto *model = new SettingViewModel(m_historyDataService.get(), owner);
    QJSEngine::setObjectOwnership(model, QJSEngine::CppOwnership);
    return model;
}

HistoryViewModel *QuietonApp::makeHistoryViewModel(QObject *owner)
{
    auto *model = new HistoryViewModel(*m_historyDataService, *m_defaultsService, *m_service, owner);
    QJSEngine::setObjectOwnership(model, QJSEngine::CppOwnership);
    return model;
}

ContactsViewModel *QuietonApp::makeContactsViewModel(QObject *owner)
{
    auto *model = new ContactsViewModel(*m_defaultsService, *m_service, Platform::addressBook(), Platform::urlOpener(),
                                        CrashManager::shared(), owner);
    QJSEngine::setObjectOwnership(model, QJSEngine::CppOwnership);
    return model;
}

QuietonApp *QuietonApp::instance()
{
    return theApp;
}

QuietonApp *QuietonApp::create(QQmlEngine *, QJSEngine *)
{
    if (!theApp)
        theApp = new QuietonApp(nullptr);
    QJSEngine::setObjectOwnership(theApp, QJSEngine::CppOwnership);
    return theApp;
}

void QuietonApp::startUpdateCheckAfterFirstFrame()
{
    if (!m_updateCheckWanted)
        return;
    // The app's window is its ApplicationWindow; views that merely host some
    // of its screens (tests, tools) start no check.
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        auto *quickWindow = qobject_cast<QQuickWindow *>(window);
        if (!quickWindow || !quickWindow->inherits("QQuickApplicationWindow"))
            continue;
        connect(quickWindow, &QQuickWindow::frameSwapped, this,
                [] { CheckUpdate::shared()->checkForUpdate(true, false); },
                Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
        // In case the first frame is already up: one more to hear about.
        quickWindow->update();
        return;
    }
}

bool QuietonApp::hasCompletedFirstLaunch() const
{
    return m_defaultsService->userDefaults().boolValue(QStringLiteral("hasCompletedFirstLaunch"));
}

void QuietonApp::deliverLink(const QUrl &url)
{
    if (const QString refusal = WidgetLink::refusal(url); !refusal.isEmpty()) {
        QTextStream(stdout) << "## Link refused: " << refusal << Qt::endl;
        return;
    }
    if (!hasCompletedFirstLaunch())
        return;
    if (!m_mainViewShown) {
        m_waitingLinks.append(url);
        return;
    }
    handleOpenUrl(url);
    emit linkOpened(url);
}

void QuietonApp::setMainViewShown(bool shown)
{
    m_mainViewShown = shown;
    if (!shown)
        return;
    const QList<QUrl> waiting = std::exchange(m_waitingLinks, {});
    for (const QUrl &url : waiting)
        deliverLink(url);
}

void QuietonApp::handleOpenUrl(const QUrl &url)
{
    const QString number = WidgetLink::queryValue(url, QStringLiteral("number"));
    if (!number.isEmpty() && url.scheme() == QLatin1StringView("quieton")) {
        const bool hidden = linkFlag(url, QStringLiteral("hidden"));
        const bool save = linkFlag(url, QStringLiteral("saveToHistory"));
        if (m_service->makeCall(number, hidden, true)) {
            m_service->setPendingCall(QString(), QString(), number, hidden);
            m_service->setPendingCallSaveToHistory(save);
        }
        m_service->resetWidgetData();
    }
    m_service->resetWidgetData();
}

QString QuietonApp::linkValue(const QUrl &url, const QString &key)
{
    return WidgetLink::queryValue(url, key);
}

bool QuietonApp::linkFlag(const QUrl &url, const QString &key)
{
    return WidgetLink::isTrue(WidgetLink::queryValue(url, key));
}
