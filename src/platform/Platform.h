#pragma once

#include <QString>

#include <memory>

class AddressBook;
class KeyValueStore;
class QDBusConnection;
class Telephony;
class TextSharer;
class UrlOpener;
class WidgetRefresher;

// The platform services the app runs on, each created on first use with the
// real Linux backend. Test programs install their own before first use.
class Platform
{
public:
    static Telephony &telephony();
    static UrlOpener &urlOpener();
    static WidgetRefresher &widgets();
    static TextSharer &sharer();
    // Safe to use from a worker thread once it has been asked for on the main thread.
    static AddressBook &addressBook();

    // The telephony of this machine, following the services running on
    // `systemBus`: ModemManager, else oFono, else the desktop's tel: handler,
    // else none (SystemTelephony). Announces each choice with a "Telephony: " line.
    static std::unique_ptr<Telephony> chooseTelephony(const QDBusConnection &systemBus);

    static void setTelephony(std::unique_ptr<Telephony> telephony);
    static void setUrlOpener(std::unique_ptr<UrlOpener> opener);
    static void setWidgets(std::unique_ptr<WidgetRefresher> widgets);
    static void setSharer(std::unique_ptr<TextSharer> sharer);
    static void setAddressBook(std::unique_ptr<AddressBook> book);

    // Folders of the app's own files (XDG config and data homes + "quieton").
    static QString configDirectory();
    static QString dataDirectory();
};
