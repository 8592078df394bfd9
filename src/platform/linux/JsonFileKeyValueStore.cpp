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

// Whether a JSON number can be read as a signed 64-bit integer (NaN cannot).
bool isInIntegerRange(double d)
{
    return d >= -9223372036854775808.0 && d < 9223372036854775808.0;
}

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
        if (isInIntegerRange(d))
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
    if (error.error == QJsonParseError::NoError && document.isObject()) {
        const QJsonObject values = document.object();
        for (auto it = values.begin(); it != values.end(); ++it) {
            if (it->isDouble() && !fromJson(*it))
                say(QStringLiteral("Settings file %1: %2 holds %3, out of range; it reads as absent").arg(path, it.key(), QString::number(it->toDouble())));
        }
        return std::unique_ptr<JsonFileKeyValueStore>(new JsonFileKeyValueStore(path, values));
    }

    // The first free name: a file set aside earlier in the same second keeps its name.
    const QString stem = path + QStringLiteral(".unreadable-")
            + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString aside = stem;
    for (int n = 2; QFile::exists(aside) && n <= 1000; ++n)
        aside = stem + QStringLiteral("-%1").arg(n);
    if (!QFile::rename(path, aside)) {
        say(QStringLiteral("Settings file %1 could not be read nor set aside; running on defaults kept in memory").arg(path));
        return nullptr;
    }
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
    // Unbuffered, so that a full disk shows in write() itself: a buffered
    // QSaveFile may commit a short file without noticing.
    QSaveFile file(m_path);
    const QByteArray bytes = QJsonDocument(m_values).toJson(QJsonDocument::Indented);
    bool written = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    for (qsizetype done = 0; written && done < bytes.size();) {
        const qint64 wrote = file.write(bytes.constData() + done, bytes.size() - done);
        written = wrote > 0;
        done += wrote;
    }
    const QString why = file.errorString();
    if (!written)
        file.cancelWriting();
    if (!written || !file.commit())
        say(QStringLiteral("Settings file %1 could not be written, kept as it was; the change holds until the app quits: %2")
                    .arg(m_path, written ? file.errorString() : why));
}
