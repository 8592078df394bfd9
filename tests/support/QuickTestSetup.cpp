#include "QuickTestSetup.h"

#include "Platform.h"
#include "RecordingSharer.h"
#include "RecordingTelephony.h"
#include "RecordingUrlOpener.h"
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

RecordingTelephony *QuickTestSetup::installRecordingTelephony()
{
    auto telephony = std::make_unique<RecordingTelephony>();
    RecordingTelephony *installed = telephony.get();
    Platform::setTelephony(std::move(telephony));
    return installed;
}

RecordingUrlOpener *QuickTestSetup::installRecordingUrlOpener()
{
    auto opener = std::make_unique<RecordingUrlOpener>();
    RecordingUrlOpener *installed = opener.get();
    Platform::setUrlOpener(std::move(opener));
    return installed;
}

RecordingSharer *QuickTestSetup::installRecordingSharer()
{
    auto sharer = std::make_unique<RecordingSharer>();
    RecordingSharer *installed = sharer.get();
    Platform::setSharer(std::move(sharer));
    return installed;
}

void QuickTestSetup::markOnboardingDone()
{
    UserDefaultsService::shared()->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
}
