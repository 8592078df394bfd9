#pragma once

#include "KeyValueStore.h"

#include <QJsonObject>
#include <QString>

#include <memory>

// A settings suite kept as one JSON file; a date is {"date": "<ISO 8601,
// UTC>"}. Every write replaces the file atomically. Entries of unknown
// shapes are kept as they are. Other programs may share the file: a write
// takes its lock, reads it again and changes only its own key; a read first
// takes in what changed on disk.
class JsonFileKeyValueStore : public KeyValueStore
{
public:
    // Opens the suite at `path`, creating its folder when needed. A file that
    // cannot be parsed is moved aside (never deleted) and the suite starts
    // empty. Returns nullptr when the file or its folder cannot be used.
    static std::unique_ptr<JsonFileKeyValueStore> open(const QString &path);
    static std::unique_ptr<JsonFileKeyValueStore> inMemory();

    std::optional<SettingValue> object(const QString &key) const override;
    void setObject(const QString &key, const SettingValue &value) override;

private:
    // One version of the file: each write makes a new file.
    struct Stamp
    {
        quint64 inode = 0;
        qint64 modifiedNs = -1;
        qint64 size = -1;
        bool operator==(const Stamp &) const = default;
    };
    // The file's at `path`, or the open file's when `descriptor` is given.
    static Stamp stampOf(const QString &path, int descriptor = -1);
    enum class Read { Missing, Read, Unparseable, Unreadable };
    static Read readFile(const QString &path, QJsonObject &values, Stamp &stamp);
    static bool setAside(const QString &path, QString &aside);

    explicit JsonFileKeyValueStore(QString path, QJsonObject values, Stamp stamp);
    void takeInChanges() const;
    void write();

    QString m_path;
    mutable QJsonObject m_values;
    mutable Stamp m_stamp;
};
