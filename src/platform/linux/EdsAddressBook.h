#pragma once

#include "AddressBook.h"

#include <QDBusConnection>

#include <atomic>

// The address books of Evolution Data Server, where GNOME Contacts, Phosh's
// and Plasma Mobile's contact tools and CardDAV/online accounts keep a phone's
// contacts: every book the user has enabled, in the registry's order, each
// contact in the book's own order.
//
// Access is granted when the service's source registry answers. A session
// without the service (nothing provides or can start it) is not a refusal:
// the answer is "not granted" with no reason, and the book reads as empty.
class EdsAddressBook : public AddressBook
{
public:
    static constexpr auto registryService = "org.gnome.evolution.dataserver.Sources5";
    // Contacts handed over at a time.
    static constexpr qsizetype batchSize = 2000;

    explicit EdsAddressBook(QDBusConnection sessionBus = QDBusConnection::sessionBus());
    ~EdsAddressBook() override;

    // Whether the session bus has the service or can start it.
    bool isAvailable() const;

    AccessAnswer requestAccess() override;
    QString enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver) override;
    void stop() override;
    QUrl accessSettingsUrl() const override { return {}; }

private:
    QDBusConnection m_bus;
    // A GCancellable, cancelled by stop().
    void *m_cancellable = nullptr;
};
