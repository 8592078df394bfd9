#pragma once

#include "AddressBook.h"
#include "KeyValueStore.h"
#include "Telephony.h"
#include "TextSharer.h"
#include "UrlOpener.h"
#include "WidgetRefresher.h"

#include <QString>

#include <memory>

class QDBusConnection;

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
    // The settings suites: the app's own and the one shared with the widget
    // (null when it cannot be opened).
    std::unique_ptr<KeyValueStore> standardSettings;
    std::unique_ptr<KeyValueStore> sharedSettings;
    // The call history's database file.
    QString historyDatabasePath;
};

namespace Platform {

// Gives every empty field of `parts` its Linux backend, with the app's files
// in the user's folders.
void fillMissing(PlatformParts &parts);

// The telephony of this machine, following the services running on
// `systemBus`: ModemManager, else oFono, else the desktop's tel: handler,
// else none. Announces each choice with a "Telephony: " line.
std::unique_ptr<Telephony> chooseTelephony(const QDBusConnection &systemBus);

// A settings suite on the JSON file at `path`; null when it cannot be opened.
std::unique_ptr<KeyValueStore> openSettings(const QString &path);
// A suite kept in memory for this session only.
std::unique_ptr<KeyValueStore> settingsInMemory();

// Folders of the app's own files (XDG config and data homes + "quieton").
QString configDirectory();
QString dataDirectory();

} // namespace Platform
