// Speed and memory of the history tab with 100 000 recorded calls: one search
// keystroke in the list model, the same keystroke with the real history screen
// laying out its list, and the peak memory of a process showing that screen.
// Prints medians; the targets are in the output.
#include "Clock.h"
#include "HistoryCallDataService.h"
#include "HistoryFile.h"
#include "HistoryViewModel.h"
#include "Output.h"
#include "Platform.h"
#include "ProcessInfo.h"
#include "Service.h"
#include "Statistics.h"
#include "TemporaryHome.h"
#include "UserDefaultsService.h"

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <optional>


using namespace bench;

namespace {

constexpr int recordCount = 100000;

// A history of `count` calls to a few thousand people, some dialled on the
// keypad (no names).
void populate(const QString &path, int count)
{
    const QStringList first = { "Anna", "Bob", "Carl", "Dora", "Élodie", "Frank", "Greta", "Hannah", "Ivan",
                                "Julia", "Karim", "Lena", "Marc", "Nina", "Oscar", "Paula", "Quentin", "Rosa",
                                "Sven", "Tara", "Ugo", "Vera", "Walid", "Xenia", "Yann", "Zoé" };
    const QStringList last = { "Smith", "Martin", "Jones", "Ng", "Lee", "Anders", "Quinn", "Dupont", "Müller",
                               "Rossi", "García", "Kowalski", "Nakamura", "Okafor", "Petrov", "Silva", "Haddad" };
    populateHistory(path, count, [&](int i, HistoryData &record) {
        const int person = (i * 7919) % 3000;
        const bool named = person % 5 != 0;
        record.firstName = named ? first.at(person % first.size()) : QString(QLatin1StringView(""));
        record.lastName = named ? last.at(person / first.size() % last.size()) : QString(QLatin1StringView(""));
        record.telephone = QStringLiteral("+33 6 %1").arg(10000000 + person * 337);
    });
}

// What a person does in the search field: type a name letter by letter, go
// back, type a number, clear. Each entry is the text after one keystroke.
const QStringList session = { "m", "ma", "mar", "mart", "marti", "martin", "marti", "mart", "mar", "ma", "m", "",
                              "h", "ha", "han", "hann", "hanna", "", "0", "06", "06 1", "06 12", "", "z",
                              "zo", "zoé", "zo", "z", "", "a", "an", "ann", "anna", "ann", "an", "a", "" };

// One keystroke, model only.
void benchModel(HistoryCallDataService &store)
{
    Service::shared(); // made once per app, at start-up
    QElapsedTimer timer;
    QList<double> buildMs;
    qsizetype indexBytes = 0;
    qsizetype combinations = 0;
    for (int i = 0; i < 7; ++i) {
        HistorySearchIndex index;
        timer.start();
        index.rebuild(store.savedEntities());
        buildMs.append(timer.nsecsElapsed() / 1e6);
        indexBytes = index.memoryBytes();
        combinations = index.combinationCount();
    }
    out() << "search text for " << store.savedEntities().size() << " records built (on a worker thread) in: median "
          << median(buildMs) << " ms" << Qt::endl;
    out() << "  it holds " << combinations << " distinct name and number combinations in " << indexBytes / 1024
          << " KiB" << Qt::endl;

    timer.restart();
    HistoryViewModel vm(&store, UserDefaultsService::shared(), Service::shared());
    out() << "model over " << vm.historyListArray().size() << " records made in " << timer.nsecsElapsed() / 1e6
          << " ms" << Qt::endl;
    // A search typed at once: it waits for the worker thread.
    timer.restart();
    vm.setSearchText(QStringLiteral("x"));
    out() << "first search, right after the model was made: " << timer.nsecsElapsed() / 1e6 << " ms" << Qt::endl;
    vm.setSearchText(QString());

    QList<double> all;
    QList<double> firstLetter;
    for (int round = 0; round < 30; ++round) {
        for (const QString &text : session) {
            const double start = threadCpuMs();
            vm.setSearchText(text);
            const double ms = threadCpuMs() - start;
            all.append(ms);
            if (text.size() == 1)
                firstLetter.append(ms);
        }
    }
    out() << "search keystroke (processor time), model, " << recordCount << " records: median " << median(all)
          << " ms, 90th percentile " << percentile(all, 90) << " ms, max " << maximum(all)
          << " ms (target median < 4 ms)" << Qt::endl;
    out() << "  first letter of a search (whole list scanned): median " << median(firstLetter)
          << " ms, 90th percentile " << percentile(firstLetter, 90) << " ms" << Qt::endl;

    // A text pasted or typed from scratch each time: no earlier step helps.
    QList<double> fresh;
    const QStringList pasted = { "martin", "06 12", "zoé", "ann", "qqq", "7" };
    for (int round = 0; round < 15; ++round) {
        for (const QString &text : pasted) {
            vm.setSearchText(QString());
            const double start = threadCpuMs();
            vm.setSearchText(text);
            fresh.append(threadCpuMs() - start);
        }
    }
    out() << "  pasted text, whole list scanned: median " << median(fresh) << " ms, 90th percentile "
          << percentile(fresh, 90) << " ms" << Qt::endl;
}

// A call recorded, and a listed record deleted, while the model lists
// 100 000 records: the store's own work (its file written and synced) plus
// the model's, in processor time of this thread.
void benchChanges(HistoryCallDataService &store)
{
    HistoryViewModel vm(&store, UserDefaultsService::shared(), Service::shared());
    for (const QString &search : { QString(), QStringLiteral("mar") }) {
        vm.setSearchText(search);
        QList<double> added;
        QList<double> deleted;
        for (int i = 0; i < 21; ++i) {
            double start = threadCpuMs();
            store.addHistory(QStringLiteral("Marc"), QStringLiteral("Quinn"), QStringLiteral("0700%1").arg(i), i % 2);
            added.append(threadCpuMs() - start);
            start = threadCpuMs();
            vm.deleteRows({ 0 });
            deleted.append(threadCpuMs() - start);
        }
        out() << "with " << vm.historyListArray().size() << " records listed"
              << (search.isEmpty() ? QStringLiteral("") : QStringLiteral(" under the search \"%1\"").arg(search))
              << ": a call recorded costs " << median(added) << " ms, deleting a listed row " << median(deleted)
              << " ms (medians, processor time, store included)" << Qt::endl;
    }
}

// The history screen, made inside `window` as the main screen makes it.
QQuickItem *makeScreen(QQmlComponent &component, QQuickWindow &window)
{
    auto *view = qobject_cast<QQuickItem *>(component.beginCreate(component.engine()->rootContext()));
    if (!view)
        return nullptr;
    view->setParentItem(window.contentItem());
    view->setSize(window.size());
    component.completeCreate();
    return view;
}

// One keystroke on the real history screen: the model's work plus the list
// laying out the rows it shows.
int benchScreen()
{
    // The app's own store reads its file in the background: take its records.
    HistoryCallDataService::shared()->waitForBackgroundFetch();
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQuickWindow window;
    window.resize(400, 800);
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quieton/lists/HistoryView.qml")));
    QElapsedTimer timer;
    timer.start();
    auto *view = makeScreen(component, window);
    if (!view) {
        out() << component.errorString() << Qt::endl;
        return 1;
    }
    view->setSize(QSizeF(400, 800));
    window.show();
    auto *list = view->findChild<QQuickItem *>(QStringLiteral("historyList"));
    QMetaObject::invokeMethod(list, "forceLayout");
    out() << "history screen with " << HistoryCallDataService::shared()->count() << " records made and laid out in "
          << timer.nsecsElapsed() / 1e6 << " ms" << Qt::endl;
    auto *vm = view->property("vm").value<HistoryViewModel *>();
    vm->setSearchText(QStringLiteral("x"));
    vm->setSearchText(QString());
    QMetaObject::invokeMethod(list, "forceLayout");

    QList<double> all;
    for (int round = 0; round < 10; ++round) {
        for (const QString &text : session) {
            const double start = threadCpuMs();
            vm->setSearchText(text);
            QMetaObject::invokeMethod(list, "forceLayout");
            all.append(threadCpuMs() - start);
        }
    }
    out() << "search keystroke (processor time), screen (model and list layout): median " << median(all) << " ms, 90th percentile "
          << percentile(all, 90) << " ms, max " << maximum(all) << " ms" << Qt::endl;
    delete view;
    return 0;
}

// In a process of its own: the peak memory of the app's history screen
// showing 100 000 records, after a search.
int measureMemory()
{
    HistoryCallDataService::shared()->waitForBackgroundFetch();
    const qint64 before = peakMemoryKb();
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQuickWindow window;
    window.resize(400, 800);
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quieton/lists/HistoryView.qml")));
    auto *view = makeScreen(component, window);
    if (!view)
        return 1;
    view->setSize(QSizeF(400, 800));
    window.show();
    auto *list = view->findChild<QQuickItem *>(QStringLiteral("historyList"));
    auto *vm = view->property("vm").value<HistoryViewModel *>();
    QMetaObject::invokeMethod(list, "forceLayout");
    for (const QString &text : session) {
        vm->setSearchText(text);
        QMetaObject::invokeMethod(list, "forceLayout");
    }
    const qint64 after = peakMemoryKb();
    out() << "peak memory (VmHWM) of the history screen with " << vm->historyListArray().size()
          << " records, after searching: " << after << " kB; before the screen: " << before
          << " kB; the screen's share: " << (after - before) << " kB" << Qt::endl;
    delete view;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const bool memoryChild = argc == 2 && qstrcmp(argv[1], "--memory") == 0;
    // The app's own folders live in a temporary home for the whole run; the
    // memory child works in its parent's.
    std::optional<TemporaryHome> home;
    if (!memoryChild)
        home.emplace();
    QGuiApplication app(argc, argv);
    if (memoryChild)
        return measureMemory();

    const QString path = Platform::dataDirectory() + QStringLiteral("/CallHistoryData.sqlite");
    QDir().mkpath(Platform::dataDirectory());
    QElapsedTimer timer;
    timer.start();
    populate(path, recordCount);
    out() << "filled " << recordCount << " records in " << timer.elapsed() << " ms" << Qt::endl;
    {
        HistoryCallDataService store(path);
        benchModel(store);
        benchChanges(store);
    }
    if (const int failed = benchScreen())
        return failed;

    return runSelf({ QStringLiteral("--memory") });
}
