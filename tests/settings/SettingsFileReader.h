#pragma once

#include "JsonFileKeyValueStore.h"
#include "Platform.h"

#include <QDir>
#include <QObject>

// Reads the app's settings file afresh from disk, the way the next start of
// the app would see it.
class SettingsFileReader : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    static QString path() { return QDir(Platform::configDirectory()).filePath(QStringLiteral("quieton.json")); }

    Q_INVOKABLE bool has(const QString &key) const
    {
        const auto file = JsonFileKeyValueStore::open(path());
        return file && file->hasObject(key);
    }
    Q_INVOKABLE bool boolValue(const QString &key) const
    {
        const auto file = JsonFileKeyValueStore::open(path());
        return file && file->boolValue(key);
    }
};
