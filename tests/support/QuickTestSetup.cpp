#include "QuickTestSetup.h"

#include "TestHome.h"
#include "UserDefaultsService.h"

#include <QQmlContext>
#include <QQmlEngine>

void QuickTestSetup::applicationAvailable()
{
    TestHome::use();
    prepare();
}

void QuickTestSetup::qmlEngineAvailable(QQmlEngine *engine)
{
    engine->addImportPath(QStringLiteral("qrc:/"));
    publish(engine->rootContext());
}

void QuickTestSetup::markOnboardingDone()
{
    UserDefaultsService::shared()->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
}
