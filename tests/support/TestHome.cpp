#include "TestHome.h"

#include "CheckUpdate.h"

#include <QDir>
#include <QTemporaryDir>

namespace {
QTemporaryDir &home()
{
    static QTemporaryDir dir;
    return dir;
}
} // namespace

QString TestHome::use()
{
    const QDir root(home().path());
    root.mkpath(QStringLiteral("config"));
    root.mkpath(QStringLiteral("data"));
    qputenv("XDG_CONFIG_HOME", root.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", root.filePath(QStringLiteral("data")).toUtf8());
    // Test programs never reach the network: unless a test installs a checker
    // of its own, the store lookup goes to a closed port on this machine.
    static const bool offline = [] {
        CheckUpdate::Config config = CheckUpdate::Config::fromBuild();
        config.lookupOrigin = config.apiOrigin = QStringLiteral("http://127.0.0.1:9");
        CheckUpdate::setShared(new CheckUpdate(config));
        return true;
    }();
    Q_UNUSED(offline);
    return root.path();
}

QString TestHome::configDirectory()
{
    return QDir(home().path()).filePath(QStringLiteral("config/quieton"));
}

QString TestHome::dataDirectory()
{
    return QDir(home().path()).filePath(QStringLiteral("data/quieton"));
}
