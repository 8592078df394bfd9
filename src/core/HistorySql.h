#pragma once

// What the history store's two files share: reading a record, telling a
// damaged file, logging. Private to the store.
#include "HistoryData.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTextStream>
#include <QVariant>

#include <atomic>

namespace HistorySql {

// SQLite's primary result codes that mean "this file is damaged".
inline constexpr int sqliteCorrupt = 11;
inline constexpr int sqliteNotADatabase = 26;

inline const QString selectColumns =
    QStringLiteral("SELECT rowid, firstName, lastName, telephone, time, callHidden FROM HistoryData");

inline QString describe(const QSqlError &error)
{
    const QString text = error.text().trimmed();
    return text.isEmpty() ? QStringLiteral("unknown error") : text;
}

inline bool isDamage(const QSqlError &error)
{
    bool ok = false;
    const int code = error.nativeErrorCode().toInt(&ok) & 0xff;
    return ok && (code == sqliteCorrupt || code == sqliteNotADatabase);
}

// Binds the record's five fields from position `first` on; a null string is stored as NULL.
inline void bindRecord(QSqlQuery &query, const HistoryData &r, int first)
{
    const auto text = [](const QString &t) { return t.isNull() ? QVariant(QMetaType::fromType<QString>()) : QVariant(t); };
    const QVariantList values{ text(r.firstName), text(r.lastName), text(r.telephone), text(r.time), r.callHidden ? 1 : 0 };
    for (int i = 0; i < values.size(); ++i)
        query.bindValue(first + i, values[i]);
}

inline HistoryData readRecord(const QSqlQuery &query)
{
    const auto text = [&](int column) {
        const QVariant value = query.value(column);
        return value.isNull() ? QString() : value.toString();
    };
    return HistoryData{ query.value(0).toLongLong(), text(1), text(2), text(3), text(4), query.value(5).toBool() };
}

// Runs `statement`; on failure says why in `error`.
inline bool execute(QSqlQuery &query, const QString &statement, QString &error)
{
    if (query.exec(statement))
        return true;
    error = describe(query.lastError());
    return false;
}

inline void log(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

inline QString newConnectionName()
{
    static std::atomic<int> count = 0;
    return QStringLiteral("HistoryCallDataService-%1").arg(++count);
}


} // namespace HistorySql
