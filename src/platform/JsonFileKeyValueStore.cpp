#include "JsonFileKeyValueStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>
#include <QTextStream>

#include <cmath>

namespace {

const QLatin1StringView dateMember("date");

QJsonValue toJson(const SettingValue &value)
{
    return std::visit(
            [](const auto &v) -> QJsonValue {
                using T = std::decay_t<decltype(v)>;
                if constexpr (std::is_same_v<T, QDateTime>)
                    return QJsonObject{ { dateMember, v.toUTC().toString(Qt::ISODateWithMs) } };
                else
                    return QJsonValue(v);
            },
            value);
}

std::optional<SettingValue> fromJson(const QJsonValue &json)
{
    switch (json.type()) {
    case QJsonValue::Bool:
        return SettingValue(json.toBool());
    case QJsonValue::Double: {
        const double d = json.toDouble();
        const qint64 i = json.toInteger();
        if (json.toVariant().typeId() == QMetaType::LongLong || double(i) == d)
            return SettingValue(i);
        if (std::isfinite(d))
            return SettingValue(qint64(d));
        return std::nullopt;
    }
    case QJsonValue::String:
        return SettingValue(json.toString());
    case QJsonValue::Object: {
        const QJsonObject object = json.toObject();
        if (object.size() == 1 && object.value(dateMember).isString()) {
            const QDateTime date = QDateTime::fromString(object.value(dateMember).toString(), Qt::ISODateWithMs);
            if (date.isValid())
                return SettingValue(date);
        }
        return std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

void say(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

} // namespace

JsonFileKeyValueStore::JsonFileKeyValueStore(QString path, QJsonObject values)
    : m_path(std::move(path)), m_values(std::move(values))
{
}

std::unique_ptr<JsonFileKeyValueStore> JsonFileKeyValueStore::open(const QString &path)
{
    const QFileInfo info(path);
    if (!QDir().mkpath(info.absolutePath()))
        return nullptr;

    QFile file(path);
    if (!file.exists())
        return std::unique_ptr<JsonFileKeyValueStore>(new JsonFileKeyValueStore(path, {}));
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;

    const QByteArray bytes = file.readAll();
    file.close();
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error == QJsonParseError::NoError && document.isObject())
        return std::unique_ptr<JsonFileKeyValueStore>(new JsonFileKeyValueStore(path, document.object()));

    const QString aside = path + QStringLiteral(".unreadable-")
            + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    if (!QFile::rename(path, aside))
        return nullptr;
    say(QStringLiteral("Settings file %1 could not be read; kept it as %2 and started with defaults").arg(path, aside));
    return std::unique_ptr<JsonFileKeyValueStore>(new JsonFileKeyValueStore(path, {}));
}

std::unique_ptr<JsonFileKeyValueStore> JsonFileKeyValueStore::inMemory()
{
    return std::unique_ptr<JsonFileKeyValueStore>(new JsonFileKeyValueStore(QString(), {}));
}

std::optional<SettingValue> JsonFileKeyValueStore::object(const QString &key) const
{
    const auto it = m_values.constFind(key);
    if (it == m_values.constEnd())
        return std::nullopt;
    return fromJson(*it);
}

void JsonFileKeyValueStore::setObject(const QString &key, const SettingValue &value)
{
    m_values.insert(key, toJson(value));
    write();
}

void JsonFileKeyValueStore::write() const
{
    if (m_path.isEmpty())
        return;
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly)) {
        say(QStringLiteral("Settings file %1 could not be written: %2").arg(m_path, file.errorString()));
        return;
    }
    file.write(QJsonDocument(m_values).toJson(QJsonDocument::Indented));
    if (!file.commit())
        say(QStringLiteral("Settings file %1 could not be written: %2").arg(m_path, file.errorString()));
}
