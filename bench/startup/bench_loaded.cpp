// The whole app with a large history and a large address book: 100 000
// recorded calls and 50 000 contacts in 50 vCard files. Each run is a child
// process that starts the app's window the way the app's main() does, waits
// for it to be up and idle, then shows the contacts, history and settings
// tabs by clicking the tab bar, and types into both search fields. The parent
// writes the home once, runs the children and prints medians over the runs.
//
//   bench_loaded                 prepare a temporary home, run, print
//   bench_loaded --prepare DIR   only write the home into DIR
//   bench_loaded --home DIR      run on a home written before
//   bench_loaded --run DIR [STAGE]  one run in this process, perhaps ending
//                                right after STAGE (idle, contacts, history,
//                                settings, loaded, after_typing), e.g. under
//                                heaptrack to see what the stage holds
//
// Times are wall-clock from the launch of the child; keystroke costs are also
// given as CPU time of the main thread, which the machine's other load does
// not inflate. Offscreen unless QT_QPA_PLATFORM says otherwise.
#include "Appearance.h"
#include "HistoryCallDataService.h"
#include "HistoryFile.h"
#include "ProcessInfo.h"
#include "Statistics.h"
#include "QuietonApp.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMap>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <utility>
#include <cstdio>
#include <ctime>
#include <functional>
#include <tuple>

#ifdef __GLIBC__
#include <malloc.h>
#endif


