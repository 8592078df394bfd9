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

    // Whether the app may read the book.
    virtual AccessAnswer requestAccess() = 0;

    // Hands every contact to `deliver`, in the book's order, a batch at a
    // time (a batch is never empty). Returns an error description when the
    // enumeration failed part-way or at once, else an empty string; contacts
    // delivered before a failure stay delivered.
    virtual QString enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver) = 0;

    // Asks a running enumerateContacts to return soon, with what it has
    // delivered so far, and later ones to deliver nothing: the app is quitting.
    // Safe on any thread.
    virtual void stop() { }

    // Where the user can give the app access to the book (a settings page,
    // or the place the book is kept). Safe on any thread.
    virtual QUrl accessSettingsUrl() const = 0;
};
