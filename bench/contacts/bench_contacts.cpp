// Speed and memory of the contacts list with 50 000 people: reading a vCard
// folder (one card per file, as CardDAV synchronisation leaves it) and a
// single 50 000-card file into the list, sorting, one search keystroke at
// 5 000 and 50 000 people (the model alone, and with the contacts screen
// laying out its list), and the peak memory of a process holding the list.
// Prints medians; the targets are in the output.
#include "Clock.h"
#include "CrashManager.h"
#include "ContactsViewModel.h"
#include "Output.h"
#include "QuietonApp.h"
#include "Platform.h"
#include "ProcessInfo.h"
#include "SearchTyping.h"
#include "Service.h"
#include "Statistics.h"
#include "TemporaryHome.h"
#include "UserDefaultsService.h"
#include "VCardFolderAddressBook.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QRandomGenerator>


using namespace bench;

namespace {

constexpr int contactCount = 50000;

// A card as phones export them: names, a formatted name, one to three
// numbers, an e-mail address, sometimes an address and a note.
QByteArray card(int i, QRandomGenerator &random)
{
    static const char *given[] = { "Anna", "Bob", "Chloé", "David", "Émile", "Fatima", "Grégoire", "Hannah",
                                   "Ingrid", "José", "Kai", "Léa", "Marta", "Noah", "Oskar", "Zoë" };
    static const char *family[] = { "Smith", "Müller", "Dubois", "García", "Rossi", "Nowak", "Jensen", "Öztürk",
                                    "Kowalski", "Silva", "Brown", "Lefèvre", "Novak", "Berg", "Kim", "O'Neil" };
    const QByteArray first = QByteArray(given[random.bounded(16)]) + QByteArray::number(i % 97);
    const QByteArray last = family[random.bounded(16)];
    QByteArray text = "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:" + QByteArray::number(i) + "-quieton-bench\r\n"
                      "N:" + last + ";" + first + ";;;\r\nFN:" + first + " " + last + "\r\n";
    const int phones = 1 + random.bounded(3);
    for (int p = 0; p < phones; ++p)
        text += "TEL;TYPE=CELL:+33 6 " + QByteArray::number(10000000 + random.bounded(89999999)) + "\r\n";
    text += "EMAIL;TYPE=INTERNET:" + first.toLower() + "@example.org\r\n";
    if (i % 3 == 0)
        text += "ADR;TYPE=HOME:;;12 rue de la Paix;Paris;;75002;France\r\n";
    if (i % 5 == 0)
        text += "NOTE:Met at the conference\\, table 4\r\n";
    return text + "END:VCARD\r\n";
}

// The app's shared objects, made once and kept to the end of the program.
QuietonApp &quieton()
{
    static QuietonApp *const app = new QuietonApp;
    return *app;
}

// Loads the book at `folder` into a new model the way the screen does.
std::unique_ptr<ContactsViewModel> load(const QString &folder, double *ms, double *cpuMs = nullptr,
                                        qsizetype expected = contactCount)
{
    static std::unique_ptr<VCardFolderAddressBook> book;
    book = std::make_unique<VCardFolderAddressBook>(folder);
    QuietonApp &app = quieton();
    auto model = std::make_unique<ContactsViewModel>(*app.defaultsService(), *app.service(), *book,
                                                     *app.urlOpener(), app.crashManager());
    QEventLoop loop;
    QObject::connect(model.get(), &ContactsViewModel::contactsLoaded, &loop, &QEventLoop::quit);
    QElapsedTimer timer;
    const double cpuStart = processCpuMs();
    timer.start();
    model->updateContacts();
    loop.exec();
    if (ms)
        *ms = timer.nsecsElapsed() / 1e6;
    if (cpuMs)
        *cpuMs = processCpuMs() - cpuStart;
    if (model->contactsArray().size() != expected)
        qFatal("expected %lld contacts, got %lld", qlonglong(expected), qlonglong(model->contactsArray().size()));
    return model;
}

// Run in a process of its own: peak memory with the list loaded.
int measureMemory(const QString &folder)
{
    const qint64 before = peakMemoryKb();
    auto model = load(folder, nullptr);
    model->sortContacts();
    const qint64 after = peakMemoryKb();
    out() << "peak memory (VmHWM) with " << model->contactsArray().size() << " contacts loaded: " << after
          << " kB; before loading: " << before << " kB; the list's share: " << (after - before) << " kB" << Qt::endl;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    TemporaryHome home;
    QGuiApplication app(argc, argv);
    quieton().defaultsService()->setInteger(QStringLiteral("autoSortBy"), 0);
    if (argc == 3 && qstrcmp(argv[1], "--memory") == 0)
        return measureMemory(QString::fromLocal8Bit(argv[2]));

    const QDir root(home.path());
    const QString folderBook = root.filePath(QStringLiteral("folder"));
    const QString fileBook = root.filePath(QStringLiteral("file"));
    const QString smallBook = root.filePath(QStringLiteral("small"));
    root.mkpath(QStringLiteral("folder/default"));
    root.mkpath(QStringLiteral("file"));
    root.mkpath(QStringLiteral("small"));
    QRandomGenerator random(50000);
    QByteArray all;
    qsizetype smallSize = 0; // the first 5 000 cards
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < contactCount; ++i) {
        const QByteArray one = card(i, random);
        if (i == 5000)
            smallSize = all.size();
        all += one;
        QFile file(QStringLiteral("%1/default/%2.vcf").arg(folderBook).arg(i, 8, 16, QLatin1Char('0')));
        file.open(QIODevice::WriteOnly);
        file.write(one);
    }
    QFile single(QDir(fileBook).filePath(QStringLiteral("all.vcf")));
    single.open(QIODevice::WriteOnly);
    single.write(all);
    single.close();
    QFile small(QDir(smallBook).filePath(QStringLiteral("small.vcf")));
    small.open(QIODevice::WriteOnly);
    small.write(all.left(smallSize));
    small.close();
    out() << "wrote " << contactCount << " cards (" << all.size() / 1024 << " kB) in " << timer.elapsed() << " ms"
          << Qt::endl;