namespace {

constexpr int historyRows = 100000;
constexpr int contactFiles = 50;
constexpr int cardsPerFile = 1000;
constexpr int contactCount = contactFiles * cardsPerFile;

qint64 clockNs(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}
qint64 monotonicNs() { return clockNs(CLOCK_MONOTONIC); }
qint64 threadCpuNs() { return clockNs(CLOCK_THREAD_CPUTIME_ID); }

// ---------------------------------------------------------------- the home

// People of a realistic address book: accents, particles, apostrophes.
const char *const givenNames[] = {
    "Anna", "Benoît", "Chloé", "Daniel", "Émile", "François", "Gaëlle", "Hélène", "Inès", "Jérôme", "Kévin",
    "Léa", "Maëlle", "Noël", "Océane", "Pénélope", "Quentin", "Raphaël", "Sébastien", "Thérèse", "Ulrich",
    "Valérie", "Wolfgang", "Xavier", "Yannick", "Zoë", "Jürgen", "Björn", "Søren", "Åsa", "José", "María",
    "Ángel", "Nuño", "Łukasz", "Zbigniew", "Małgorzata", "Dvořák", "Ilse", "Mehmet", "Ayşe", "Çağla",
    "Giulia", "Niccolò", "Ana", "João", "Conceição", "Siobhán", "Seán", "Aoife", "Mary", "John", "Patrick",
    "Ольга", "Дмитрий", "Ελένη", "Nguyễn", "Thảo", "Kai", "Mia",
};
const char *const familyNames[] = {
    "Martin", "Bernard", "Dubois", "Thomas", "Robert", "Richard", "Petit", "Durand", "Leroy", "Moreau",
    "Lefèvre", "Fournier", "Girard", "Bonnet", "Dupont", "Lambert", "Fontaine", "Rousseau", "Vincent", "Müller",
    "Schmidt", "Schneider", "Fischer", "Weiß", "Schäfer", "Köhler", "Größ", "García", "Fernández", "López",
    "Martínez", "Sánchez", "Pérez", "Gómez", "Rossi", "Russo", "Ferrari", "Esposito", "Bianchi", "Nowak",
    "Kowalski", "Wiśniewski", "Wójcik", "Novák", "Svoboda", "Dvořáková", "Öztürk", "Yılmaz", "Şahin",
    "O'Brien", "O'Neill", "MacDonald", "de la Fontaine", "van der Berg", "Jensen", "Nielsen", "Søndergaard",
    "Åberg", "Иванов", "Παπαδόπουλος", "Trần", "Lê",
};
constexpr int givenCount = int(std::size(givenNames));
constexpr int familyCount = int(std::size(familyNames));

struct Person
{
    QByteArray given;
    QByteArray family;
    QList<QByteArray> phones;
};

QByteArray phoneNumber(QRandomGenerator &random)
{
    const auto digits = [&random](int n) {
        QByteArray d;
        for (int i = 0; i < n; ++i)
            d += char('0' + random.bounded(10));
        return d;
    };
    switch (random.bounded(6)) {
    case 0:
        return "+33 6 " + digits(2) + " " + digits(2) + " " + digits(2) + " " + digits(2);
    case 1:
        return "06 " + digits(2) + " " + digits(2) + " " + digits(2) + " " + digits(2);
    case 2:
        return "+33" + QByteArray::number(6 + random.bounded(2)) + digits(8);
    case 3:
        return "+49 151 " + digits(8);
    case 4:
        return "(555) " + digits(3) + "-" + digits(4);
    default:
        return "01." + digits(2) + "." + digits(2) + "." + digits(2) + "." + digits(2);
    }
}

Person person(QRandomGenerator &random)
{
    Person p;
    p.given = givenNames[random.bounded(givenCount)];
    p.family = familyNames[random.bounded(familyCount)];
    // Most people have one number, some two or three.
    const int roll = random.bounded(10);
    const int phones = roll < 6 ? 1 : roll < 9 ? 2 : 3;
    for (int i = 0; i < phones; ++i)
        p.phones.append(phoneNumber(random));
    return p;
}

QByteArray quotedPrintable(const QByteArray &text)
{
    QByteArray out;
    for (const char c : text) {
        const auto u = uchar(c);
        if (u >= 0x80 || c == '=' || c == ';')
            out += '=' + QByteArray::number(u, 16).toUpper().rightJustified(2, '0');
        else
            out += c;
    }
    return out;
}

QByteArray escaped(const QByteArray &text)
{
    QByteArray out = text;
    return out.replace(",", "\\,").replace(";", "\\;");
}

// A card as phones and address books export them. Every tenth card is an
// old 2.1 card with quoted-printable names; some carry a photo.
QByteArray card(int i, const Person &p, QRandomGenerator &random)
{
    QByteArray text = "BEGIN:VCARD\r\n";
    if (i % 10 == 0) {
        text += "VERSION:2.1\r\n";
        text += "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:" + quotedPrintable(p.family) + ";"
                + quotedPrintable(p.given) + ";;;\r\n";
        text += "FN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:" + quotedPrintable(p.given + " " + p.family) + "\r\n";
        static const char *const types[] = { "CELL", "HOME", "WORK;VOICE" };
        for (int t = 0; t < p.phones.size(); ++t)
            text += "TEL;" + QByteArray(types[t % 3]) + ":" + p.phones[t] + "\r\n";
    } else {
        text += "VERSION:3.0\r\nUID:" + QByteArray::number(i) + "-6a0f-bench\r\n";
        text += "N:" + escaped(p.family) + ";" + escaped(p.given) + ";;;\r\n";
        text += "FN:" + escaped(p.given + " " + p.family) + "\r\n";
        static const char *const types[] = { "TYPE=CELL", "TYPE=HOME,VOICE", "TYPE=WORK" };
        for (int t = 0; t < p.phones.size(); ++t)
            text += "TEL;" + QByteArray(types[t % 3]) + ":" + p.phones[t] + "\r\n";
        text += "EMAIL;TYPE=INTERNET:contact" + QByteArray::number(i) + "@example.org\r\n";
        if (i % 4 == 1)
            text += "ADR;TYPE=HOME:;;12 rue de la Paix;Paris;;75002;France\r\n";
        if (i % 7 == 2)
            text += "ORG:Société Générale\\, Agence " + QByteArray::number(i % 40) + "\r\n";
        if (i % 9 == 3)
            text += "NOTE:Rencontré à la conférence\\, table 4\r\n";
    }
    if (i % 50 == 7) {
        // A small photo, folded at 75 columns as writers do.
        QByteArray photo(3000, Qt::Uninitialized);
        for (char &c : photo)
            c = char(random.bounded(256));
        const QByteArray base64 = photo.toBase64();
        text += "PHOTO;ENCODING=b;TYPE=JPEG:";
        for (qsizetype at = 0; at < base64.size(); at += 74)
            text += (at ? " " : "") + base64.mid(at, 74) + "\r\n";
    }
    return text + "END:VCARD\r\n";
}

bool writeContacts(const QString &home, QList<Person> &people)
{
    const QString folder = home + QStringLiteral("/data/contacts");
    if (!QDir().mkpath(folder))
        return false;
    QRandomGenerator random(20251123);
    for (int f = 0; f < contactFiles; ++f) {
        QByteArray text;
        for (int c = 0; c < cardsPerFile; ++c) {
            const int i = f * cardsPerFile + c;
            people.append(person(random));
            text += card(i, people.last(), random);
        }
        QFile file(QStringLiteral("%1/book-%2.vcf").arg(folder).arg(f, 2, 10, QLatin1Char('0')));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            return false;
    }
    return true;
}

// The calls of a few years: most to people of the book (a few often, many
// now and then), the rest to numbers typed in, recorded without names.
bool writeHistory(const QString &home, const QList<Person> &people)
{
    const QString path = home + QStringLiteral("/data/quieton/CallHistoryData.sqlite");
    QDir().mkpath(QFileInfo(path).absolutePath());
    QRandomGenerator random(100000);
    bench::populateHistory(path, historyRows, [&](int, HistoryData &record) {
        const int roll = random.bounded(100);
        if (roll < 85) {
            // Half the calls go to 50 people, the rest to 3000 others.
            const int who = roll < 42 ? random.bounded(50) : 50 + random.bounded(3000);
            const Person &p = people.at(who);
            record.firstName = QString::fromUtf8(p.given);
            record.lastName = QString::fromUtf8(p.family);
            record.telephone = QString::fromUtf8(p.phones.at(random.bounded(int(p.phones.size()))));
        } else {
            record.firstName = record.lastName = QStringLiteral("");
            record.telephone = QString::fromUtf8(phoneNumber(random));
        }
    });
    return HistoryCallDataService(path).savedEntities().size() == historyRows;
}

bool prepareHome(const QString &home)
{
    QDir(home).mkpath(QStringLiteral("config/quieton"));
    QFile settings(home + QStringLiteral("/config/quieton/quieton.json"));
    if (!settings.open(QIODevice::WriteOnly))
        return false;
    settings.write(R"({"hasCompletedFirstLaunch": true})");
    settings.close();
    QList<Person> people;
    return writeContacts(home, people) && writeHistory(home, people);
}

// ---------------------------------------------------------------- one run

// What a run tells its parent: one measured value a line.
void sample(const QByteArray &name, double value)
{
    std::printf("sample %s %.4f\n", name.constData(), value);
    std::fflush(stdout);
}

[[noreturn]] void fail(const char *what)
{
    std::printf("failed %s\n", what);
    std::fflush(stdout);
    std::exit(1);
}

// Runs the event loop until `ready` holds, or fails after `ms`.
void waitUntil(const std::function<bool()> &ready, const char *what, int ms = 20000)
{
    QElapsedTimer timer;
    timer.start();
    while (!ready()) {
        if (timer.elapsed() > ms)
            fail(what);
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 5);
    }
}

