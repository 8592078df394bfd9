// The address book as a folder of vCard files: access answers, files found, their order, batches.
#include "VCardFolderAddressBook.h"

#include "StdoutCapture.h"

#include <QtTest>

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray card(const QString &family, const QString &phone = QString())
{
    QByteArray text = "BEGIN:VCARD\r\nVERSION:3.0\r\nN:" + family.toUtf8() + ";;;;\r\n";
    if (!phone.isEmpty())
        text += "TEL:" + phone.toUtf8() + "\r\n";
    return text + "END:VCARD\r\n";
}

struct Enumeration
{
    QStringList families;
    QList<qsizetype> batchSizes;
    QString error;
};

Enumeration enumerate(AddressBook &book)
{
    Enumeration result;
    result.error = book.enumerateContacts([&result](QList<AddressBookContact> &&batch) {
        result.batchSizes.append(batch.size());
        for (const AddressBookContact &c : batch)
            result.families.append(c.familyName);
    });
    return result;
}

} // namespace

class TestVCardFolderAddressBook : public QObject
{
    Q_OBJECT

private slots:
    // A CardDAV sync's layout: a folder per book, a card per file, odd files that are not cards.
    void everyVCardBelowTheFolderInPathOrder()
    {
        QTemporaryDir home;
        const QDir root(home.filePath(QStringLiteral("contacts")));
        write(root.filePath("personal/b.vcf"), card("B") + card("B2"));
        write(root.filePath("personal/a.vcf"), card("A"));
        write(root.filePath("work/deeper/c.VCF"), card("C"));
        write(root.filePath("0-top.vcf"), card("Top"));
        write(root.filePath("personal/notes.txt"), card("NotACardFile"));
        write(root.filePath("personal/.tmp-123.vcf"), card("Temporary"));
        write(root.filePath(".state/x.vcf"), card("ToolState"));
        QVERIFY(QFile::link(root.filePath("personal/a.vcf"), root.filePath("work/link.vcf")));
        QVERIFY(QFile::link(root.path(), root.filePath("work/loop")));

        VCardFolderAddressBook book(root.path());
        const Enumeration result = enumerate(book);
        QCOMPARE(result.families, (QStringList{ "Top", "A", "B", "B2", "C", "A" }));
        QVERIFY(result.error.isEmpty());
    }

    // Thousands of one-card files, as a synchronised book has them: one contact per card, in path order.
    void manySmallFilesKeepThePathOrder()
    {
        QTemporaryDir home;
        const int total = 2700;
        QStringList expected;
        for (int i = 0; i < total; ++i) {
            const QString name = QStringLiteral("book/%1.vcf").arg(i, 5, 10, QLatin1Char('0'));
            write(home.filePath(name), i == 1234 ? QByteArray("BEGIN:VCARD\nbroken\nEND:VCARD\n") : card(QString::number(i)));
            if (i != 1234)
                expected.append(QString::number(i));
        }
        StdoutCapture out;
        VCardFolderAddressBook book(home.path());
        const Enumeration result = enumerate(book);
        QCOMPARE(result.families, expected);
        QCOMPARE(result.batchSizes, (QList<qsizetype>{ VCardFolderAddressBook::batchSize, total - 1 - VCardFolderAddressBook::batchSize }));
        QVERIFY(out.lines().contains(QStringLiteral("Address book: skipped 1 unreadable cards in ") + home.path()));

        // Quitting stops a read.
        int batches = 0;
        QCOMPARE(book.enumerateContacts([&](QList<AddressBookContact> &&) { ++batches, book.stop(); }), QString());
        QCOMPARE(batches, 1);
    }

    // No folder is an empty book; a locked file is reported, the rest read; a locked folder is refused.
    void missingOrUnreadableFilesAndFolders()
    {
        QTemporaryDir home;
        const QString folder = home.filePath(QStringLiteral("contacts"));
        VCardFolderAddressBook book(folder);
        QVERIFY(book.requestAccess().granted);
        const Enumeration none = enumerate(book);
        QVERIFY(none.batchSizes.isEmpty());
        QVERIFY(none.error.isEmpty());
        write(folder, card("A"));
        QVERIFY(!book.requestAccess().granted);
        QVERIFY(!book.requestAccess().error.isEmpty());

        QVERIFY(QFile::remove(folder));
        for (const QString name : { "a", "b", "c" })
            write(folder + '/' + name + ".vcf", card(name.toUpper()));
        QVERIFY(QFile::setPermissions(folder + "/b.vcf", QFileDevice::Permissions()));
        if (QFile(folder + "/b.vcf").open(QIODevice::ReadOnly))
            QSKIP("running as the superuser: file permissions do not keep it out");

        QVERIFY(book.requestAccess().granted);
        const Enumeration result = enumerate(book);
        QCOMPARE(result.families, (QStringList{ "A", "C" }));
        QVERIFY2(result.error.contains(QStringLiteral("b.vcf")), qPrintable(result.error));

        QVERIFY(QFile::setPermissions(folder, QFileDevice::Permissions()));
        const auto restore = qScopeGuard([&] {
            QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        });
        const auto answer = book.requestAccess();
        QVERIFY(!answer.granted);
        QVERIFY2(answer.error.contains(folder), qPrintable(answer.error));
        QCOMPARE(book.accessSettingsUrl(), QUrl::fromLocalFile(home.path()));
    }
};

QTEST_GUILESS_MAIN(TestVCardFolderAddressBook)
#include "tst_vcardfolderaddressbook.moc"
