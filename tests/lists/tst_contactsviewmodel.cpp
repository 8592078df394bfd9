// The contacts model over a real vCard folder and real settings files:
// loading, access answers, sorting, searching and the call it places.
#include "ContactsListModel.h"
#include "ContactsViewModel.h"
#include "JsonFileKeyValueStore.h"
#include "Platform.h"
#include "RecordingPlatform.h"
#include "RecordingTelephony.h"
#include "RecordingUrlOpener.h"
#include "Service.h"
#include "StdoutCapture.h"
#include "TestHome.h"
#include "UserDefaultsService.h"
#include "VCardFolderAddressBook.h"

#include <QDir>
#include <QFile>
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

namespace {

QString contactsFolder()
{
    return QDir(qEnvironmentVariable("XDG_DATA_HOME")).filePath(QStringLiteral("contacts"));
}

struct Card
{
    QString first, last;
    QStringList phones;
};

// Replaces the address book's folder with one file holding `cards`.
void writeBook(const QList<Card> &cards)
{
    QDir(contactsFolder()).removeRecursively();
    QDir().mkpath(contactsFolder());
    QByteArray text;
    for (const Card &c : cards) {
        text += "BEGIN:VCARD\r\nVERSION:3.0\r\nN:" + c.last.toUtf8() + ";" + c.first.toUtf8() + ";;;\r\n";
        for (const QString &phone : c.phones)
            text += "TEL;TYPE=CELL:" + phone.toUtf8() + "\r\n";
        text += "END:VCARD\r\n";
    }
    QFile file(QDir(contactsFolder()).filePath(QStringLiteral("book.vcf")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

// An address book on the real folder that counts the access requests.
class CountingAddressBook : public VCardFolderAddressBook
{
public:
    using VCardFolderAddressBook::VCardFolderAddressBook;
    std::atomic<int> requests = 0;
    AccessAnswer requestAccess() override
    {
        ++requests;
        return VCardFolderAddressBook::requestAccess();
    }
};

QStringList firstNames(const QList<FetchedContact> &contacts)
{
    QStringList names;
    for (const FetchedContact &c : contacts)
        names.append(c.firstName);
    return names;
}

QStringList lastNames(const QList<FetchedContact> &contacts)
{
    QStringList names;
    for (const FetchedContact &c : contacts)
        names.append(c.lastName);
    return names;
}

} // namespace

class TestContactsViewModel : public QObject
{
    Q_OBJECT

    CountingAddressBook *m_book = nullptr;
    RecordingTelephony *m_telephony = nullptr;
    RecordingUrlOpener *m_opener = nullptr;

    void setSort(qint64 key, bool ascending)
    {
        UserDefaultsService::shared()->setInteger(QStringLiteral("autoSortBy"), key);
        UserDefaultsService::shared()->setBool(QStringLiteral("comparator"), ascending);
    }

    // A model that has been shown once and has read the whole book.
    std::unique_ptr<ContactsViewModel> loaded()
    {
        auto model = std::make_unique<ContactsViewModel>();
        QSignalSpy done(model.get(), &ContactsViewModel::contactsLoaded);
        model->updateContacts();
        if (!done.wait(5000))
            qWarning("the address book was not read");
        return model;
    }

private slots:
    void initTestCase()
    {
        TestHome::use();
        auto book = std::make_unique<CountingAddressBook>();
        m_book = book.get();
        Platform::setAddressBook(std::move(book));
        m_telephony = RecordingPlatform::installTelephony();
        m_opener = RecordingPlatform::installUrlOpener();
    }

    void noFolderMeansNoContactsAndNoRefusal()
    {
        QDir(contactsFolder()).removeRecursively();
        auto model = loaded();
        QVERIFY(model->contactsArray().isEmpty());
        QVERIFY(!model->accessDenied());
        QVERIFY(model->contactsPermissionRequested());
        QCOMPARE(model->visibleContactsModel()->count(), 0);
    }

    // Book order, one record per person with the first number, ids from one
    // counter, and no sorting until the next sortContacts().
    void loadingKeepsTheBookOrder()
    {
        setSort(0, true);
        writeBook({ { "Zed", "Last", { "3", "4", "5" } }, { "Amy", "", {} }, { "Mia", "Moe", { "+33 6" } } });
        const qint64 firstId = FetchedContact::peekNextId();
        auto model = loaded();
        const QList<FetchedContact> contacts = model->contactsArray();
        QCOMPARE(contacts.size(), 3);
        QCOMPARE(firstNames(contacts), (QStringList{ "Zed", "Amy", "Mia" }));
        QCOMPARE(contacts[0].telephone, QStringLiteral("3"));
        QCOMPARE(contacts[1].telephone, QString());
        QCOMPARE(contacts[1].lastName, QString());
        QCOMPARE(contacts[2].telephone, QStringLiteral("+33 6"));
        QCOMPARE(contacts[0].id, firstId);
        QCOMPARE(contacts[2].id, firstId + 2);
        QCOMPARE(model->visibleContactsModel()->count(), 3);

        // Shown again: sorted now, and a reload never reuses ids.
        model->updateContacts();
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "Amy", "Mia", "Zed" }));
        auto second = loaded();
        QCOMPARE(second->contactsArray().first().id, firstId + 3);
    }