QObject *findNamed(QObject *root, const QString &name)
{
    if (root->objectName() == name)
        return root;
    if (auto *item = qobject_cast<QQuickItem *>(root)) {
        for (QQuickItem *child : item->childItems()) {
            if (QObject *found = findNamed(child, name))
                return found;
        }
    }
    for (QObject *child : root->children()) {
        if (QObject *found = findNamed(child, name))
            return found;
    }
    return nullptr;
}

QQuickItem *findTabBar(QQuickItem *item)
{
    if (item->inherits("QQuickTabBar"))
        return item;
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = findTabBar(child))
            return found;
    }
    return nullptr;
}

// The window's frames, as the render loop announces them.
class FrameWatch : public QObject
{
public:
    explicit FrameWatch(QQuickWindow *window) : m_window(window)
    {
        connect(window, &QQuickWindow::beforeSynchronizing, this,
                [this] { m_syncNs = monotonicNs(); m_syncCpuNs = threadCpuNs(); }, Qt::DirectConnection);
        connect(window, &QQuickWindow::frameSwapped, this, [this] {
            m_frameNs = monotonicNs();
            m_frameCpuNs = threadCpuNs();
            ++m_frames;
            m_longestGapNs = std::max(m_longestGapNs, m_frameNs - std::exchange(m_gapFromNs, m_frameNs));
        }, Qt::DirectConnection);
    }
    // The longest wait for a frame since startGaps(`fromNs`).
    void startGaps(qint64 fromNs)
    {
        m_gapFromNs = fromNs;
        m_longestGapNs = 0;
    }
    qint64 longestGapNs() const { return m_longestGapNs; }
    int frames() const { return m_frames; }
    qint64 syncNs() const { return m_syncNs; }
    qint64 syncCpuNs() const { return m_syncCpuNs; }
    qint64 frameNs() const { return m_frameNs; }
    qint64 frameCpuNs() const { return m_frameCpuNs; }

