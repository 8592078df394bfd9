#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

// One person of the address book as the contacts list needs it: the names
// and the phone numbers in the book's own order, as they are displayed.
struct AddressBookContact
{
    QString givenName;
    QString familyName;
    QStringList phoneNumbers;
};

// The user's address book. Both calls block while they work and are meant
// for a worker thread: the contacts list never calls them on the main thread.
class AddressBook
{
public:
    struct AccessAnswer
    {
        bool granted = false;
        // Why access was not granted; empty when there is nothing to tell.
        QString error;
    };

    virtual ~AddressBook() = default;

    virtual AccessAnswer requestAccess() = 0;

    // Hands every contact to `deliver` in the book's order, in non-empty
    // batches. Returns why the enumeration failed (part-way or at once), else
    // an empty string.
    virtual QString enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver) = 0;

    // The app is quitting: a running enumerateContacts returns soon, later
    // ones deliver nothing. Safe on any thread.
    virtual void stop() { }

    // Where the user can give the app access to the book. Safe on any thread.
    virtual QUrl accessSettingsUrl() const = 0;
};
