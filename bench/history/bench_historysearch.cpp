// Search keystrokes on the history tab with 10 000 and 100 000 recorded
// calls: the model alone, and with the history screen laying out its list.
// Prints medians of the main thread's processor time; the targets are in the
// output.
#include "Clock.h"
#include "HistoryCallDataService.h"
#include "HistoryFile.h"
#include "HistoryViewModel.h"
#include "Output.h"
#include "QuietonApp.h"
#include "SearchTyping.h"
#include "Service.h"
#include "Statistics.h"
#include "TemporaryHome.h"
#include "UserDefaultsService.h"

#include <QDir>
#include <QGuiApplication>


using namespace bench;

namespace {

// Calls to a few thousand people, some dialled on the keypad (no names).
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

void report(const char *what, int records, const QList<double> &ms, double target)
{
    out() << "search keystroke, " << what << ", " << records << " records (processor time): median " << median(ms)
          << " ms, 90th percentile " << percentile(ms, 90) << " ms, slowest " << maximum(ms) << " ms (target < "
          << target << " ms)" << Qt::endl;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    TemporaryHome home;
    QGuiApplication app(argc, argv);
    QuietonApp quieton;
    for (auto [records, target] : { std::pair{ 10000, 8.0 }, std::pair{ 100000, 33.0 } }) {
        const QString path = QDir(home.path()).filePath(QStringLiteral("history-%1.sqlite").arg(records));
        populate(path, records);
        HistoryCallDataService store(path);
        store.fetchHistory();
        HistoryViewModel vm(store, *quieton.defaultsService(), *quieton.service());
        idleFor(1000);
        QList<double> ms;
        for (int round = 0; round < 10; ++round) {
            for (const QString &text : session) {
                const double start = threadCpuMs();
                vm.setSearchText(text);
                ms.append(threadCpuMs() - start);
            }
        }
        report("model", records, ms, target);
        report("screen (model and list layout)", records,
               typeIntoScreen(&vm, QStringLiteral("HistoryView.qml"), QStringLiteral("historyList"), session, 5),
               target);
    }
    return 0;
}
