#include "ColorScheme.h"
#include "PrivateBus.h"

#include <QDBusInterface>
#include <QDBusVariant>
#include <QtTest>

// The dark look follows a mock portal's "color-scheme" setting; QUIETON_COLOR_SCHEME overrides it.
class TestColorScheme : public QObject
{
    Q_OBJECT

private slots:
    void followsThePortal_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("answer");
        QTest::newRow("ReadOne") << "ReadOne" << "dbus.UInt32(1, variant_level=1)";
        // Portals before ReadOne wrap the value in a second variant.
        QTest::newRow("Read, older portals") << "Read" << "dbus.UInt32(1, variant_level=2)";
    }
    void followsThePortal()
    {
        QFETCH(QString, method);
        QFETCH(QString, answer);
        PrivateBus bus;
        const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
        const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
        const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
        QVERIFY(bus.startService(QStringLiteral("/usr/bin/python3"),
                                 { "-m", "dbusmock", "--session", portal, path, settings }, portal));
        QDBusInterface mock(portal, path, QStringLiteral("org.freedesktop.DBus.Mock"), bus.connection());
        QVERIFY(mock.call("AddMethod", settings, method, "ss", "v", "ret = " + answer).errorName().isEmpty());

        ColorScheme scheme(bus.connection());
        QSignalSpy changed(&scheme, &ColorScheme::prefersDarkChanged);
        QVERIFY(changed.wait());
        QVERIFY(scheme.prefersDark());

        const QVariant light = QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(2u))));
        QVERIFY(mock.call("EmitSignal", settings, "SettingChanged", "ssv",
                          QVariantList { QVariant::fromValue(QDBusVariant("org.freedesktop.appearance")),
                                         QVariant::fromValue(QDBusVariant("color-scheme")), light })
                        .errorName().isEmpty());
        QVERIFY(changed.wait());
        QVERIFY(!scheme.prefersDark());
    }

    void environmentDecidesWithoutAsking()
    {
        qputenv("QUIETON_COLOR_SCHEME", "dark");
        QVERIFY(ColorScheme().prefersDark());
        qputenv("QUIETON_COLOR_SCHEME", "light");
        QVERIFY(!ColorScheme().prefersDark());
        // Without a portal (no session bus here) the look is light.
        qunsetenv("QUIETON_COLOR_SCHEME");
        QVERIFY(!ColorScheme(QDBusConnection(QStringLiteral("none"))).prefersDark());
    }
};

QTEST_GUILESS_MAIN(TestColorScheme)
#include "tst_colorscheme.moc"
