#include "Platform.h"

#include "ClipboardSharer.h"
#include "CombinedAddressBook.h"
#include "DesktopUrlOpener.h"
#include "EdsModuleAddressBook.h"
#include "JsonFileKeyValueStore.h"
#include "NoWidgetHost.h"
#include "SystemTelephony.h"
#include "VCardFolderAddressBook.h"

#include <QDir>
#include <QStandardPaths>

namespace {

// The app's folder in `location`; GenericConfig/GenericData honour
// XDG_CONFIG_HOME and XDG_DATA_HOME.
QDir appFolder(QStandardPaths::StandardLocation location)
{
    return QDir(QDir(QStandardPaths::writableLocation(location)).filePath(QStringLiteral("quieton")));
}

} // namespace

void Platform::fillMissing(PlatformParts &parts)
{
    if (!parts.telephony)
        parts.telephony = std::make_unique<SystemTelephony>(QDBusConnection::systemBus());
    if (!parts.urlOpener)
        parts.urlOpener = std::make_unique<DesktopUrlOpener>();
    if (!parts.widgets)
        parts.widgets = std::make_unique<NoWidgetHost>();
    if (!parts.sharer)
        parts.sharer = std::make_unique<ClipboardSharer>();
    if (!parts.addressBook) {
        // Evolution Data Server's books, then the vCard folder that sync tools fill.
        std::vector<std::unique_ptr<AddressBook>> books;
        books.push_back(std::make_unique<EdsModuleAddressBook>());
        books.push_back(std::make_unique<VCardFolderAddressBook>());
        parts.addressBook = std::make_unique<CombinedAddressBook>(std::move(books));
    }
    const QDir config = appFolder(QStandardPaths::GenericConfigLocation);
    if (!parts.standardSettings) {
        parts.standardSettings = JsonFileKeyValueStore::open(config.filePath(QStringLiteral("quieton.json")));
        // Without a usable settings file the app still runs on defaults it
        // keeps in memory for this session.
        if (!parts.standardSettings)
            parts.standardSettings = JsonFileKeyValueStore::inMemory();
    }
    if (!parts.sharedSettings)
        parts.sharedSettings = JsonFileKeyValueStore::open(config.filePath(QStringLiteral("group.quieton.DataWidget.json")));
    if (parts.historyDatabasePath.isEmpty())
        parts.historyDatabasePath = appFolder(QStandardPaths::GenericDataLocation).filePath(QStringLiteral("CallHistoryData.sqlite"));
}
