#pragma once

#include "AddressBook.h"

#include <QByteArrayView>

#include <atomic>
#include <functional>

// Reads the people out of vCard text (versions 2.1, 3.0 and 4.0).
//
// Names come from N, or from FN for a card whose N is absent or empty; phone
// numbers are every TEL in order, a tel: URI without its scheme. A card that
// cannot be read is skipped and counted. A property longer than maxLineBytes
// once joined (a large photo, say) is passed over; the rest of its card is
// read. Any bytes may be given; reading time is linear in their length.
class VCardReader
{
public:
    struct Summary
    {
        int contacts = 0;
        int brokenCards = 0;
    };

    static constexpr qsizetype maxLineBytes = 64 * 1024;

    // Stops early, between lines, once `stop` is set.
    static Summary read(QByteArrayView bytes, const std::function<void(AddressBookContact &&contact)> &deliver,
                        const std::atomic<bool> *stop = nullptr);
};
