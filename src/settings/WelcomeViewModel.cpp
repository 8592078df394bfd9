#include "WelcomeViewModel.h"

#include "UserDefaultsService.h"

#include <algorithm>

WelcomeViewModel::WelcomeViewModel(UserDefaultsService &defaultsService, QObject *parent)
    : QObject(parent), m_defaultsService(&defaultsService)
{
}

void WelcomeViewModel::setSelectedPage(int page)
{
    page = std::clamp(page, 0, pageCount() - 1);
    if (m_selectedPage == page)
        return;
    m_selectedPage = page;
    emit selectedPageChanged();
}

void WelcomeViewModel::setIsFinishLaunch(bool finished)
{
    if (m_isFinishLaunch == finished)
        return;
    m_isFinishLaunch = finished;
    emit isFinishLaunchChanged();
}

void WelcomeViewModel::next()
{
    setSelectedPage(m_selectedPage + 1);
}

void WelcomeViewModel::completeFirstLaunch()
{
    m_defaultsService->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
}
