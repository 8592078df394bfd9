#include "Platform.h"

#include "ClipboardSharer.h"
#include "DesktopUrlOpener.h"
#include "NoWidgetHost.h"
#include "SystemTelephony.h"
#include "VCardFolderAddressBook.h"

#include <QDir>
#include <QStandardPaths>

namespace {

struct Backends
{
    std::unique_ptr<Telephony> telephony;
    std::unique_ptr<UrlOpener> urlOpener;
    std::unique_ptr<WidgetRefresher> widgets;
    std::unique_ptr<TextSharer> sharer;
    std::unique_ptr<AddressBook> addressBook;
};

Backends &backends()
{
    static Backends instance;
    return instance;
}

QString appFolder(QStandardPaths::StandardLocation location)
{
    // GenericConfig/GenericData honour XDG_CONFIG_HOME and XDG_DATA_HOME.
    return QDir(QStandardPaths::writableLocation(location)).filePath(QStringLiteral("quieton"));
}

} // namespace

Telephony &Platform::telephony()
{
    auto &slot = backends().telephony;
    if (!slot)
        slot = chooseTelephony(QDBusConnection::systemBus());
    return *slot;
}

UrlOpener &Platform::urlOpener()
{
    auto &slot = backends().urlOpener;
    if (!slot)
        slot = std::make_unique<DesktopUrlOpener>();
    return *slot;
}

WidgetRefresher &Platform::widgets()
{
    auto &slot = backends().widgets;
    if (!slot)
        slot = std::make_unique<NoWidgetHost>();
    return *slot;
}

TextSharer &Platform::sharer()
{
    auto &slot = backends().sharer;
    if (!slot)
        slot = std::make_unique<ClipboardSharer>();
    return *slot;
}

AddressBook &Platform::addressBook()
{
    auto &slot = backends().addressBook;
    if (!slot)
        slot = std::make_unique<VCardFolderAddressBook>();
    return *slot;
}

std::unique_ptr<Telephony> Platform::chooseTelephony(const QDBusConnection &systemBus)
{
    return std::make_unique<SystemTelephony>(systemBus);
}

void Platform::setTelephony(std::unique_ptr<Telephony> telephony) { backends().telephony = std::move(telephony); }
void Platform::setUrlOpener(std::unique_ptr<UrlOpener> opener) { backends().urlOpener = std::move(opener); }
void Platform::setWidgets(std::unique_ptr<WidgetRefresher> widgets) { backends().widgets = std::move(widgets); }
void Platform::setSharer(std::unique_ptr<TextSharer> sharer) { backends().sharer = std::move(sharer); }
void Platform::setAddressBook(std::unique_ptr<AddressBook> book) { backends().addressBook = std::move(book); }

QString Platform::configDirectory()
{
    return appFolder(QStandardPaths::GenericConfigLocation);
}

QString Platform::dataDirectory()
{
    return appFolder(QStandardPaths::GenericDataLocation);
}
