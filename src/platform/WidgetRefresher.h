#pragma once

// Asks the home-screen widgets to redraw from the shared settings suite.
class WidgetRefresher
{
public:
    virtual ~WidgetRefresher() = default;
    virtual void reloadAllTimelines() = 0;
};
