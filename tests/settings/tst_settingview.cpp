// The settings screen and the onboarding in real QML views and in the app's
// own window, on the app's settings file and history database in a temporary
// home, with a recording URL opener, sharer and telephony.
#include "CheckUpdate.h"
#include "JsonFileKeyValueStore.h"
#include "LoopbackHttpServer.h"
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "RecordingSharer.h"
#include "RecordingUrlOpener.h"
#include "TestHome.h"

#include <QDir>
#include <QGuiApplication>
#include <QWindow>
#include <QQmlContext>
#include <QTemporaryDir>
#include <QtQuickTest>

// What the QML tests read from disk and from the recording platform parts.
class Disk : public PhoneDriver
{
    Q_OBJECT
public:
    explicit Disk(TestApp &app) : PhoneDriver(app), m_opener(app.urlOpener), m_sharer(app.sharer) { }

    // A value as the settings file holds it now; undefined when it holds none.
    Q_INVOKABLE QVariant setting(const QString &key) const
    {
        auto file = JsonFileKeyValueStore::open(QDir(TestHome::configDirectory()).filePath(QStringLiteral("quieton.json")));
        const auto value = file->object(key);
        if (!value)
            return {};
        return std::visit([](const auto &v) { return QVariant::fromValue(v); }, *value);
    }
    // The number of call records in the history file, read afresh.
    Q_INVOKABLE int storedCalls() const { return int(storedRows().size()); }
    Q_INVOKABLE QStringList openedUrls() const { return m_opener->addresses(); }
    Q_INVOKABLE int systemSettingsOpened() const { return m_opener->systemSettingsOpened; }
    Q_INVOKABLE int sharedCount() const { return int(m_sharer->shared.size()); }

private:
    RecordingUrlOpener *m_opener;
    RecordingSharer *m_sharer;
};

// Update checkers that ask a store lookup service on loopback, which always
// knows a newer version than the one in their information file.
class Store : public QObject
{
    Q_OBJECT
public:
    explicit Store(UrlOpener &opener) : m_opener(opener)
    {
        m_server.answer(QByteArrayLiteral(
                "{\"resultCount\": 1, \"results\": [{\"version\": \"9.9\", "
                "\"trackViewUrl\": \"https://store.example/app\", \"price\": 0}]}"));
        QFile info(m_folder.filePath(QStringLiteral("Info.plist")));
        info.open(QIODevice::WriteOnly);
        info.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
                   "<key>CFBundleIdentifier</key><string>app.test.Quieton</string>\n"
                   "<key>CFBundleShortVersionString</key><string>1.0</string>\n</dict>\n</plist>\n");
    }

    // A checker whose store page is `storePage`, its check started.
    Q_INVOKABLE CheckUpdate *checkerWithStorePage(const QString &storePage)
    {
        auto *checker = new CheckUpdate({ m_server.origin(), m_server.origin(), QStringLiteral("123"),
                                          QStringLiteral("abc"), storePage,
                                          m_folder.filePath(QStringLiteral("Info.plist")) },
                                        m_opener, this);
        checker->checkForUpdate(true, false);
        return checker;
    }

    // The update alerts the checkers put up on the test's window.
    Q_INVOKABLE int updateAlerts() const { return int(alerts().size()); }
    Q_INVOKABLE void closeUpdateAlerts()
    {
        for (QObject *alert : alerts())
            QMetaObject::invokeMethod(alert, "close");
    }

private:
    static QList<QObject *> alerts()
    {
        QList<QObject *> found;
        for (QWindow *window : QGuiApplication::topLevelWindows())
            found += window->findChildren<QObject *>(QStringLiteral("appUpdateAlert"));
        return found;
    }

    UrlOpener &m_opener;
    QTemporaryDir m_folder;
    LoopbackHttpServer m_server;
};

class Setup : public QuickTestSetup
{
protected:
    void prepare() override { markOnboardingDone(); }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("disk"), new Disk(testApp()));
        context->setContextProperty(QStringLiteral("store"), new Store(*testApp().urlOpener));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(settingview, Setup)
#include "tst_settingview.moc"
