// The settings screen and the onboarding in real QML views, on real files in a temporary home.
#include "JsonFileKeyValueStore.h"
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "TestHome.h"

#include <QDir>
#include <QQmlContext>
#include <QtQuickTest>

// What the QML tests read from disk.
class Disk : public PhoneDriver
{
    Q_OBJECT
public:
    explicit Disk(TestApp &app) : PhoneDriver(app) { }

    // A value as the settings file holds it now; undefined when it holds none.
    Q_INVOKABLE QVariant setting(const QString &key) const
    {
        const auto value = JsonFileKeyValueStore::open(QDir(TestHome::configDirectory()).filePath(QStringLiteral("quieton.json")))
                                   ->object(key);
        return value ? std::visit([](const auto &v) { return QVariant::fromValue(v); }, *value) : QVariant();
    }
};

class Setup : public QuickTestSetup
{
protected:
    void prepare() override { markOnboardingDone(); }
    void publish(QQmlContext *context) override { context->setContextProperty(QStringLiteral("disk"), new Disk(testApp())); }
};

QUICK_TEST_MAIN_WITH_SETUP(settingview, Setup)
#include "tst_settingview.moc"
