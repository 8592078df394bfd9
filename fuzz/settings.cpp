// A settings file as found on disk: opened (or set aside), every entry read
// in every typed way, one value written, and every entry reads the same from
// the written file.
#include "FuzzCheck.h"
#include "JsonFileKeyValueStore.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("quieton.json"));
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    {
        QFile file(path);
        FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }
    const QStringList keys = QJsonDocument::fromJson(bytes).object().keys();
    {
        auto store = JsonFileKeyValueStore::open(path);
        FUZZ_CHECK(store);
        QList<std::optional<SettingValue>> before;
        for (const QString &key : keys) {
            before.append(store->object(key));
            store->boolValue(key);
            store->integerValue(key);
            store->stringValue(key);
            store->dateValue(key);
        }
        store->setString(QStringLiteral("quieton fuzz"), QStringLiteral("*67"));
        auto again = JsonFileKeyValueStore::open(path);
        FUZZ_CHECK(again && again->stringValue(QStringLiteral("quieton fuzz")) == QStringLiteral("*67"));
        for (qsizetype i = 0; i < keys.size(); ++i) {
            if (keys[i] != QStringLiteral("quieton fuzz"))
                FUZZ_CHECK(again->object(keys[i]) == before[i]);
        }
    }
    for (const QString &name : QDir(folder.path()).entryList(QDir::Files))
        QFile::remove(folder.filePath(name));
    return 0;
}
