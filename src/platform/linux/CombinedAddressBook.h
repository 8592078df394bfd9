#pragma once

#include "AddressBook.h"

#include <memory>
#include <vector>

// Several address books read as one, in the order given: the app may read it
// when it may read any of them, and reads those it may.
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
