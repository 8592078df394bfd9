#include "TestHome.h"


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
