// The contacts model over a real vCard folder and settings file, and the text-size steps.
#include "ContactsViewModel.h"
#include "ContentSizeCategory.h"
#include "CrashManager.h"
#include "JsonFileKeyValueStore.h"
#include "RecordingUrlOpener.h"
#include "TestApp.h"
#include "StdoutCapture.h"
#include "TestHome.h"
#include "UserDefaultsService.h"
#include "VCardFolderAddressBook.h"

#include <QAbstractItemModelTester>
#include <QThreadPool>
#include <QtTest>

namespace {

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

QStringList names(const QList<FetchedContact> &contacts, QString FetchedContact::*field = &FetchedContact::firstName)
{
    QStringList out;
    for (const FetchedContact &c : contacts)
        out.append(c.*field);
    return out;
}

// The first names the search leaves, in list order.
QStringList visibleNames(ContactsViewModel &model)
{
    QStringList out;
    SearchFilter *rows = model.visibleContacts();
    for (int row = 0; row < rows->count(); ++row)
        out.append(rows->index(row, 0).data(rows->roleNames().key("firstName")).toString());
    return out;
}

} // namespace

class TestContactsViewModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestApp> m_app;
    const QString m_home = TestHome::use(); // before the book takes its folder from it

    CountingAddressBook m_book;
    RecordingUrlOpener m_opener;
    CrashManager m_crashManager;

    void setSort(qint64 key, bool ascending)
    {
        m_app->defaults().setInteger(QStringLiteral("autoSortBy"), key);
        m_app->defaults().setBool(QStringLiteral("comparator"), ascending);
    }

    std::unique_ptr<ContactsViewModel> newModel()
    {
        return std::make_unique<ContactsViewModel>(m_app->defaults(), m_app->service(), m_book,
                                                   m_opener, m_crashManager);
    }

    // A model that has been shown once and has read the whole book.
    std::unique_ptr<ContactsViewModel> loaded()
    {
        auto model = newModel();
        QSignalSpy done(model.get(), &ContactsViewModel::contactsLoaded);
        model->updateContacts();
        if (!done.wait(5000))
            qWarning("the address book was not read");
        return model;
    }

