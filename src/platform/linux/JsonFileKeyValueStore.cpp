#include "JsonFileKeyValueStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLockFile>
#include <QSaveFile>
#include <QTextStream>

#include <cmath>

#include <sys/stat.h>

namespace {

const QLatin1StringView dateMember("date");

QJsonValue toJson(const SettingValue &value)
{
    if (const auto *date = std::get_if<QDateTime>(&value))
        return QJsonObject{ { dateMember, date->toUTC().toString(Qt::ISODateWithMs) } };
    return QJsonValue::fromVariant(std::visit([](const auto &v) { return QVariant::fromValue(v); }, value));
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
        // A signed 64-bit integer holds it (NaN it does not).
        if (d >= -9223372036854775808.0 && d < 9223372036854775808.0)
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

JsonFileKeyValueStore::Stamp JsonFileKeyValueStore::stampOf(const QString &path, int descriptor)
{
    struct stat status {};
    const int failed = descriptor >= 0 ? ::fstat(descriptor, &status) : ::stat(QFile::encodeName(path).constData(), &status);
    if (failed)
        return {};
    return { status.st_ino, qint64(status.st_mtim.tv_sec) * 1000000000 + status.st_mtim.tv_nsec, status.st_size };
}

JsonFileKeyValueStore::Read JsonFileKeyValueStore::readFile(const QString &path, QJsonObject &values, Stamp &stamp)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.exists() ? Read::Unreadable : Read::Missing;
    stamp = stampOf(path, file.handle()); // of what is read, even if replaced meanwhile
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return Read::Unparseable;
    values = document.object();
    return Read::Read;
}

bool JsonFileKeyValueStore::setAside(const QString &path, QString &aside)
{
    // The first free name: a file set aside earlier in the same second keeps its name.
    const QString stem = path + QStringLiteral(".unreadable-")
            + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    aside = stem;
    for (int n = 2; QFile::exists(aside) && n <= 1000; ++n)
        aside = stem + QStringLiteral("-%1").arg(n);
    return QFile::rename(path, aside);
}

JsonFileKeyValueStore::JsonFileKeyValueStore(QString path, QJsonObject values, Stamp stamp)
    : m_path(std::move(path)), m_values(std::move(values)), m_stamp(stamp)
{
}

std::unique_ptr<JsonFileKeyValueStore> JsonFileKeyValueStore::open(const QString &path)
{
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return nullptr;
    QJsonObject values;
    Stamp stamp;
    switch (readFile(path, values, stamp)) {
    case Read::Missing:
        return std::unique_ptr<JsonFileKeyValueStore>(new JsonFileKeyValueStore(path, {}, {}));
    case Read::Unreadable:
        return nullptr;
    case Read::Read:
        for (auto it = values.begin(); it != values.end(); ++it) {
            if (it->isDouble() && !fromJson(*it))
                say(QStringLiteral("Settings file %1: %2 holds %3, out of range; it reads as absent").arg(path, it.key(), QString::number(it->toDouble())));
        }
        return std::unique_ptr<JsonFileKeyValueStore>(new JsonFileKeyValueStore(path, values, stamp));
    case Read::Unparseable:
        break;
    }
    QString aside;
    if (!setAside(path, aside)) {
        say(QStringLiteral("Settings file %1 could not be read nor set aside; running on defaults kept in memory").arg(path));
        return nullptr;
    }
    say(QStringLiteral("Settings file %1 could not be read; kept it as %2 and started with defaults").arg(path, aside));
    return std::unique_ptr<JsonFileKeyValueStore>(new JsonFileKeyValueStore(path, {}, {}));
}

std::unique_ptr<JsonFileKeyValueStore> JsonFileKeyValueStore::inMemory()
{
    return std::unique_ptr<JsonFileKeyValueStore>(new JsonFileKeyValueStore(QString(), {}, {}));
}

void JsonFileKeyValueStore::takeInChanges() const
{
    // One stat per read: the file is parsed again only when another write replaced it.
    if (m_path.isEmpty() || stampOf(m_path) == m_stamp)
        return;
    QJsonObject values;
    if (readFile(m_path, values, m_stamp) == Read::Read)
        m_values = values;
}

std::optional<SettingValue> JsonFileKeyValueStore::object(const QString &key) const
{
    takeInChanges();
    const auto it = m_values.constFind(key);
    if (it == m_values.constEnd())
        return std::nullopt;
    return fromJson(*it);
}

void JsonFileKeyValueStore::setObject(const QString &key, const SettingValue &value)
{
    const QJsonValue json = toJson(value);
    m_values.insert(key, json);
    if (m_path.isEmpty())
        return;
    // Without the lock (a read-only folder, say) the write goes ahead and
    // fails or wins on its own.
    QLockFile lock(m_path + QStringLiteral(".lock"));
    lock.lock();
    QJsonObject values;
    const Read read = readFile(m_path, values, m_stamp);
    if (read == Read::Read) {
        values.insert(key, json);
        m_values = values;
    } else if (QString aside; read == Read::Unparseable && setAside(m_path, aside)) {
        say(QStringLiteral("Settings file %1 could not be read; kept it as %2 and wrote this app's settings").arg(m_path, aside));
    }
    write();
}

void JsonFileKeyValueStore::write()
{
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
    if (!written || !file.commit()) {
        say(QStringLiteral("Settings file %1 could not be written, kept as it was; the change holds until the app quits: %2")
                    .arg(m_path, written ? file.errorString() : why));
        return;
    }
    m_stamp = stampOf(m_path);
}
