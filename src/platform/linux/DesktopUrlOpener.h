#pragma once

#include "UrlOpener.h"

// The desktop's URL opener (xdg-open and friends).
class DesktopUrlOpener : public UrlOpener
{
public:
    bool canOpen(const QUrl &url) override;
    bool open(const QUrl &url) override;
    void openSystemSettings() override;
};