    // Showing the tab again sorts only when the order would change: the
    // list keeps its rows (no reset) when key, direction and people are
    // the same, and follows any change of them.
    void showingAgainResortsOnlyWhatChanged()
    {
        setSort(1, true);
        writeBook({ { "A", "Zed", { "1" } }, { "B", "Amy", { "2" } }, { "C", "Mia", { "3" } } });
        auto model = loaded();
        model->updateContacts();
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "B", "C", "A" }));
        ContactsListModel *rows = model->visibleContactsModel();
        QSignalSpy resets(rows, &QAbstractItemModel::modelReset);
        QSignalSpy changes(model.get(), &ContactsViewModel::contactsArrayChanged);
        model->updateContacts();
        model->sortContacts();
        QCOMPARE(resets.count(), 0);
        QCOMPARE(changes.count(), 0);

        model->setComparator(false);
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "A", "C", "B" }));
        QCOMPARE(resets.count(), 1);
        model->updateContacts();
        QCOMPARE(resets.count(), 1);

        // Another key from the settings, then back to the first one.
        setSort(0, false);
        model->updateContacts();
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "C", "B", "A" }));
        setSort(1, false);
        model->updateContacts();
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "A", "C", "B" }));
        QCOMPARE(resets.count(), 3);

        // People read in after a sort are sorted in on the next showing.
        setSort(1, true);
        auto later = std::make_unique<ContactsViewModel>();
        QSignalSpy done(later.get(), &ContactsViewModel::contactsLoaded);
        later->updateContacts();
        QVERIFY(done.wait(5000));
        QCOMPARE(firstNames(later->contactsArray()), (QStringList{ "A", "B", "C" }));
        later->updateContacts();
        QCOMPARE(firstNames(later->contactsArray()), (QStringList{ "B", "C", "A" }));
    }

    void accessIsAskedOncePerModel()
    {
        writeBook({ { "A", "B", { "1" } } });
        const int before = m_book->requests;
        auto model = loaded();
        model->updateContacts();
        model->updateContacts();
        QTest::qWait(50);
        QCOMPARE(m_book->requests - before, 1);
        QCOMPARE(model->contactsArray().size(), 1);
    }

    void refusedAccessIsReportedAndShown()
    {
        QDir(contactsFolder()).removeRecursively();
        QFile blocker(contactsFolder());
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        StdoutCapture out;
        auto model = std::make_unique<ContactsViewModel>();
        QSignalSpy denied(model.get(), &ContactsViewModel::accessDeniedChanged);
        model->updateContacts();
        QVERIFY(denied.wait(5000));
        QVERIFY(model->accessDenied());
        QVERIFY(model->contactsArray().isEmpty());
        const QStringList lines = out.lines();
        QVERIFY(std::any_of(lines.begin(), lines.end(), [](const QString &line) {
            return line.startsWith(QStringLiteral("Contacts access denied: ")) && line.contains(contactsFolder());
        }));

        model->openSettings();
        QCOMPARE(m_opener->opened.last(), QUrl::fromLocalFile(QFileInfo(contactsFolder()).absolutePath()));
        QFile::remove(contactsFolder());
    }

    void sortingIsStableAndByCodePoint()
    {
        const QString composed = QStringLiteral("\u00C9mile");     // É as one character
        const QString decomposed = QStringLiteral("E\u0301mile"); // E + combining acute
        writeBook({ { "bob", "x1", { "2" } },
                    { "Bob", "x2", { "10" } },
                    { composed, "x3", { "1 2" } },
                    { "", "x4", { "+1" } },
                    { "Bob", "x5", { "" } },
                    { decomposed, "x6", { "09" } },
                    { QStringLiteral("\U0001F600"), "x7", {} },
                    { QStringLiteral("\uFB01"), "x8", {} } });
        setSort(0, true);
        auto model = loaded();
        model->sortContacts();
        // Empty first, upper case before lower, equal keys (also canonically
        // equal ones) in their old order, code points past U+FFFF last.
        QCOMPARE(lastNames(model->contactsArray()), (QStringList{ "x4", "x2", "x5", "x1", "x3", "x6", "x8", "x7" }));

        model->setComparator(false);
        QCOMPARE(lastNames(model->contactsArray()), (QStringList{ "x7", "x8", "x3", "x6", "x1", "x2", "x5", "x4" }));
        model->setComparator(true);
        QCOMPARE(lastNames(model->contactsArray()), (QStringList{ "x4", "x2", "x5", "x1", "x3", "x6", "x8", "x7" }));

        // By number, as the display string.
        model->setSortIndexSelected(2);
        model->sortContacts();
        QCOMPARE(lastNames(model->contactsArray()), (QStringList{ "x5", "x8", "x7", "x4", "x6", "x3", "x2", "x1" }));
    }

    void outOfRangeSortKeyLeavesTheLoadOrder()
    {
        writeBook({ { "C", "", {} }, { "A", "", {} }, { "B", "", {} } });
        setSort(3, true);
        auto model = loaded();
        model->updateContacts();
        model->setComparator(false);
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "C", "A", "B" }));
        QCOMPARE(model->sortIndexSelected(), 3);

        // A stored key too large for the screen's int is no key at all, and
        // never wraps round to a real one.
        setSort(qint64(1) << 32, true);
        model->updateContacts();
        QCOMPARE(model->property("sortIndexSelected").toInt(), -1);
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "C", "A", "B" }));
    }

    // The direction is written to the settings file at once; the key is
    // only read from it, and wins again on the next appearance.
    void directionIsStoredAndKeyComesFromTheSettings()
    {
        writeBook({ { "A", "Z", {} }, { "B", "Y", {} } });
        setSort(1, true);
        auto model = loaded();
        model->updateContacts();
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "B", "A" }));
        model->setComparator(false);
        model->setComparator(true);
        model->setComparator(false);
        const auto disk = JsonFileKeyValueStore::open(QDir(TestHome::configDirectory()).filePath("quieton.json"));
        QCOMPARE(disk->boolValue(QStringLiteral("comparator")), false);
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "A", "B" }));

        model->setSortIndexSelected(0);
        model->sortContacts();
        QCOMPARE(firstNames(model->contactsArray()), (QStringList{ "B", "A" }));
        QCOMPARE(disk->integerValue(QStringLiteral("autoSortBy")), 1);
        model->updateContacts();
        QCOMPARE(model->sortIndexSelected(), 1);
        QCOMPARE(ContactsViewModel().comparator(), false);
    }

    void searchMatchesAnyOfTheThreeFields()
    {
        writeBook({ { "Anna", "Smith", { "06 12" } },
                    { "Bob", "Hannah", { "0700" } },
                    { "Carl", "Jones", { "1 2" } },
                    { "Dee Dee", "Ray", { "555" } },
                    { QStringLiteral("ÅNNE"), "", {} } });
        setSort(3, true);
        auto model = loaded();
        ContactsListModel *rows = model->visibleContactsModel();
        // Every change the list announces is checked against what it then
        // reports; a search changes rows in place and never resets them.
        QAbstractItemModelTester tester(rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(rows, &QAbstractItemModel::modelReset);
        QSignalSpy changed(rows, &QAbstractItemModel::dataChanged);

        model->setSearchText(QStringLiteral("ann"));
        QCOMPARE(firstNames(model->visibleContacts()), (QStringList{ "Anna", "Bob" }));
        QCOMPARE(rows->count(), 2);
        QCOMPARE(rows->data(rows->index(1), ContactsListModel::LastNameRole).toString(), QStringLiteral("Hannah"));
        model->setSearchText(QStringLiteral("NN"));
        QCOMPARE(firstNames(model->visibleContacts()), (QStringList{ "Anna", "Bob", QStringLiteral("ÅNNE") }));
        model->setSearchText(QStringLiteral("åN"));
        QCOMPARE(firstNames(model->visibleContacts()), (QStringList{ QStringLiteral("ÅNNE") }));
        model->setSearchText(QStringLiteral("12"));
        QCOMPARE(firstNames(model->visibleContacts()), (QStringList{ "Anna" }));
        model->setSearchText(QStringLiteral(" "));
        QCOMPARE(firstNames(model->visibleContacts()), (QStringList{ "Anna", "Carl", "Dee Dee" }));
        model->setSearchText(QStringLiteral("nobody"));
        QCOMPARE(rows->count(), 0);
        model->setSearchText(QString());
        QCOMPARE(rows->count(), 5);
        QCOMPARE(model->visibleContacts(), model->contactsArray());
        QCOMPARE(rows->data(rows->index(4), ContactsListModel::FirstNameRole).toString(), QStringLiteral("ÅNNE"));
        QCOMPARE(rows->data(rows->index(5), ContactsListModel::FirstNameRole), QVariant());
        QCOMPARE(resets.count(), 0);
        QCOMPARE(changed.count(), 5); // every search that kept rows on screen
    }

    // Typing on narrows what the shorter text found; deleting letters and
    // re-sorting under a search must give what a fresh search would.
    void searchFollowsTypingDeletingAndSorting()
    {
        writeBook({ { "Sam", "Ansel", { "1" } },
                    { "Ann", "Zed", { "2" } },
                    { "Bo", "Nann", { "3" } },
                    { "Al", "Cook", { "4" } },
                    { "Nan", "Annex", { "5" } } });
        setSort(0, true);
        auto model = loaded();
        const QList<std::pair<QString, QStringList>> steps = {
            { "a", { "Sam", "Ann", "Bo", "Al", "Nan" } },
            { "an", { "Sam", "Ann", "Bo", "Nan" } },
            { "ann", { "Ann", "Bo", "Nan" } },
            { "anne", { "Nan" } },
            { "ann", { "Ann", "Bo", "Nan" } },
            { "an", { "Sam", "Ann", "Bo", "Nan" } },
            { "ans", { "Sam" } },
            { "a", { "Sam", "Ann", "Bo", "Al", "Nan" } },
            { "o", { "Bo", "Al" } },
        };
        for (const auto &[text, expected] : steps) {
            model->setSearchText(text);
            QCOMPARE(firstNames(model->visibleContacts()), expected);
            QCOMPARE(model->visibleContactsModel()->count(), expected.size());
        }
        model->setSearchText(QStringLiteral("an"));
        model->sortContacts();
        QCOMPARE(firstNames(model->visibleContacts()), (QStringList{ "Ann", "Bo", "Nan", "Sam" }));
        model->setSearchText(QStringLiteral("ann"));
        QCOMPARE(firstNames(model->visibleContacts()), (QStringList{ "Ann", "Bo", "Nan" }));
        model->setComparator(false);
        QCOMPARE(firstNames(model->visibleContacts()), (QStringList{ "Nan", "Bo", "Ann" }));
        model->setSearchText(QStringLiteral("a"));
        QCOMPARE(firstNames(model->visibleContacts()), (QStringList{ "Sam", "Nan", "Bo", "Ann", "Al" }));
    }

    void searchTypedWhileTheBookIsStillArriving()
    {
        QList<Card> many;
        for (int i = 0; i < 5000; ++i)
            many.append({ i % 2 ? QStringLiteral("Odd%1").arg(i) : QStringLiteral("Even%1").arg(i), "", {} });
        writeBook(many);
        setSort(3, true);
        auto model = std::make_unique<ContactsViewModel>();
        QSignalSpy done(model.get(), &ContactsViewModel::contactsLoaded);
        model->setSearchText(QStringLiteral("odd"));
        model->updateContacts();
        QVERIFY(done.wait(5000));
        QCOMPARE(model->contactsArray().size(), 5000);
        QCOMPARE(model->visibleContactsModel()->count(), 2500);
        QCOMPARE(model->visibleContacts().first().firstName, QStringLiteral("Odd1"));
        QCOMPARE(model->visibleContacts().last().firstName, QStringLiteral("Odd4999"));
    }

    void tappedContactIsCalledAndBecomesThePendingCall()
    {
        writeBook({ { "Anna", "Smith", { "0612", "0700" } }, { "No", "Number", {} } });
        setSort(0, true);
        UserDefaultsService::shared()->setBool(QStringLiteral("saveToHistory"), false);
        auto model = loaded();
        model->updateContacts();

        QVERIFY(!model->selectedContact());
        const qint64 listed = model->contactsArray().first().id;
        model->selectVisibleContact(0);
        QCOMPARE(model->selectedContact()->firstName, QStringLiteral("Anna"));
        QVERIFY(model->selectedContact()->id > listed);

        m_telephony->callsPossible = true;
        QVERIFY(!model->callSelectedContact(true));
        QCOMPARE(m_telephony->opened.last(), QStringLiteral("#31#0612"));
        Service *service = Service::shared();
        QCOMPARE(service->pendingCallFirstName(), QStringLiteral("Anna"));
        QCOMPARE(service->pendingCallLastName(), QStringLiteral("Smith"));
        QCOMPARE(service->pendingCallTelephone(), QStringLiteral("0612"));
        QCOMPARE(service->pendingCallHidden(), true);
        QCOMPARE(service->pendingCallSaveToHistory(), std::optional<bool>(false));

        // Without a number the telephony is handed an empty one; when it
        // cannot call that, the alert is due.
        m_telephony->callsPossible = false;
        const auto openedBefore = m_telephony->opened.size();
        model->selectVisibleContact(1);
        QVERIFY(model->callSelectedContact(false));
        QCOMPARE(m_telephony->asked.last(), QString());
        QCOMPARE(m_telephony->opened.size(), openedBefore);
        QCOMPARE(service->pendingCallFirstName(), QStringLiteral("No"));
        service->setCallFailed(false);
    }
};

QTEST_GUILESS_MAIN(TestContactsViewModel)
#include "tst_contactsviewmodel.moc"
