#pragma once

#include "KeyValueStore.h"

#include <QJsonObject>
#include <QString>

#include <memory>

// A settings suite kept as one human-readable JSON file. Booleans, integers
// and strings are plain JSON values; a date is {"date": "<ISO 8601, UTC>"}.
// Every write replaces the file atomically (temporary file, sync, rename),
// so a process killed right after a write keeps it and never leaves a
// half-written file. Entries of shapes this version does not know are kept
// as they are.
class JsonFileKeyValueStore : public KeyValueStore
{
public:
    // Opens the suite at `path`, creating its folder when needed. A file that
    // cannot be parsed is moved aside (never deleted) and the suite starts
    // empty. Returns nullptr when the file or its folder cannot be used.
    static std::unique_ptr<JsonFileKeyValueStore> open(const QString &path);
    // A suite kept in memory only, for a session whose settings folder is unusable.
    static std::unique_ptr<JsonFileKeyValueStore> inMemory();

    QString path() const { return m_path; }

    std::optional<SettingValue> object(const QString &key) const override;
    void setObject(const QString &key, const SettingValue &value) override;

private:
    explicit JsonFileKeyValueStore(QString path, QJsonObject values);
    void write() const;

    QString m_path;
    QJsonObject m_values;
};
