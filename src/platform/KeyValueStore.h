#pragma once

#include <QDateTime>
#include <QString>

#include <optional>
#include <variant>

// One stored value.
using SettingValue = std::variant<bool, qint64, QString, QDateTime>;

// A suite of typed key-value settings. Subclasses provide storage; the
// typed reads here follow the reading rules every caller relies on:
// absent Bool/Integer read false/0, a String read of a stored number gives
// its decimal text, an absent String reads as no value, and a Date read
// accepts only a stored date.
class KeyValueStore
{
public:
    virtual ~KeyValueStore() = default;

    virtual std::optional<SettingValue> object(const QString &key) const = 0;
    virtual void setObject(const QString &key, const SettingValue &value) = 0;

    bool hasObject(const QString &key) const { return object(key).has_value(); }
    bool boolValue(const QString &key) const;
    qint64 integerValue(const QString &key) const;
    std::optional<QString> stringValue(const QString &key) const;
    std::optional<QDateTime> dateValue(const QString &key) const;

    void setBool(const QString &key, bool value) { setObject(key, SettingValue(value)); }
    void setInteger(const QString &key, qint64 value) { setObject(key, SettingValue(value)); }
    void setString(const QString &key, const QString &value) { setObject(key, SettingValue(value)); }
    void setDate(const QString &key, const QDateTime &value) { setObject(key, SettingValue(value)); }
};
