#pragma once

class RecordingSharer;
class RecordingTelephony;
class RecordingUrlOpener;

// Installs a recording part as the app's own platform part and returns it;
// the platform owns it until another one replaces it.
class RecordingPlatform
{
public:
    static RecordingTelephony *installTelephony();
    static RecordingUrlOpener *installUrlOpener();
    static RecordingSharer *installSharer();
};
