#pragma once

#include "WidgetRefresher.h"

// Linux desktops and phones have no host for the app's widget yet, so there
// is nothing to refresh.
class NoWidgetHost : public WidgetRefresher
{
public:
    void reloadAllTimelines() override { }
};