    // Waits for the next frame after frame number `after`.
    void waitForFrameAfter(int after, const char *what)
    {
        waitUntil([this, after] { return m_frames > after; }, what);
    }
    // Lets everything queued run, and any frame it asks for be drawn.
    void settle(int ms)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < ms)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 5);
    }

private:
    QQuickWindow *m_window;
    int m_frames = 0;
    qint64 m_syncNs = 0, m_syncCpuNs = 0, m_frameNs = 0, m_frameCpuNs = 0, m_gapFromNs = 0, m_longestGapNs = 0;
};

// A press and a release in the middle of `item`, delivered the way the
// windowing system delivers them and handled before this returns; nothing
// else queued runs meanwhile.
void click(QQuickWindow *window, QQuickItem *item)
{
    static int timestamp = 0;
    timestamp += 1000; // never a double click
    const QPointF at = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    const QPointF global = window->mapToGlobal(at);
    qt_handleMouseEvent(window, at, global, Qt::LeftButton, Qt::LeftButton, QEvent::MouseButtonPress,
                        Qt::NoModifier, timestamp);
    qt_handleMouseEvent(window, at, global, Qt::NoButton, Qt::LeftButton, QEvent::MouseButtonRelease,
                        Qt::NoModifier, timestamp + 50);
}

// The run stops at this stage when asked to (for a heap profiler: what is
// still allocated then is what the stage holds).
QByteArray stopStage;

void memorySamples(const char *stage)
{
    sample(QByteArray("rss_") + stage, bench::statusKb("VmRSS:") / 1024.0);
    sample(QByteArray("rss_anon_") + stage, bench::statusKb("RssAnon:") / 1024.0);
    sample(QByteArray("rss_file_") + stage, bench::statusKb("RssFile:") / 1024.0);
    if (stopStage == stage) {
        std::printf("stopped after %s\n", stage);
        std::fflush(stdout);
        std::exit(0);
    }
}

// Shows a tab for the first time: click to first frame, in milliseconds.
double showTab(QQuickWindow *window, FrameWatch &frames, QQuickItem *tabBar, int index, const char *name)
{
    QQuickItem *button = nullptr;
    QMetaObject::invokeMethod(tabBar, "itemAt", Q_RETURN_ARG(QQuickItem *, button), Q_ARG(int, index));
    if (!button)
        fail("no tab button");
    const int before = frames.frames();
    const qint64 start = monotonicNs();
    frames.startGaps(start);
    click(window, button);
    const qint64 handled = monotonicNs();
    frames.waitForFrameAfter(before, "no frame after a tab click");
    const double ms = (frames.frameNs() - start) / 1e6;
    sample(QByteArray("tab_") + name + "_click_ms", (handled - start) / 1e6);
    sample(QByteArray("tab_") + name + "_frame_ms", ms);
    // A screen shown for the first time is made a piece per frame.
    QObject *mainView = findNamed(window, QStringLiteral("mainView"));
    waitUntil([mainView] { return mainView->property("shownScreen").value<QObject *>() != nullptr; }, "no screen made");
    sample(QByteArray("tab_") + name + "_made_ms", (monotonicNs() - start) / 1e6);
    sample(QByteArray("tab_") + name + "_gap_ms", frames.longestGapNs() / 1e6);
    return ms;
}

