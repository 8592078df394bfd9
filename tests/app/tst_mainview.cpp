#include "Platform.h"
#include "RecordingTelephony.h"
#include "TestHome.h"
#include "UserDefaultsService.h"

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
        UserDefaultsService::shared()->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
    }
    void qmlEngineAvailable(QQmlEngine *engine) { engine->addImportPath(QStringLiteral("qrc:/")); }
};

QUICK_TEST_MAIN_WITH_SETUP(mainview, Setup)
#include "tst_mainview.moc"
