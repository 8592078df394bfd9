#pragma once

#include "AddressBook.h"

#include <QByteArrayView>

#include <atomic>
#include <functional>

// Reads the people out of vCard text (versions 2.1, 3.0 and 4.0) as phones
// and address books write it: folded lines, property groups and parameters,
// backslash escapes, quoted-printable values and declared character sets.
//
// Names come from N (family; given; ...), or from FN for a card whose N is
// absent or empty; phone numbers are every TEL in the card's order, a tel:
// URI shown without its scheme. A card that cannot be read (a line that is
// not a property, a card that never ends) is skipped and counted; reading
// goes on with the next card. A property longer than maxLineBytes once its
// continuation lines are joined (a large photo, say) is passed over; the rest
// of its card is read. Any bytes at all may be given, and reading takes time
// in proportion to their length.
class VCardReader
{
public:
    struct Summary
    {
        int contacts = 0;
        int brokenCards = 0;
    };

    static constexpr qsizetype maxLineBytes = 64 * 1024;

    // Hands each readable card to `deliver`, in the order of the text. Stops
    // early, between lines, once `stop` is set.
    static Summary read(QByteArrayView bytes, const std::function<void(AddressBookContact &&contact)> &deliver,
                        const std::atomic<bool> *stop = nullptr);
};
