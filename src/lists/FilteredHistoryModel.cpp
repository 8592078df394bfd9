#include "FilteredHistoryModel.h"

FilteredHistoryModel::FilteredHistoryModel(QObject *parent) : QAbstractListModel(parent) { }

qint64 FilteredHistoryModel::idAt(const QList<HistoryData> &records, const std::optional<QList<int>> &rows,
                                  qsizetype row) const
{
    return records.at(rows ? rows->at(row) : row).objectId;
}

void FilteredHistoryModel::show(const QList<HistoryData> &records, std::optional<QList<int>> rows)
{
    const qsizetype oldCount = count();
    const qsizetype newCount = rows ? rows->size() : records.size();

    // The rows both selections share at their start and at their end.
    const qsizetype shorter = std::min(oldCount, newCount);
    qsizetype head = 0;
    while (head < shorter && idAt(m_records, m_rows, head) == idAt(records, rows, head))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head
           && idAt(m_records, m_rows, oldCount - 1 - tail) == idAt(records, rows, newCount - 1 - tail))
        ++tail;
    // Between them, old rows give way to new ones: the overlap changes in
    // place, the rest is removed or inserted after it.
    const qsizetype oldMiddle = oldCount - head - tail;
    const qsizetype newMiddle = newCount - head - tail;
    const qsizetype changed = std::min(oldMiddle, newMiddle);

    // First the rows that change in place: from then on until the rest is
    // announced, the rows up to the end of the overlap are the new ones and
    // the others the old ones.
    if (changed > 0) {
        m_nextRecords = records;
        m_nextRows = rows;
        m_split = head + changed;
        emit dataChanged(index(int(head)), index(int(head + changed - 1)));
    }
    const auto commit = [&] {
        m_records = records;
        m_rows = std::move(rows);
        m_split = -1;
        m_nextRecords.clear();
        m_nextRows.reset();
    };
    if (newMiddle < oldMiddle) {
        beginRemoveRows(QModelIndex(), int(head + changed), int(head + oldMiddle - 1));
        commit();
        endRemoveRows();
    } else if (newMiddle > oldMiddle) {
        beginInsertRows(QModelIndex(), int(head + changed), int(head + newMiddle - 1));
        commit();
        endInsertRows();
    } else {
        commit();
    }
    if (oldCount != newCount)
        emit countChanged();
}

const HistoryData *FilteredHistoryModel::recordAt(int row) const
{
    if (row < 0 || row >= count())
        return nullptr;
    if (row < m_split)
        return &m_nextRecords.at(m_nextRows ? m_nextRows->at(row) : row);
    return &m_records.at(m_rows ? m_rows->at(row) : row);
}

HistoryData FilteredHistoryModel::at(int row) const
{
    const HistoryData *record = recordAt(row);
    return record ? *record : HistoryData();
}

QVariant FilteredHistoryModel::get(int row) const
{
    const HistoryData *record = recordAt(row);
    return record ? QVariant::fromValue(*record) : QVariant();
}

int FilteredHistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant FilteredHistoryModel::data(const QModelIndex &index, int role) const
{
    const HistoryData *record = index.isValid() ? recordAt(index.row()) : nullptr;
    if (!record)
        return {};
    const auto text = [](const QString &value) { return value.isNull() ? QVariant() : QVariant(value); };
    switch (role) {
    case ObjectIdRole:
        return record->objectId;
    case FirstNameRole:
        return text(record->firstName);
    case LastNameRole:
        return text(record->lastName);
    case TelephoneRole:
    case Qt::DisplayRole:
        return text(record->telephone);
    case TimeRole:
        return text(record->time);
    case CallHiddenRole:
        return record->callHidden;
    default:
        return {};
    }
}

QHash<int, QByteArray> FilteredHistoryModel::roleNames() const
{
    return {
        { ObjectIdRole, "objectId" },   { FirstNameRole, "firstName" }, { LastNameRole, "lastName" },
        { TelephoneRole, "telephone" }, { TimeRole, "time" },           { CallHiddenRole, "callHidden" },
    };
}
