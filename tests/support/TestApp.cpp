#include "TestApp.h"

#include "RecordingSharer.h"
#include "RecordingTelephony.h"
#include "RecordingUrlOpener.h"

TestApp::TestApp(std::optional<CheckUpdate::Config> updateCheck)
{
    PlatformParts parts;
    auto recordingTelephony = std::make_unique<RecordingTelephony>();
    auto recordingOpener = std::make_unique<RecordingUrlOpener>();
    auto recordingSharer = std::make_unique<RecordingSharer>();
    telephony = recordingTelephony.get();
    urlOpener = recordingOpener.get();
    sharer = recordingSharer.get();
    parts.telephony = std::move(recordingTelephony);
    parts.urlOpener = std::move(recordingOpener);
    parts.sharer = std::move(recordingSharer);
    m_app = std::make_unique<QuietonApp>(std::move(parts), updateCheck.value_or(offlineUpdateCheck()));
}

TestApp::~TestApp() = default;

CheckUpdate::Config TestApp::offlineUpdateCheck()
{
    CheckUpdate::Config config = CheckUpdate::Config::fromBuild();
    config.lookupOrigin = config.apiOrigin = QStringLiteral("http://127.0.0.1:9");
    return config;
}
