// Reading vCard text of the three versions as phones and address books write it.
#include "VCardReader.h"

#include <QtTest>

namespace {

QByteArray crlf(const char *text)
{
    return QByteArray(text).replace("\n", "\r\n");
}

struct Person
{
    QString given, family;
    QStringList phones;
};

QList<Person> people(const QByteArray &bytes, VCardReader::Summary *summary = nullptr)
{
    QList<Person> out;
    for (const AddressBookContact &c : VCardReader::readAll(bytes, summary))
        out.append({ c.givenName, c.familyName, c.phoneNumbers });
    return out;
}

} // namespace

class TestVCardReader : public QObject
{
    Q_OBJECT

private slots:
    void version3WithFoldingGroupsAndEscapes()
    {
        VCardReader::Summary summary;
        const auto found = people(crlf("BEGIN:VCARD\n"
                                       "VERSION:3.0\n"
                                       "item1.N;CHARSET=UTF-8:Dupont-\n"
                                       " Lefèvre;Anne\\, Marie;;;\n"
                                       "FN:Anne Dupont\n"
                                       "item1.TEL;TYPE=\"work,voice\":+33 1 23\n"
                                       "\t45 67 89\n"
                                       "TEL;TYPE=CELL:06 12 34 56 78\n"
                                       "NOTE:line one\\nline two\\; with: colon\n"
                                       "END:VCARD\n"),
                                  &summary);
        QCOMPARE(summary.contacts, 1);
        QCOMPARE(summary.brokenCards, 0);
        QCOMPARE(found.size(), 1);
        QCOMPARE(found[0].family, QStringLiteral("Dupont-Lefèvre"));
        QCOMPARE(found[0].given, QStringLiteral("Anne, Marie"));
        QCOMPARE(found[0].phones, (QStringList{ "+33 1 2345 67 89", "06 12 34 56 78" }));
    }

    void version4TelUrisAndSeveralCardsInOneFile()
    {
        const auto found = people("BEGIN:VCARD\nVERSION:4.0\nN:Stevenson;John;Philip,Paul;Dr.;Jr.\n"
                                  "TEL;VALUE=uri;PREF=1;TYPE=\"voice,home\":tel:+1-555-555-5555\n"
                                  "TEL;VALUE=uri;TYPE=work:tel:%2B44-20-7946-0000\n"
                                  "END:VCARD\n"
                                  "BEGIN:VCARD\nVERSION:4.0\nN:;Zoë;;;\nEND:VCARD\n");
        QCOMPARE(found.size(), 2);
        QCOMPARE(found[0].given, QStringLiteral("John"));
        QCOMPARE(found[0].phones, (QStringList{ "+1-555-555-5555", "+44-20-7946-0000" }));
        QCOMPARE(found[1].given, QStringLiteral("Zoë"));
    }

    // Old phones: 2.1 with quoted-printable soft line breaks, 8-bit charsets and photos.
    void version21QuotedPrintableAndCharsets()
    {
        const auto found = people(crlf("BEGIN:VCARD\n"
                                       "VERSION:2.1\n"
                                       "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:=C3=89lo=C3=AFse=20Be=\n"
                                       "rg=C3=A8re;Fran=C3=A7ois;;;\n"
                                       "TEL;CELL;PREF:+49 170 1234567\n"
                                       "TEL;HOME:030 123\n"
                                       "END:VCARD\n"
                                       "BEGIN:VCARD\n"
                                       "VERSION:2.1\n"
                                       "N;CHARSET=ISO-8859-1;QUOTED-PRINTABLE:M=FCller;J=FCrgen\n"
                                       "END:VCARD\n"
                                       "BEGIN:VCARD\n"
                                       "VERSION:2.1\n"
                                       "N;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:Ng=C3=B4;Th=\n"
                                       " =E1=BB=8B=\n"
                                       "\n"
                                       "END:VCARD\n"
                                       // A photo runs on unindented base64 lines up to a blank line.
                                       "BEGIN:VCARD\nVERSION:2.1\nN:Photo;Peter\n"
                                       "PHOTO;ENCODING=BASE64;TYPE=JPEG:/9j/4AAQSkZJRgABAQ\n"
                                       "AAAQABAAD/2wBDAAgGBgcGBQgHBwcJCQgKDBQNDAsLDBkSEw8U\n"
                                       "\n"
                                       "TEL:555\nEND:VCARD\n"));
        QCOMPARE(found.size(), 4);
        QCOMPARE(found[3].phones, QStringList{ "555" });
        QCOMPARE(found[0].family, QStringLiteral("Éloïse Bergère"));
        QCOMPARE(found[0].phones, (QStringList{ "+49 170 1234567", "030 123" }));
        QCOMPARE(found[1].given, QStringLiteral("Jürgen"));
        QCOMPARE(found[2].given, QStringLiteral("Thị"));
    }

