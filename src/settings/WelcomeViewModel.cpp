#include "WelcomeViewModel.h"

#include "UserDefaultsService.h"

WelcomeViewModel::WelcomeViewModel(UserDefaultsService &defaultsService, QObject *parent)
    : QObject(parent), m_defaultsService(&defaultsService)
{
}

void WelcomeViewModel::completeFirstLaunch()
{
    m_defaultsService->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
}
