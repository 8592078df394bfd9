// Speed of the settings tab: building its model and its screen (done when
// the tab is first shown), and the work behind each tap: a country with one
// prefix, a country with several and the choice rows, a typed prefix, a
// switch, reset. Settings go to a real settings file in a temporary home.
// Prints medians; the target is in the output.
#include "Clock.h"
#include "HistoryCallDataService.h"
#include "Output.h"
#include "Platform.h"
#include "SettingViewModel.h"
#include "Statistics.h"
#include "TemporaryHome.h"
#include "UserDefaultsService.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QtQml/qqmlextensionplugin.h>

#include <functional>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

using namespace bench;

namespace {

constexpr double tapTargetMs = 2.0;

// Median wall-clock and processor milliseconds of `rounds` runs of `work`;
// the difference is mostly waiting for the disk to confirm a settings write.
struct Timing
{
    double wallMs;
    double cpuMs;
};

Timing medianMs(int rounds, const std::function<void(int)> &work)
{
    QList<double> wall;
    QList<double> cpu;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        const double cpuStart = processCpuMs();
        timer.start();
        work(i);
        wall.append(double(timer.nsecsElapsed()) / 1e6);
        cpu.append(processCpuMs() - cpuStart);
    }
    return { median(wall), median(cpu) };
}

// The target applies to the processor time: the work a tap costs.
void report(const QString &what, Timing timing, double target)
{
    out() << what << ": median " << QString::number(timing.wallMs, 'f', 3) << " ms wall, "
          << QString::number(timing.cpuMs, 'f', 3) << " ms cpu";
    if (target > 0)
        out() << " (target < " << target << " ms cpu" << (timing.cpuMs < target ? ", ok" : ", OVER") << ")";
    out() << Qt::endl;
}

} // namespace

int main(int argc, char *argv[])
{
    TemporaryHome home;
    QGuiApplication app(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Material"));
    UserDefaultsService::shared();
    HistoryCallDataService history(Platform::dataDirectory() + QStringLiteral("/CallHistoryData.sqlite"));

    report(QStringLiteral("model creation"), medianMs(50, [&](int) { SettingViewModel vm(&history); }), 0);

    SettingViewModel vm(&history);
    // Catalogue lookups print their log line; keep it out of the numbers' way.
    report(QStringLiteral("tap: country with one prefix (stores it)"),
           medianMs(200, [&](int i) { vm.selectCountry(i % 2 ? QStringLiteral("Japan") : QStringLiteral("China")); }),
           tapTargetMs);
    report(QStringLiteral("tap: country with several prefixes + choice rows"), medianMs(200, [&](int) {
               vm.selectCountry(QStringLiteral("Brazil"));
               vm.prefixChoices();
           }),
           tapTargetMs);
    report(QStringLiteral("tap: choose a prefix row"),
           medianMs(200, [&](int i) { vm.choosePrefix(i % 2 ? QStringLiteral("*31*") : QStringLiteral("#31#")); }),
           tapTargetMs);
    report(QStringLiteral("tap: OK on a refused typed prefix"),
           medianMs(200, [&](int) { vm.saveManualPrefix(QStringLiteral("#31 #")); }), tapTargetMs);
    report(QStringLiteral("tap: OK on an accepted typed prefix"),
           medianMs(200, [&](int i) { vm.saveManualPrefix(i % 2 ? QStringLiteral("*82") : QStringLiteral("#31#")); }),
           tapTargetMs);
    report(QStringLiteral("tap: sort switch (writes the order, clears two)"),
           medianMs(200, [&](int i) { i % 2 ? vm.setAutoSortByTelephone(true) : vm.setAutoSortByLastName(true); }),
           tapTargetMs);
    report(QStringLiteral("tap: Reset (six settings written)"), medianMs(100, [&](int) { vm.resetSettings(); }), 0);
    report(QStringLiteral("country list rows"), medianMs(200, [&](int) { vm.countryList(); }), tapTargetMs);

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Quieton/settings/SettingView.qml")));
    if (component.isError()) {
        out() << component.errorString() << Qt::endl;
        return 1;
    }
    report(QStringLiteral("settings screen creation (first show of the tab)"), medianMs(20, [&](int) {
               delete component.create();
           }),
           0);
    return 0;
}