// Types each of `keys` into the focused search field (a text, or an empty
// string for a backspace) and measures what each costs: handling the key
// (the field, the model's search, the list told of its new rows), with the
// list's layout before the next frame, and up to that frame drawn.
void typeKeys(QQuickWindow *window, FrameWatch &frames, const QStringList &keys, const char *list,
              const std::function<QString()> &searchText)
{
    QString expected = searchText();
    for (const QString &key : keys) {
        const int keyCode = key.isEmpty() ? int(Qt::Key_Backspace) : int(key.at(0).toUpper().unicode());
        QKeyEvent press(QEvent::KeyPress, keyCode, Qt::NoModifier, key);
        QKeyEvent release(QEvent::KeyRelease, keyCode, Qt::NoModifier, key);
        const int before = frames.frames();
        const qint64 start = monotonicNs();
        const qint64 startCpu = threadCpuNs();
        QCoreApplication::sendEvent(window, &press);
        QCoreApplication::sendEvent(window, &release);
        const qint64 handled = monotonicNs();
        const qint64 handledCpu = threadCpuNs();
        frames.waitForFrameAfter(before, "no frame after a keystroke");
        if (key.isEmpty())
            expected.chop(1);
        else
            expected += key;
        if (searchText() != expected)
            fail("the keystroke did not reach the search");
        const QByteArray prefix = QByteArray("key_") + list;
        sample(prefix + "_handle_ms", (handled - start) / 1e6);
        sample(prefix + "_handle_cpu_ms", (handledCpu - startCpu) / 1e6);
        sample(prefix + "_layout_cpu_ms", (frames.syncCpuNs() - startCpu) / 1e6);
        sample(prefix + "_frame_ms", (frames.frameNs() - start) / 1e6);
        sample(prefix + "_frame_cpu_ms", (frames.frameCpuNs() - startCpu) / 1e6);
        frames.settle(2);
    }
}

// A name typed letter by letter and taken back, an accented one, part of a
// number: the keys, "" for a backspace.
QStringList typingRound()
{
    QStringList keys;
    for (const QString &word : { QStringLiteral("mar"), QStringLiteral("léa"), QStringLiteral("müll"),
                                 QStringLiteral("06 1") }) {
        for (const QChar c : word)
            keys.append(QString(c));
        for (qsizetype i = 0; i < word.size(); ++i)
            keys.append(QString());
    }
    return keys;
}

