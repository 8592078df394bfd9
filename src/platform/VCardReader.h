#pragma once

#include "AddressBook.h"

#include <QByteArrayView>

#include <functional>

// Reads the people out of vCard text (versions 2.1, 3.0 and 4.0) as phones
// and address books write it: folded lines, property groups and parameters,
// backslash escapes, quoted-printable values and declared character sets.
//
// Names come from N (family; given; ...), or from FN for a card whose N is
// absent or empty; phone numbers are every TEL in the card's order, a tel:
// URI shown without its scheme. A card that cannot be read (a line that is
// not a property, a card that never ends) is skipped and counted; reading
// goes on with the next card. Any bytes at all may be given.
class VCardReader
{
public:
    struct Summary
    {
        int contacts = 0;
        int brokenCards = 0;
    };

    // Hands each readable card to `deliver`, in the order of the text.
    static Summary read(QByteArrayView bytes, const std::function<void(AddressBookContact &&contact)> &deliver);

    // Convenience for small inputs: all contacts at once.
    static QList<AddressBookContact> readAll(QByteArrayView bytes, Summary *summary = nullptr);
};
