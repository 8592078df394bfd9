// vCard text from the address-book folder: never a crash, never more
// contacts than cards begun (a BEGIN may be folded over lines), never an
// empty phone number, and the count handed back matches what was delivered.
#include "FuzzCheck.h"
#include "VCardReader.h"

#include <QRegularExpression>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(data, qsizetype(size));
    int delivered = 0;
    const VCardReader::Summary summary = VCardReader::read(bytes, [&delivered](AddressBookContact &&contact) {
        ++delivered;
        for (const QString &phone : contact.phoneNumbers)
            FUZZ_CHECK(!phone.isEmpty());
    });
    FUZZ_CHECK(summary.contacts == delivered);
    static const QRegularExpression fold(QStringLiteral("(\\r\\n|\\r|\\n)[ \\t]"));
    const QString unfolded = QString::fromLatin1(bytes).replace(fold, QString());
    FUZZ_CHECK(delivered + summary.brokenCards <= unfolded.count(QLatin1StringView("begin"), Qt::CaseInsensitive));
    return 0;
}