    void formattedNameOnlyWhereNameIsMissing()
    {
        const auto found = people("BEGIN:VCARD\nVERSION:3.0\nFN:Acme Plumbing\nTEL:0800 123\nEND:VCARD\n"
                                  "BEGIN:VCARD\nVERSION:3.0\nN:;;;;\nFN:Shop\nEND:VCARD\n"
                                  "BEGIN:VCARD\nVERSION:3.0\nFN:Ignored Name\nN:Real;Name\nEND:VCARD\n");
        QCOMPARE(found.size(), 3);
        QCOMPARE(found[0].given, QStringLiteral("Acme Plumbing"));
        QCOMPARE(found[1].given, QStringLiteral("Shop"));
        QCOMPARE(found[2].given, QStringLiteral("Name"));
    }

    void brokenCardsAreSkippedAndCounted()
    {
        VCardReader::Summary summary;
        const auto found = people("junk before any card\n"
                                  "BEGIN:VCARD\nVERSION:3.0\nN:One;First\nEND:VCARD\n"
                                  "BEGIN:VCARD\nVERSION:3.0\nN:Two;Broken\nthis line is no property\nEND:VCARD\n"
                                  "BEGIN:VCARD\nVERSION:3.0\nN:Three;Unended\n"
                                  "BEGIN:VCARD\nVERSION:3.0\nN:Four;Fine\nTEL:4\nEND:VCARD\n"
                                  "BEGIN:VCARD\nVERSION:3.0\nbad name here:x\nEND:VCARD\n"
                                  "BEGIN:VCARD\nVERSION:3.0\nN:Five;Cut off at the end of the file\n",
                                  &summary);
        QCOMPARE(summary.brokenCards, 4);
        QCOMPARE(summary.contacts, 2);
        QCOMPARE(found.size(), 2);
        QCOMPARE(found[0].family, QStringLiteral("One"));
        QCOMPARE(found[1].family, QStringLiteral("Four"));
        QCOMPARE(found[1].phones, QStringList{ "4" });
    }

    // Any line ending, any case; undeclared 8-bit text is read as Latin-1.
    void lineEndingsCaseAndUndeclaredCharsets()
    {
        const QByteArray lf = "begin:vcard\nversion:2.1\nn:G\xF6tz;case\ntel:1\nend:vcard\n";
        QByteArray cr = lf;
        cr.replace('\n', '\r');
        for (const QByteArray &bytes : { lf, crlf(lf.constData()), cr }) {
            const auto found = people(bytes);
            QCOMPARE(found.size(), 1);
            QCOMPARE(found[0].family, QStringLiteral("Götz"));
            QCOMPARE(found[0].phones, QStringList{ "1" });
        }
    }

    // Endless continuation lines (folds ending in "=", quoted-printable soft
    // breaks): read in time linear in their length, and a property longer
    // than the bound is passed over while the rest of its card is read.
    void overlongPropertiesArePassedOver()
    {
        const std::pair<QByteArray, QByteArray> rows[] = {
            { "NOTE x", "=\r\n a" },
            { "N;ENCODING=QUOTED-PRINTABLE:x", "=\r\nab" },
        };
        for (const auto &[start, continuation] : rows) {
            const QByteArray bytes = "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:F\r\n" + start
                    + continuation.repeated(500000) + "\r\nTEL:1\r\nEND:VCARD\r\n";
            VCardReader::Summary summary;
            const auto found = people(bytes, &summary);
            QCOMPARE(summary.brokenCards, 0);
            QCOMPARE(found.size(), 1);
            QCOMPARE(found[0].given, QStringLiteral("F"));
            QCOMPARE(found[0].family, QString());
            QCOMPARE(found[0].phones, QStringList{ "1" });
        }
        // Reading stops between lines once told to (the app is quitting).
        std::atomic<bool> stop = false;
        const QByteArray many = QByteArray("BEGIN:VCARD\nN:A\nEND:VCARD\n").repeated(5000);
        QCOMPARE(VCardReader::read(many, [&stop](AddressBookContact &&) { stop = true; }, &stop).contacts, 1);
    }
};

QTEST_GUILESS_MAIN(TestVCardReader)
#include "tst_vcardreader.moc"
