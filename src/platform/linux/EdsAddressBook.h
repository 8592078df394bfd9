#pragma once

#include "AddressBook.h"

// The address books of Evolution Data Server, where GNOME Contacts, Phosh's
// and Plasma Mobile's contact tools and CardDAV/online accounts keep a phone's
// contacts: every book the user has enabled, in the registry's order, each
// contact in the book's own order.
//
// Access is granted when the service's source registry answers. Built as a
// module of its own (quieton-eds.so, see EdsModuleAddressBook), which the app
// loads only when the service is there.
class EdsAddressBook : public AddressBook
{
public:
    static constexpr qsizetype batchSize = 2000;

    EdsAddressBook();
    ~EdsAddressBook() override;

    AccessAnswer requestAccess() override;
    QString enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver) override;
    void stop() override;
    QUrl accessSettingsUrl() const override { return {}; }

private:
    // A GCancellable, cancelled by stop().
    void *m_cancellable = nullptr;
};
