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

QString appFolder(QStandardPaths::StandardLocation location)
{
    // GenericConfig/GenericData honour XDG_CONFIG_HOME and XDG_DATA_HOME.
    return QDir(QStandardPaths::writableLocation(location)).filePath(QStringLiteral("quieton"));
}

} // namespace

void Platform::fillMissing(PlatformParts &parts)
{
    if (!parts.telephony)
        parts.telephony = chooseTelephony(QDBusConnection::systemBus());
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
    const QDir config(configDirectory());
    if (!parts.standardSettings) {
        parts.standardSettings = openSettings(config.filePath(QStringLiteral("quieton.json")));
        // Without a usable settings file the app still runs on defaults it
        // keeps in memory for this session.
        if (!parts.standardSettings)
            parts.standardSettings = settingsInMemory();
    }
    if (!parts.sharedSettings)
        parts.sharedSettings = openSettings(config.filePath(QStringLiteral("group.quieton.DataWidget.json")));
    if (parts.historyDatabasePath.isEmpty())
        parts.historyDatabasePath = QDir(dataDirectory()).filePath(QStringLiteral("CallHistoryData.sqlite"));
}

std::unique_ptr<Telephony> Platform::chooseTelephony(const QDBusConnection &systemBus)
{
    return std::make_unique<SystemTelephony>(systemBus);
}

std::unique_ptr<KeyValueStore> Platform::openSettings(const QString &path)
{
    return JsonFileKeyValueStore::open(path);
}

std::unique_ptr<KeyValueStore> Platform::settingsInMemory()
{
    return JsonFileKeyValueStore::inMemory();
}

QString Platform::configDirectory()
{
    return appFolder(QStandardPaths::GenericConfigLocation);
}

QString Platform::dataDirectory()
{
    return appFolder(QStandardPaths::GenericDataLocation);
}
