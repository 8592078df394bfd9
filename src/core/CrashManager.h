#pragma once

// Crash reporting has no backend yet; screens and models keep the one
// instance so that it can be wired in later without touching them.
class CrashManager
{
public:
    static CrashManager &shared()
    {
        static CrashManager instance;
        return instance;
    }
};
