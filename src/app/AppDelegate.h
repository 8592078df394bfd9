#pragma once

// The platform's hook at launch. Nothing needs doing there yet.
class AppDelegate
{
public:
    bool didFinishLaunching() { return true; }
};
