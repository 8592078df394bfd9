#pragma once

#include "QuietonApp.h"

#include <memory>

class RecordingSharer;
class RecordingTelephony;
class RecordingUrlOpener;

// The app as its start-up makes it, in the test home (TestHome::use() first),
// on parts that record what the app asks of the platform. The update check
// goes to a closed port on this machine unless `updateCheck` says otherwise.
class TestApp
{
public:
    explicit TestApp(std::optional<CheckUpdate::Config> updateCheck = std::nullopt);
    ~TestApp();

    QuietonApp &app() { return *m_app; }
    Service &service() { return *m_app->service(); }
    UserDefaultsService &defaults() { return *m_app->defaultsService(); }
    HistoryCallDataService &history() { return *m_app->historyDataService(); }

    RecordingTelephony *telephony = nullptr;
    RecordingUrlOpener *urlOpener = nullptr;
    RecordingSharer *sharer = nullptr;

    // The update check of this machine's tests: a closed loopback port.
    static CheckUpdate::Config offlineUpdateCheck();

private:
    std::unique_ptr<QuietonApp> m_app;
};