    for (const auto &[name, folder] : { std::pair{ "a folder of one-card files", folderBook },
                                        std::pair{ "one 50 000-card file", fileBook } }) {
        QList<double> loadMs;
        QList<double> loadCpuMs;
        load(folder, nullptr); // warm the page cache
        for (int i = 0; i < 7; ++i) {
            double ms = 0;
            double cpuMs = 0;
            load(folder, &ms, &cpuMs);
            loadMs.append(ms);
            loadCpuMs.append(cpuMs);
        }
        // The address book alone: files found, read and parsed, no list.
        QList<double> bookMs;
        for (int i = 0; i < 5; ++i) {
            VCardFolderAddressBook book(folder);
            qsizetype people = 0;
            timer.restart();
            book.enumerateContacts([&people](QList<AddressBookContact> &&batch) { people += batch.size(); });
            bookMs.append(timer.nsecsElapsed() / 1e6);
            if (people != contactCount)
                qFatal("the book gave %lld contacts", qlonglong(people));
        }
        out() << "read " << name << " into the list: median " << median(loadMs) << " ms (target < 300 ms); CPU time "
              << median(loadCpuMs) << " ms" << Qt::endl;
        out() << "  of which the address book alone (found, read, parsed): median " << median(bookMs) << " ms"
              << Qt::endl;
    }

    auto model = load(fileBook, nullptr);
    // Each round sorts by another key than the round before.
    QList<double> sortMs;
    QList<double> sortCpuMs;
    for (int i = 0; i < 12; ++i) {
        model->setSortIndexSelected(i % 3);
        const double cpuStart = processCpuMs();
        timer.restart();
        model->sortContacts();
        sortMs.append(timer.nsecsElapsed() / 1e6);
        sortCpuMs.append(processCpuMs() - cpuStart);
    }
    out() << "sort " << contactCount << " contacts: median " << median(sortMs) << " ms (target < 30 ms); CPU time "
          << median(sortCpuMs) << " ms" << Qt::endl;
    // The direction button: the direction is written to the settings file
    // (atomically, synced to disk), then the list is sorted.
    QList<double> directionMs;
    for (int i = 0; i < 7; ++i) {
        timer.restart();
        model->setComparator(i % 2 == 0);
        directionMs.append(timer.nsecsElapsed() / 1e6);
    }
    out() << "direction button (settings write + sort): median " << median(directionMs) << " ms" << Qt::endl;

    // Typing a name and deleting it again, one keystroke at a time, and a
    // pasted number: the model alone, then with the screen's list laid out.
    const QString typed = QStringLiteral("annas");
    QStringList session;
    for (int n = 1; n <= typed.size(); ++n)
        session.append(typed.left(n));
    for (int n = typed.size() - 1; n >= 0; --n)
        session.append(typed.left(n));
    session << QStringLiteral("+33 6 1") << QString();
    const auto report = [](const char *what, qsizetype people, const QList<double> &ms, double target) {
        out() << "search keystroke, " << what << ", " << people << " contacts (processor time): median " << median(ms)
              << " ms, 90th percentile " << percentile(ms, 90) << " ms, slowest " << maximum(ms) << " ms (target < "
              << target << " ms)" << Qt::endl;
    };
    for (auto [book, people, target] : { std::tuple{ smallBook, qsizetype(5000), 8.0 },
                                         std::tuple{ fileBook, qsizetype(contactCount), 33.0 } }) {
        auto searched = people == contactCount ? std::move(model) : load(book, nullptr, nullptr, people);
        idleFor(1000);
        QList<double> keyMs;
        for (int round = 0; round < 5; ++round) {
            for (const QString &text : std::as_const(session)) {
                const double start = threadCpuMs();
                searched->setSearchText(text);
                keyMs.append(threadCpuMs() - start);
            }
        }
        report("model", people, keyMs, target);
        report("screen (model and list layout)", people,
               typeIntoScreen(searched.get(), QStringLiteral("ContactsView.qml"), QStringLiteral("contactsList"),
                              session, 5),
               target);
    }

    return runSelf({ QStringLiteral("--memory"), fileBook });
}
