#include "WelcomeViewModel.h"

#include "UserDefaultsService.h"

#include <algorithm>
#include <cmath>
#include <numbers>

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

namespace {
// The spring's response: the period it would swing at without damping.
constexpr qreal springResponseSeconds = 0.5;
constexpr qreal omega = 2 * std::numbers::pi / springResponseSeconds;
} // namespace

qreal WelcomeViewModel::springProgress(qreal seconds)
{
    if (seconds <= 0)
        return 0;
    // Critical damping (damping fraction 1): no overshoot.
    const qreal wt = omega * seconds;
    return 1 - (1 + wt) * std::exp(-wt);
}

int WelcomeViewModel::springDurationMs(qreal distance)
{
    const qreal tolerance = 0.5 / std::max<qreal>(1, std::abs(distance));
    // The remaining way shrinks steadily; step through it in frames.
    int ms = 0;
    while (ms < 3000 && 1 - springProgress(ms / 1000.0) > tolerance)
        ms += 16;
    return ms;
}
