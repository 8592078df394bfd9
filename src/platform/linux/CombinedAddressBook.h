#pragma once

#include "AddressBook.h"

#include <memory>
#include <vector>

// Several address books read as one, in the order given. The app may read it
// when none refuses with a reason and one at least grants; a book that is
// simply not there (no reason given) is passed over.
class CombinedAddressBook : public AddressBook
{
public:
    explicit CombinedAddressBook(std::vector<std::unique_ptr<AddressBook>> books);

    AccessAnswer requestAccess() override;
    QString enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver) override;
    void stop() override;
    // The first book's place that has one.
    QUrl accessSettingsUrl() const override;

private:
    std::vector<std::unique_ptr<AddressBook>> m_books;
    std::vector<bool> m_granted;
};
