#pragma once

#include "AddressBook.h"
#include "KeyValueStore.h"
#include "Telephony.h"
#include "TextSharer.h"
#include "UrlOpener.h"
#include "WidgetRefresher.h"

#include <QString>

#include <memory>

// The platform services the app runs on. The app's start-up takes one set of
// them and hands each to whoever uses it; a test fills some fields with its
// own parts and lets fillMissing() give the Linux backends for the rest.
struct PlatformParts
{
    std::unique_ptr<Telephony> telephony;
    std::unique_ptr<UrlOpener> urlOpener;
    std::unique_ptr<WidgetRefresher> widgets;
    std::unique_ptr<TextSharer> sharer;
    std::unique_ptr<AddressBook> addressBook;
    // The shared suite is null when it cannot be opened.
    std::unique_ptr<KeyValueStore> standardSettings;
    std::unique_ptr<KeyValueStore> sharedSettings;
    QString historyDatabasePath;
};

namespace Platform {

// Gives every empty field of `parts` its Linux backend, with the app's files
// in the user's folders.
void fillMissing(PlatformParts &parts);

} // namespace Platform
