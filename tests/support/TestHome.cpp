#include "TestHome.h"

#include <QDir>
#include <QTemporaryDir>

namespace {
QDir home()
{
    static QTemporaryDir dir;
    return QDir(dir.path());
}
} // namespace

QString TestHome::use()
{
    home().mkpath(QStringLiteral("config"));
    home().mkpath(QStringLiteral("data"));
    qputenv("XDG_CONFIG_HOME", home().filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", home().filePath(QStringLiteral("data")).toUtf8());
    return home().path();
}

QString TestHome::configDirectory()
{
    return home().filePath(QStringLiteral("config/quieton"));
}
