#include "QuietonApp.h"

#include "ContactsViewModel.h"
#include "DialerViewModel.h"
#include "HistoryViewModel.h"
#include "MainViewModel.h"
#include "SettingViewModel.h"
#include "WelcomeViewModel.h"
#include "WidgetLink.h"
#include "BuildConfig.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTextStream>
#include <QTranslator>

namespace {

PlatformParts filled(PlatformParts parts)
{
    Platform::fillMissing(parts);
    return parts;
}

} // namespace

QuietonApp::QuietonApp(PlatformParts parts, CheckUpdate::Config updateCheck, QObject *parent)
    : QObject(parent),
      m_platform(filled(std::move(parts))),
      m_defaultsService(std::move(m_platform.standardSettings), std::move(m_platform.sharedSettings)),
      m_service(&m_defaultsService, *m_platform.telephony, m_confirmation, *m_platform.widgets, *m_platform.sharer),
      m_historyDataService(m_platform.historyDatabasePath),
      m_checkNewVersionService(std::move(updateCheck), *m_platform.urlOpener)
{
    m_appDelegate.didFinishLaunching();
    // On a worker thread, while the window loads: waiting for the first
    // frame instead left a long history in later than the window by its
    // whole read (100 000 calls: 0.2 s).
    m_historyDataService.readInBackground();
    connect(&m_defaultsService, &UserDefaultsService::valueChanged, this, [this](const QString &key) {
        if (key == QLatin1StringView("hasCompletedFirstLaunch"))
            emit hasCompletedFirstLaunchChanged();
    });
}

QuietonApp::~QuietonApp() = default;

void QuietonApp::nameApplication()
{
    QGuiApplication::setApplicationName(QStringLiteral("quieton"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quieton"));
    QGuiApplication::setApplicationVersion(QStringLiteral(QUIETON_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral(QUIETON_APP_ID));
}

QString QuietonApp::installTranslation(const QLocale &locale)
{
    static QTranslator translator;
    QCoreApplication::removeTranslator(&translator);
    for (QString language : locale.uiLanguages()) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (language == QLatin1StringView("C") || language.startsWith(QLatin1StringView("en")))
            break;
        // quieton_de_AT falls back to quieton_de.
        if (translator.load(QStringLiteral("quieton_") + language, QStringLiteral(":/i18n"))) {
            QCoreApplication::installTranslator(&translator);
            return translator.language();
        }
    }
    return QString();
}

void QuietonApp::checkForUpdateAfterFirstFrame(QWindow *window)
{
    auto *quickWindow = qobject_cast<QQuickWindow *>(window);
    if (!quickWindow)
        return;
    connect(quickWindow, &QQuickWindow::frameSwapped, this, [this] { m_checkNewVersionService.checkForUpdate(true, false); },
            Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    // In case the first frame is already up: one more to hear about.
    quickWindow->update();
}

WelcomeViewModel *QuietonApp::createWelcomeViewModel(QObject *owner)
{
    return new WelcomeViewModel(m_defaultsService, owner);
}

MainViewModel *QuietonApp::createMainViewModel(QObject *owner)
{
    return new MainViewModel(m_defaultsService, m_service, *m_platform.telephony, m_historyDataService, owner);
}

DialerViewModel *QuietonApp::createDialerViewModel(QObject *owner)
{
    auto *model = new DialerViewModel(m_defaultsService, m_service, m_crashManager, owner);
    connect(this, &QuietonApp::linkOpened, model, &DialerViewModel::fillFromLink);
    return model;
}

ContactsViewModel *QuietonApp::createContactsViewModel(QObject *owner)
{
    return new ContactsViewModel(m_defaultsService, m_service, *m_platform.addressBook, *m_platform.urlOpener,
                                 m_crashManager, owner);
}

HistoryViewModel *QuietonApp::createHistoryViewModel(QObject *owner)
{
    return new HistoryViewModel(m_historyDataService, m_defaultsService, m_service, owner);
}

SettingViewModel *QuietonApp::createSettingViewModel(QObject *owner)
{
    return new SettingViewModel(m_defaultsService, m_service, m_historyDataService, m_checkNewVersionService,
                                *m_platform.urlOpener, owner);
}

bool QuietonApp::hasCompletedFirstLaunch() const
{
    return m_defaultsService.userDefaults().boolValue(QStringLiteral("hasCompletedFirstLaunch"));
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
        const bool hidden = WidgetLink::isTrue(WidgetLink::queryValue(url, QStringLiteral("hidden")));
        const bool save = WidgetLink::isTrue(WidgetLink::queryValue(url, QStringLiteral("saveToHistory")));
        m_service.placeCall({ QString(), QString(), number, hidden, save }, true);
        m_service.resetWidgetData();
    }
    m_service.resetWidgetData();
}
