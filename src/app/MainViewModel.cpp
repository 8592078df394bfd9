#include "MainViewModel.h"

#include "KeyValueStore.h"
#include "Service.h"
#include "UserDefaultsService.h"

#include <QTextStream>

#include <limits>

MainViewModel::MainViewModel(UserDefaultsService &defaultsService, Service &service, Telephony &telephony,
                             HistoryCallDataService &historyDataService, QObject *parent)
    : QObject(parent),
      m_defaultsService(&defaultsService),
      m_service(&service),
      m_callObserver(telephony),
      m_callObserverDelegate(&historyDataService, &defaultsService, &service)
{
}

void MainViewModel::recordMainViewBuilt()
{
    m_defaultsService->saveInstallDateIfNeeded();
    KeyValueStore &store = m_defaultsService->userDefaults();
    const QString key = QStringLiteral("appOpenCount");
    qint64 count = store.integerValue(key);
    if (count == std::numeric_limits<qint64>::max()) {
        // Unusable, like an unreadable settings file: said once, then counted afresh.
        QTextStream(stdout) << "Settings value appOpenCount " << count << " is unusable; counting from 0 again" << Qt::endl;
        count = 0;
    }
    store.setInteger(key, count + 1);
}
