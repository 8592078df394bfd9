#pragma once

#include "AddressBook.h"

#include <QDBusConnection>
#include <QStringList>

#include <memory>
#include <mutex>

// Evolution Data Server's address books (EdsAddressBook), from a module
// loaded on first use. Its client library brings some forty libraries with
// it: linked into the app they cost every launch 7 MiB resident and time
// (bench_startup, empty home: 54 -> 61 MiB). A session bus without the
// service (nothing provides or can start it) never loads the module: that is
// no refusal, the answer is "not granted" with no reason, and the book reads
// as empty. So does a module that cannot be loaded.
class EdsModuleAddressBook : public AddressBook
{
public:
    static constexpr auto registryService = "org.gnome.evolution.dataserver.Sources5";

    // Beside the program (a build), then where it is installed.
    static QStringList defaultModulePaths();

    explicit EdsModuleAddressBook(QDBusConnection sessionBus = QDBusConnection::sessionBus(),
                                  QStringList modulePaths = defaultModulePaths());

    AccessAnswer requestAccess() override;
    QString enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver) override;
    void stop() override;
    QUrl accessSettingsUrl() const override { return {}; }

private:
    // Whether the session bus has the service or can start it.
    bool isAvailable() const;
    AddressBook *book();

    QDBusConnection m_bus;
    QStringList m_modulePaths;
    std::mutex m_mutex; // stop() comes from the main thread while a worker reads
    bool m_tried = false;
    bool m_stopped = false;
    // The module stays loaded: its book is gone before, and nothing else of it is kept.
    std::unique_ptr<AddressBook> m_book;
};
