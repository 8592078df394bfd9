// Reading vCard text of the three versions as phones and address books write it.
#include "VCardReader.h"

#include <QtTest>

namespace {

QByteArray crlf(const char *text)
{
    return QByteArray(text).replace("\n", "\r\n");
}

} // namespace

class TestVCardReader : public QObject
{
    Q_OBJECT

private slots:
    // Each contact read is written "family|given|phone,phone".
    void cards_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("contacts");
        QTest::addColumn<int>("broken");
        QTest::newRow("3.0: folding, groups, escapes")
                << crlf("BEGIN:VCARD\nVERSION:3.0\nitem1.N;CHARSET=UTF-8:Dupont-\n Lefèvre;Anne\\, Marie;;;\n"
                        "FN:Anne Dupont\nitem1.TEL;TYPE=\"work,voice\":+33 1 23\n\t45 67 89\nTEL;TYPE=CELL:06 12 34 56 78\n"
                        "NOTE:line one\\nline two\\; with: colon\nEND:VCARD\n")
                << QStringList{ "Dupont-Lefèvre|Anne, Marie|+33 1 2345 67 89,06 12 34 56 78" } << 0;
        QTest::newRow("4.0: tel URIs, several cards")
                << QByteArray("BEGIN:VCARD\nVERSION:4.0\nN:Stevenson;John;Philip,Paul;Dr.;Jr.\n"
                              "TEL;VALUE=uri;PREF=1;TYPE=\"voice,home\":tel:+1-555-555-5555\n"
                              "TEL;VALUE=uri;TYPE=work:tel:%2B44-20-7946-0000\nEND:VCARD\n"
                              "BEGIN:VCARD\nVERSION:4.0\nN:;Zoë;;;\nEND:VCARD\n")
                << QStringList{ "Stevenson|John|+1-555-555-5555,+44-20-7946-0000", "|Zoë|" } << 0;
        // Old phones: the photo's base64 runs on unindented lines up to a blank line.
        QTest::newRow("2.1: quoted-printable, charsets, photo")
                << crlf("BEGIN:VCARD\nVERSION:2.1\nN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:=C3=89lo=C3=AFse=20Be=\n"
                        "rg=C3=A8re;Fran=C3=A7ois;;;\nTEL;CELL;PREF:+49 170 1234567\nTEL;HOME:030 123\nEND:VCARD\n"
                        "BEGIN:VCARD\nVERSION:2.1\nN;CHARSET=ISO-8859-1;QUOTED-PRINTABLE:M=FCller;J=FCrgen\nEND:VCARD\n"
                        "BEGIN:VCARD\nVERSION:2.1\nN;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:Ng=C3=B4;Th=\n =E1=BB=8B=\n\nEND:VCARD\n"
                        "BEGIN:VCARD\nVERSION:2.1\nN:Photo;Peter\nPHOTO;ENCODING=BASE64;TYPE=JPEG:/9j/4AAQSkZJRgABAQ\n"
                        "AAAQABAAD/2wBDAAgGBgcGBQgHBwcJCQgKDBQNDAsLDBkSEw8U\n\nTEL:555\nEND:VCARD\n")
                << QStringList{ "Éloïse Bergère|François|+49 170 1234567,030 123", "Müller|Jürgen|", "Ngô|Thị|", "Photo|Peter|555" }
                << 0;
        QTest::newRow("FN only where N is missing or empty")
                << QByteArray("BEGIN:VCARD\nVERSION:3.0\nFN:Acme Plumbing\nTEL:0800 123\nEND:VCARD\n"
                              "BEGIN:VCARD\nVERSION:3.0\nN:;;;;\nFN:Shop\nEND:VCARD\n"
                              "BEGIN:VCARD\nVERSION:3.0\nFN:Ignored Name\nN:Real;Name\nEND:VCARD\n")
                << QStringList{ "|Acme Plumbing|0800 123", "|Shop|", "Real|Name|" } << 0;
        QTest::newRow("broken cards skipped and counted")
                << QByteArray("junk before any card\n"
                              "BEGIN:VCARD\nVERSION:3.0\nN:One;First\nEND:VCARD\n"
                              "BEGIN:VCARD\nVERSION:3.0\nN:Two;Broken\nthis line is no property\nEND:VCARD\n"
                              "BEGIN:VCARD\nVERSION:3.0\nN:Three;Unended\n"
                              "BEGIN:VCARD\nVERSION:3.0\nN:Four;Fine\nTEL:4\nEND:VCARD\n"
                              "BEGIN:VCARD\nVERSION:3.0\nbad name here:x\nEND:VCARD\n"
                              "BEGIN:VCARD\nVERSION:3.0\nN:Five;Cut off at the end of the file\n")
                << QStringList{ "One|First|", "Four|Fine|4" } << 4;
        // LF or CR (CRLF above), any case; undeclared 8-bit text is read as Latin-1.
        const QByteArray lf = "begin:vcard\nversion:2.1\nn:G\xF6tz;case\ntel:1\nend:vcard\n";
        const QStringList goetz{ "Götz|case|1" };
        QTest::newRow("LF, lower case, Latin-1") << lf << goetz << 0;
        QTest::newRow("CR") << QByteArray(lf).replace('\n', '\r') << goetz << 0;
        // Endless continuation lines, read in linear time: the overlong property is passed over, not its card.
        const auto overlong = [](const QByteArray &start, const QByteArray &continuation) {
            return "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:F\r\n" + start + continuation.repeated(500000) + "\r\nTEL:1\r\nEND:VCARD\r\n";
        };
        QTest::newRow("overlong fold") << overlong("NOTE x", "=\r\n a") << QStringList{ "|F|1" } << 0;
        QTest::newRow("overlong soft breaks") << overlong("N;ENCODING=QUOTED-PRINTABLE:x", "=\r\nab") << QStringList{ "|F|1" } << 0;
    }
    void cards()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, contacts);
        QFETCH(int, broken);
        QStringList found;
        const VCardReader::Summary summary = VCardReader::read(text, [&found](AddressBookContact &&c) {
            found.append(c.familyName + u'|' + c.givenName + u'|' + c.phoneNumbers.join(u','));
        });
        QCOMPARE(found, contacts);
        QCOMPARE(summary.contacts, contacts.size());
        QCOMPARE(summary.brokenCards, broken);
    }

    // Reading stops between lines once told to (the app is quitting).
    void stopsWhenTold()
    {
        std::atomic<bool> stop = false;
        const QByteArray many = QByteArray("BEGIN:VCARD\nN:A\nEND:VCARD\n").repeated(5000);
        QCOMPARE(VCardReader::read(many, [&stop](AddressBookContact &&) { stop = true; }, &stop).contacts, 1);
    }
};

QTEST_GUILESS_MAIN(TestVCardReader)
#include "tst_vcardreader.moc"