int runOnce(int argc, char *argv[], const QString &home)
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home + QStringLiteral("/config")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home + QStringLiteral("/data")));
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::printf("stamp start %lld\n", monotonicNs());

    // As the app's main() sets itself up, less the single-instance socket
    // (another Quieton of this user would take the run over) and the store
    // lookup (no network in a benchmark).
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("quieton"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quieton"));
    QGuiApplication::setDesktopFileName(QStringLiteral("quieton"));
    QQuickStyle::setStyle(QStringLiteral("Material"));
    Appearance::applyTextScaleOverride();
    QuietonApp quietonApp;
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.setInitialProperties({ { QStringLiteral("app"), QVariant::fromValue(&quietonApp) } });
    engine.load(QUrl(QStringLiteral("qrc:/Quieton/App/AppWindow.qml")));
    auto *window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    if (!window)
        fail("no window");
    FrameWatch frames(window);

    // Up: the first frame. Idle: the history read in, nothing queued.
    frames.waitForFrameAfter(0, "no first frame");
    std::printf("stamp window %lld\n", frames.frameNs());
    HistoryCallDataService *history = quietonApp.historyDataService();
    waitUntil([history] { return history->count() == historyRows && !history->isFetchingInBackground(); },
              "the history was not all read");
    QCoreApplication::processEvents();
    std::printf("stamp idle %lld\n", monotonicNs());
    memorySamples("idle");
    frames.settle(200);

    QQuickItem *tabBar = findTabBar(window->contentItem());
    if (!tabBar)
        fail("no tab bar");
    window->requestActivate();
    if (!QTest::qWaitForWindowActive(window))
        fail("the window did not become active");

    // Contacts: the first frame of the screen, then the whole book in.
    bool contactsIn = false;
    qint64 contactsInNs = 0;
    const qint64 contactsClick = monotonicNs();
    showTab(window, frames, tabBar, 1, "contacts");
    auto *contactsView = qobject_cast<QQuickItem *>(findNamed(window, QStringLiteral("contactsView")));
    QObject *contacts = contactsView ? contactsView->property("vm").value<QObject *>() : nullptr;
    if (!contacts)
        fail("no contacts screen");
    // Counted rather than signalled: the book may be in before this looks.
    QObject *visibleContacts = contacts->property("visibleContacts").value<QObject *>();
    waitUntil([&] {
        if (!contactsIn && visibleContacts->property("count").toInt() == contactCount) {
            contactsIn = true;
            contactsInNs = monotonicNs();
        }
        return contactsIn;
    }, "the contacts did not all arrive");
    {
        const int before = frames.frames();
        window->update();
        frames.waitForFrameAfter(before, "no frame with the contacts");
    }
    sample("tab_contacts_loaded_ms", (contactsInNs - contactsClick) / 1e6);
    sample("tab_contacts_loaded_frame_ms", (frames.frameNs() - contactsClick) / 1e6);
    frames.settle(300);
    memorySamples("contacts");

    showTab(window, frames, tabBar, 2, "history");
    auto *historyView = findNamed(window, QStringLiteral("historyView"));
    QObject *historyModel = historyView ? historyView->property("vm").value<QObject *>() : nullptr;
    QObject *filtered = historyModel ? historyModel->property("filteredContacts").value<QObject *>() : nullptr;
    if (!filtered || filtered->property("count").toInt() != historyRows)
        fail("the history screen does not list every call");
    // The search index is built on a worker thread meanwhile.
    frames.settle(300);
    memorySamples("history");

    showTab(window, frames, tabBar, 3, "settings");
    if (!findNamed(window, QStringLiteral("settingView")))
        fail("no settings screen");
    frames.settle(300);
    memorySamples("settings");
    sample("hwm_loaded", bench::statusKb("VmHWM:") / 1024.0);
    memorySamples("loaded");

    // An alert is made when first asked for: "Select By Country", the
    // largest, from the tap to it shown.
    {
        QObject *settings = findNamed(window, QStringLiteral("settingView"));
        auto *button = qobject_cast<QQuickItem *>(findNamed(settings, QStringLiteral("editByCountryButton")));
        if (!button)
            fail("no \"Edit by country\" button");
        const qint64 start = monotonicNs();
        frames.startGaps(start);
        click(window, button);
        sample("alert_click_ms", (monotonicNs() - start) / 1e6);
        waitUntil([settings] {
            QObject *alert = findNamed(settings, QStringLiteral("countryDialog"));
            return alert && alert->property("visible").toBool();
        }, "no country alert");
        sample("alert_made_ms", (monotonicNs() - start) / 1e6);
        sample("alert_gap_ms", frames.longestGapNs() / 1e6);
        settings->setProperty("showingPrefixByCountry", false);
        frames.settle(300);
    }

    // Taps on tabs already shown: contacts sorts again each time it shows.
    for (int round = 0; round < 4; ++round) {
        for (const auto &[index, name] : { std::pair{ 1, "contacts_again" }, std::pair{ 2, "history_again" },
                                           std::pair{ 3, "settings_again" } }) {
            showTab(window, frames, tabBar, index, name);
            frames.settle(20);
        }
    }

    // Typing: each search field takes the focus from a click.
    for (const auto &[index, viewName, list] : { std::tuple{ 1, "contactsView", "contacts" },
                                                 std::tuple{ 2, "historyView", "history" } }) {
        showTab(window, frames, tabBar, index, "for_typing");
        frames.settle(50);
        QObject *view = findNamed(window, QString::fromLatin1(viewName));
        auto *field = qobject_cast<QQuickItem *>(findNamed(view, QStringLiteral("searchField")));
        QObject *model = view->property("vm").value<QObject *>();
        if (!field || !model)
            fail("no search field");
        click(window, field);
        frames.settle(50);
        if (!field->hasActiveFocus())
            fail("the search field did not take the focus");
        const auto searchText = [model] { return model->property("searchText").toString(); };
        for (int round = 0; round < 4; ++round)
            typeKeys(window, frames, typingRound(), list, searchText);
    }
    frames.settle(100);
    sample("hwm_after_typing", bench::statusKb("VmHWM:") / 1024.0);
    memorySamples("after_typing");
#ifdef __GLIBC__
    // How much of the resident memory is freed heap the allocator still holds.
    malloc_trim(0);
    sample("rss_after_trim", bench::statusKb("VmRSS:") / 1024.0);
#endif
    std::printf("done\n");
    std::fflush(stdout);
    return 0;
}

