// Onboarding in real QML views and in the app's own window, on a fresh
// settings file.
#include "Platform.h"
#include "RecordingTelephony.h"
#include "SettingsFileReader.h"
#include "TestHome.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

class Setup : public QObject
{
    Q_OBJECT
public slots:
    void applicationAvailable()
    {
        TestHome::use();
        Platform::setTelephony(std::make_unique<RecordingTelephony>());
    }
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral("qrc:/"));
        engine->rootContext()->setContextProperty(QStringLiteral("settingsFile"), new SettingsFileReader);
    }
};

QUICK_TEST_MAIN_WITH_SETUP(welcomeview, Setup)
#include "tst_welcomeview.moc"
