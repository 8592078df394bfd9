#include "TemporaryHome.h"

TemporaryHome::TemporaryHome()
{
    qputenv("XDG_CONFIG_HOME", filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", filePath(QStringLiteral("data")).toUtf8());
}