// ---------------------------------------------------------------- the parent

struct Summary
{
    QMap<QByteArray, QList<double>> samples; // in order of first appearance below
    QList<QByteArray> order;
};

bool launch(const QString &home, qint64 &launchNs, QByteArray &output)
{
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    child.setProcessEnvironment(environment);
    launchNs = monotonicNs();
    child.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--run"), home });
    if (!child.waitForFinished(180000) || child.exitCode() != 0) {
        std::fprintf(stderr, "a run failed:\n%s\n%s\n", child.readAllStandardOutput().constData(),
                     child.readAllStandardError().constData());
        return false;
    }
    output = child.readAllStandardOutput();
    return true;
}

int measure(const QString &home, int runs)
{
    Summary summary;
    for (int run = 0; run <= runs; ++run) {
        qint64 launchNs = 0;
        QByteArray output;
        if (!launch(home, launchNs, output))
            return 1;
        if (run == 0)
            continue; // the first run warms the file cache
        for (const QByteArray &line : output.split('\n')) {
            const QList<QByteArray> parts = line.split(' ');
            if (parts.size() != 3)
                continue;
            QByteArray name = parts[1];
            double value = parts[2].toDouble();
            if (parts[0] == "stamp") {
                name += "_ms";
                value = (parts[2].toLongLong() - launchNs) / 1e6;
            } else if (parts[0] != "sample") {
                continue;
            }
            if (!summary.samples.contains(name))
                summary.order.append(name);
            summary.samples[name].append(value);
        }
    }
    const auto value = [&summary](const QByteArray &name) { return bench::median(summary.samples.value(name, { -1 })); };
    const auto worst = [&summary](const QByteArray &name) {
        const QList<double> v = summary.samples.value(name, { -1 });
        return *std::max_element(v.begin(), v.end());
    };
    const char *platform = qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM").constData();
    std::printf("the app with %d history rows and %d contacts (%d vCard files) on %s, medians of %d runs\n",
                historyRows, contactCount, contactFiles, platform, runs);
    std::printf("start-up: window up %.0f ms (target < 200), idle %.0f ms (target < 350), resident %.1f MiB\n",
                value("window_ms"), value("idle_ms"), value("rss_idle"));
    std::printf("first show of a tab, click to first frame: contacts %.1f ms, history %.1f ms, settings %.1f ms\n",
                value("tab_contacts_frame_ms"), value("tab_history_frame_ms"), value("tab_settings_frame_ms"));
    std::printf("  of which handling the click: contacts %.1f ms, history %.1f ms, settings %.1f ms\n",
                value("tab_contacts_click_ms"), value("tab_history_click_ms"), value("tab_settings_click_ms"));
    std::printf("  screen made: contacts %.1f ms, history %.1f ms, settings %.1f ms after the click; longest wait "
                "for a frame meanwhile: %.1f, %.1f, %.1f ms (target < 33)\n",
                value("tab_contacts_made_ms"), value("tab_history_made_ms"), value("tab_settings_made_ms"),
                value("tab_contacts_gap_ms"), value("tab_history_gap_ms"), value("tab_settings_gap_ms"));
    std::printf("first alert (\"Select By Country\"): handling the tap %.1f ms, shown %.1f ms after it; longest wait "
                "for a frame meanwhile %.1f ms (target < 33)\n",
                value("alert_click_ms"), value("alert_made_ms"), value("alert_gap_ms"));
    std::printf("  contacts: all %d in %.0f ms after the click, drawn at %.0f ms\n", contactCount,
                value("tab_contacts_loaded_ms"), value("tab_contacts_loaded_frame_ms"));
    std::printf("showing a tab again, click to frame (median / slowest): contacts %.1f / %.1f ms, history %.1f / "
                "%.1f ms, settings %.1f / %.1f ms; handling the click: contacts %.1f ms, history %.1f ms, settings "
                "%.1f ms (target < 33 ms)\n",
                value("tab_contacts_again_frame_ms"), worst("tab_contacts_again_frame_ms"),
                value("tab_history_again_frame_ms"), worst("tab_history_again_frame_ms"),
                value("tab_settings_again_frame_ms"), worst("tab_settings_again_frame_ms"),
                value("tab_contacts_again_click_ms"), value("tab_history_again_click_ms"),
                value("tab_settings_again_click_ms"));
    std::printf("resident memory after each step, MiB (anonymous + file-backed):\n");
    for (const char *stage : { "idle", "contacts", "history", "settings", "after_typing" }) {
        const QByteArray s(stage);
        std::printf("  %-13s %6.1f (%.1f + %.1f)\n", stage, value("rss_" + s), value("rss_anon_" + s),
                    value("rss_file_" + s));
    }
    std::printf("everything loaded: VmRSS %.1f MiB, VmHWM %.1f MiB (target < 120 MiB); after typing: VmRSS %.1f, "
                "VmHWM %.1f MiB; after malloc_trim: VmRSS %.1f MiB\n",
                value("rss_loaded"), value("hwm_loaded"), value("rss_after_typing"), value("hwm_after_typing"),
                value("rss_after_trim"));
    for (const char *list : { "contacts", "history" }) {
        const QByteArray p = QByteArray("key_") + list;
        const auto stats = [&](const char *what) {
            const QList<double> v = summary.samples.value(p + what, { -1 });
            return std::tuple{ bench::median(v), bench::percentile(v, 90), bench::maximum(v) };
        };
        const auto [handle, handle90, handleMax] = stats("_handle_ms");
        const auto [handleCpu, handleCpu90, handleCpuMax] = stats("_handle_cpu_ms");
        const auto [layoutCpu, layoutCpu90, layoutCpuMax] = stats("_layout_cpu_ms");
        const auto [frame, frame90, frameMax] = stats("_frame_ms");
        const auto [frameCpu, frameCpu90, frameCpuMax] = stats("_frame_cpu_ms");
        std::printf("search keystroke in %s, %lld keys (median / 90th percentile / slowest):\n", list,
                    qlonglong(summary.samples.value(p + "_handle_ms").size()));
        std::printf("  handling the key: %.2f / %.2f / %.2f ms wall, %.2f / %.2f / %.2f ms CPU\n",
                    handle, handle90, handleMax, handleCpu, handleCpu90, handleCpuMax);
        std::printf("  with the list's layout: %.2f / %.2f / %.2f ms CPU\n", layoutCpu, layoutCpu90, layoutCpuMax);
        std::printf("  to the next frame drawn: %.2f / %.2f / %.2f ms wall, %.2f / %.2f / %.2f ms CPU (target < 33 ms)\n",
                    frame,
                    frame90, frameMax, frameCpu, frameCpu90, frameCpuMax);
    }
    std::fflush(stdout);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if ((argc == 3 || argc == 4) && qstrcmp(argv[1], "--run") == 0) {
        if (argc == 4)
            stopStage = argv[3];
        return runOnce(argc, argv, QString::fromLocal8Bit(argv[2]));
    }

    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1StringView("--prepare"))
        return prepareHome(arguments.at(2)) ? 0 : 1;
    if (arguments.size() == 3 && arguments.at(1) == QLatin1StringView("--home"))
        return measure(arguments.at(2), 5);

    QTemporaryDir home;
    QElapsedTimer timer;
    timer.start();
    if (!home.isValid() || !prepareHome(home.path())) {
        std::fprintf(stderr, "could not write the home\n");
        return 1;
    }
    std::printf("wrote %d contacts and %d calls in %lld ms\n", contactCount, historyRows, timer.elapsed());
    return measure(home.path(), 5);
}
