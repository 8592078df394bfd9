#pragma once

#include "AddressBook.h"

#include <atomic>

// The address book as a folder of vCard files, the way CardDAV
// synchronisation tools keep it: every .vcf file below the folder, at any
// depth, holds one or more cards. Files are read in the order of their paths.
//
// No folder means an empty book the app may read; a folder that exists but
// cannot be listed means no access, with the system's reason.
class VCardFolderAddressBook : public AddressBook
{
public:
    static constexpr qsizetype batchSize = 2000;

    // $XDG_DATA_HOME/contacts.
    static QString defaultFolder();

    explicit VCardFolderAddressBook(const QString &folder = defaultFolder());

    AccessAnswer requestAccess() override;
    QString enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver) override;
    // The book's folder (its parent when it cannot be opened).
    QUrl accessSettingsUrl() const override;
    // Checked between files and between the lines of a file.
    void stop() override { m_stopped = true; }

private:
    QString m_folder;
    std::atomic<bool> m_stopped = false;
};
