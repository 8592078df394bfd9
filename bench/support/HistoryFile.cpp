#include "HistoryFile.h"

#include "HistoryCallDataService.h"

#include <QSqlDatabase>
#include <QSqlQuery>

namespace bench {

void populateHistory(const QString &path, int count, const std::function<void(int i, HistoryData &record)> &describe)
{
    { HistoryCallDataService schema(path); }
    const QString connection = QStringLiteral("populate");
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(path);
        db.open();
        db.transaction();
        {
            QSqlQuery insert(db);
            insert.prepare(QStringLiteral(
                "INSERT INTO HistoryData (firstName, lastName, telephone, time, callHidden) VALUES (?, ?, ?, ?, ?)"));
            const QDateTime start(QDate(2023, 1, 1), QTime(8, 0));
            for (int i = 0; i < count; ++i) {
                HistoryData record;
                record.time = HistoryCallDataService::timeText(start.addSecs(qint64(i) * 317));
                record.callHidden = i % 2;
                describe(i, record);
                insert.bindValue(0, record.firstName);
                insert.bindValue(1, record.lastName);
                insert.bindValue(2, record.telephone);
                insert.bindValue(3, record.time);
                insert.bindValue(4, int(record.callHidden));
                insert.exec();
            }
        }
        db.commit();
        db.close();
    }
    QSqlDatabase::removeDatabase(connection);
}

qsizetype storedHistoryCount(const QString &path)
{
    HistoryCallDataService store(path);
    store.fetchHistory();
    return store.savedEntities().size();
}

} // namespace bench
