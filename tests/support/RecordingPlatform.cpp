#include "RecordingPlatform.h"

#include "Platform.h"
#include "RecordingSharer.h"
#include "RecordingTelephony.h"
#include "RecordingUrlOpener.h"

RecordingTelephony *RecordingPlatform::installTelephony()
{
    auto telephony = std::make_unique<RecordingTelephony>();
    RecordingTelephony *installed = telephony.get();
    Platform::setTelephony(std::move(telephony));
    return installed;
}

RecordingUrlOpener *RecordingPlatform::installUrlOpener()
{
    auto opener = std::make_unique<RecordingUrlOpener>();
    RecordingUrlOpener *installed = opener.get();
    Platform::setUrlOpener(std::move(opener));
    return installed;
}

RecordingSharer *RecordingPlatform::installSharer()
{
    auto sharer = std::make_unique<RecordingSharer>();
    RecordingSharer *installed = sharer.get();
    Platform::setSharer(std::move(sharer));
    return installed;
}