private slots:
    void initTestCase() { m_app = std::make_unique<TestApp>(); }
    void cleanupTestCase() { m_app.reset(); }

    // Book order and first number at first; sorted on the next showing, rows refilled only on a change;
    // direction stored, key read from the settings; access asked once; ids never reused.
    void loadingAndShowingAgain()
    {
        setSort(0, true);
        TestHome::writeBook({ { "Zed", "Last", "3", "4", "5" }, { "Amy", "" }, { "Mia", "Moe", "+33 6" } });
        const int requests = m_book.requests;
        auto model = loaded();
        const QList<FetchedContact> contacts = model->contactsArray();
        QCOMPARE(names(contacts), (QStringList{ "Zed", "Amy", "Mia" }));
        QCOMPARE(names(contacts, &FetchedContact::telephone), (QStringList{ "3", QString(), "+33 6" }));
        const qint64 firstId = contacts[0].id;
        QCOMPARE(contacts[2].id, firstId + 2);
        model->updateContacts();
        QCOMPARE(names(model->contactsArray()), (QStringList{ "Amy", "Mia", "Zed" }));
        QSignalSpy resets(model->visibleContacts(), &QAbstractItemModel::dataChanged);
        model->updateContacts();
        model->sortContacts();
        QCOMPARE(resets.count(), 0);
        model->setComparator(false);
        QCOMPARE(names(model->contactsArray()), (QStringList{ "Zed", "Mia", "Amy" }));
        const auto disk = JsonFileKeyValueStore::open(QDir(TestHome::configDirectory()).filePath("quieton.json"));
        QCOMPARE(disk->boolValue(QStringLiteral("comparator")), false);
        setSort(1, false);
        model->updateContacts();
        QCOMPARE(names(model->contactsArray()), (QStringList{ "Mia", "Zed", "Amy" }));
        QCOMPARE(resets.count(), 2);
        QThreadPool::globalInstance()->waitForDone();
        QCOMPARE(m_book.requests - requests, 1);
        QCOMPARE(loaded()->contactsArray().first().id, firstId + 3);
    }

    // A file in the book folder's place is a refusal.
    void refusedBookIsLoggedAndOffersItsSettings()
    {
        TestHome::writeBook({}, false);
        StdoutCapture out;
        auto model = newModel();
        model->updateContacts();
        QTRY_VERIFY_WITH_TIMEOUT(model->accessDenied(), 5000);
        const QStringList lines = out.lines();
        QVERIFY(std::any_of(lines.begin(), lines.end(), [](const QString &line) {
            return line.startsWith(QStringLiteral("Contacts access denied: ")) && line.contains(VCardFolderAddressBook::defaultFolder());
        }));

        model->openSettings();
        QCOMPARE(m_opener.opened, QList<QUrl>{ QUrl::fromLocalFile(QFileInfo(VCardFolderAddressBook::defaultFolder()).absolutePath()) });
    }

    void sortingIsStableAndByCodePoint()
    {
        const QString composed = QStringLiteral("\u00C9mile");     // É as one character
        const QString decomposed = QStringLiteral("E\u0301mile"); // E + combining acute
        TestHome::writeBook({ { "bob", "x1", "2" },
                              { "Bob", "x2", "10" },
                              { composed, "x3", "1 2" },
                              { "", "x4", "+1" },
                              { "Bob", "x5", "" },
                              { decomposed, "x6", "09" },
                              { QStringLiteral("\U0001F600"), "x7" },
                              { QStringLiteral("\uFB01"), "x8" },
                              { "Alexandria", "x9" },
                              { "Alexandra", "x10" },
                              { "Alexandr", "x11" } });
        setSort(0, true);
        auto model = loaded();
        model->sortContacts();
        // Empty first, upper before lower case, ties (canonical ones too) stable, past U+FFFF last.
        const auto last = [&model] { return names(model->contactsArray(), &FetchedContact::lastName); };
        QCOMPARE(last(), (QStringList{ "x4", "x11", "x10", "x9", "x2", "x5", "x1", "x3", "x6", "x8", "x7" }));
        model->setComparator(false);
        QCOMPARE(last(), (QStringList{ "x7", "x8", "x3", "x6", "x1", "x2", "x5", "x9", "x10", "x11", "x4" }));
        model->setComparator(true); // by number, as the display string
        model->setSortIndexSelected(2);
        model->sortContacts();
        QCOMPARE(last(), (QStringList{ "x11", "x10", "x9", "x5", "x8", "x7", "x4", "x6", "x3", "x2", "x1" }));
    }

    // An unknown key, or one too large for an int (never wrapped to a real one), leaves the load order.
    void outOfRangeSortKeyLeavesTheLoadOrder()
    {
        TestHome::writeBook({ { "C" }, { "A" }, { "B" } });
        for (const qint64 key : { qint64(3), qint64(1) << 32 }) {
            setSort(key, false);
            auto model = loaded();
            model->updateContacts();
            QCOMPARE(names(model->contactsArray()), (QStringList{ "C", "A", "B" }));
        }
    }

    // The shared filter's rules are proven on the history; here, its fields.
    void searchMatchesAnyOfTheThreeFields()
    {
        TestHome::writeBook({ { "Anna", "Smith", "06 12" }, { "Bob", "Hannah", "0700" }, { "Carl", "Jones", "1 2" } });
        setSort(3, true);
        auto model = loaded();
        QAbstractItemModelTester tester(model->visibleContacts(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QList<std::pair<QString, QStringList>> steps = {
            { "NN", { "Anna", "Bob" } }, { "12", { "Anna" } }, { " ", { "Anna", "Carl" } },
            { "nobody", {} }, { "", { "Anna", "Bob", "Carl" } },
        };
        for (const auto &[text, expected] : steps) {
            model->setSearchText(text);
            QCOMPARE(visibleNames(*model), expected);
        }
    }

    // Arrivals and sorts under a search give the rows a fresh search would.
    void searchFollowsArrivalsAndSorting()
    {
        QList<QStringList> many;
        for (int i = 0; i < 3000; ++i)
            many.append({ (i % 2 ? QStringLiteral("Odd%1") : QStringLiteral("Even%1")).arg(i) });
        TestHome::writeBook(many);
        setSort(0, false);
        auto model = newModel();
        QSignalSpy done(model.get(), &ContactsViewModel::contactsLoaded);
        model->setSearchText(QStringLiteral("odd"));
        model->updateContacts();
        QVERIFY(done.wait(5000));
        QCOMPARE(visibleNames(*model).size(), 1500);
        QCOMPARE(visibleNames(*model).last(), QStringLiteral("Odd2999"));
        // The order worked out meanwhile on a worker thread is the one used.
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        model->sortContacts();
        QCOMPARE(visibleNames(*model).first(), QStringLiteral("Odd999"));
    }

    void textScalesMapToTheNearestStep()
    {
        const QList<std::pair<qreal, ContentSizeCategory::Category>> steps = {
            { 0.3, ContentSizeCategory::ExtraSmall },
            { 1.0, ContentSizeCategory::Large },
            { 9.0, ContentSizeCategory::AccessibilityExtraExtraExtraLarge },
            { qQNaN(), ContentSizeCategory::Unspecified },
        };
        for (const auto &[scale, category] : steps)
            QCOMPARE(ContentSizeCategory::forTextScale(scale), category);
    }
};

QTEST_MAIN(TestContactsViewModel)
#include "tst_contactsviewmodel.moc"
