#pragma once

#include "AddressBook.h"

#include <QDBusConnection>
#include <QStringList>

#include <memory>
#include <mutex>

// Evolution Data Server's address books (EdsAddressBook), from a module
// loaded on first use: linked into the app, its client library's forty
// libraries cost every launch 7 MiB resident (bench_startup). Without the
// service on the session bus, or without the module, the answer is "not
// granted" with no reason and the book reads as empty.
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
