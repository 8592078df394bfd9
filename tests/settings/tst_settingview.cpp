// The settings screen and the onboarding in real QML views and in the app's own
// window, on its settings file and history database in a temporary home.
#include "JsonFileKeyValueStore.h"
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "TestHome.h"

#include <QAccessible>
#include <QDir>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
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
        auto file = JsonFileKeyValueStore::open(QDir(TestHome::configDirectory()).filePath(QStringLiteral("quieton.json")));
        const auto value = file->object(key);
        if (!value)
            return {};
        return std::visit([](const auto &v) { return QVariant::fromValue(v); }, *value);
    }
    // The number of call records in the history file, read afresh.
    Q_INVOKABLE int storedCalls() const { return int(storedRows().size()); }
};

// What a screen reader meets: the names of the controls it can press in the
// window, and its own press or toggle on one item.
class ScreenReader : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE QStringList buttons(QQuickItem *item) const
    {
        QAccessible::setActive(true);
        QStringList names;
        collect(QAccessible::queryAccessibleInterface(item->window()), names);
        return names;
    }
    // Runs `action` ("Press" or "Toggle") as a screen reader would; false when
    // the item offers no such action.
    Q_INVOKABLE bool act(QQuickItem *item, const QString &action) const
    {
        QAccessible::setActive(true);
        QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(item);
        if (!iface || !iface->actionInterface() || !iface->actionInterface()->actionNames().contains(action))
            return false;
        iface->actionInterface()->doAction(action);
        return true;
    }

private:
    static void collect(QAccessibleInterface *iface, QStringList &names)
    {
        if (!iface || iface->state().invisible)
            return;
        if (iface->role() == QAccessible::Button)
            names.append(iface->text(QAccessible::Name));
        for (int i = 0; i < iface->childCount(); ++i)
            collect(iface->child(i), names);
    }
};

class Setup : public QuickTestSetup
{
protected:
    void prepare() override { markOnboardingDone(); }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("disk"), new Disk(testApp()));
        context->setContextProperty(QStringLiteral("screenReader"), new ScreenReader);
    }
};

QUICK_TEST_MAIN_WITH_SETUP(settingview, Setup)
#include "tst_settingview.moc"
