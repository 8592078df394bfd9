#pragma once

// Crash reporting has no backend yet; the app's start-up makes the one
// instance and screens and models keep it, so that it can be wired in later
// without touching them.
class CrashManager
{
};
