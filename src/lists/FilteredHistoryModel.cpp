#include "FilteredHistoryModel.h"

#include <tuple>
#include <utility>

FilteredHistoryModel::FilteredHistoryModel(QObject *parent) : QAbstractListModel(parent) { }

void FilteredHistoryModel::letGoOfRecords()
{
    if (m_recordsLetGo)
        return;
    m_ids = shownIds();
    m_records = QList<HistoryData>();
    m_recordsLetGo = true;
}

QList<qint64> FilteredHistoryModel::shownIds() const
{
    if (m_recordsLetGo)
        return {};
    QList<qint64> ids(m_count);
    qint64 *id = ids.data();
    const HistoryData *records = m_records.constData();
    if (m_rows) {
        const int *rows = m_rows->constData();
        for (qsizetype row = 0; row < m_count; ++row)
            id[row] = records[rows[row]].objectId;
    } else {
        for (qsizetype row = 0; row < m_count; ++row)
            id[row] = records[row].objectId;
    }
    return ids;
}

namespace {

// How many rows two selections share at their start, and then at their end,
// `same(i, j)` telling whether old row i and new row j show the same record.
template<typename Same>
std::pair<qsizetype, qsizetype> commonEnds(qsizetype oldCount, qsizetype newCount, Same same)
{
    const qsizetype shorter = std::min(oldCount, newCount);
    qsizetype head = 0;
    while (head < shorter && same(head, head))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && same(oldCount - 1 - tail, newCount - 1 - tail))
        ++tail;
    return { head, tail };
}

} // namespace

void FilteredHistoryModel::show(const QList<HistoryData> &records, std::optional<QList<int>> rows, bool replaced)
{
    const qsizetype oldCount = m_count;
    const qsizetype newCount = rows ? rows->size() : records.size();

    if (replaced) {
        beginResetModel();
        m_records = records;
        m_recordsLetGo = false;
        m_rows = std::move(rows);
        m_ids.reset();
        m_count = newCount;
        m_moving = false;
        endResetModel();
        if (oldCount != newCount)
            emit countChanged();
        return;
    }

    // The rows both selections share at their start and at their end: in the
    // same record list the same row number is the same record; a changed
    // list's records are told apart by their ids.
    qsizetype head = 0;
    qsizetype tail = 0;
    const bool sameList = !m_recordsLetGo && records.constData() == m_records.constData()
        && records.size() == m_records.size();
    if (sameList) {
        const QList<int> *oldRows = m_rows ? &*m_rows : nullptr;
        const QList<int> *newRows = rows ? &*rows : nullptr;
        if (oldRows && newRows && oldRows->constData() == newRows->constData() && oldCount == newCount) {
            head = newCount; // the very same selection
        } else if (oldRows && newRows) {
            const int *o = oldRows->constData();
            const int *n = newRows->constData();
            std::tie(head, tail) = commonEnds(oldCount, newCount, [o, n](qsizetype i, qsizetype j) { return o[i] == n[j]; });
        } else {
            std::tie(head, tail) = commonEnds(oldCount, newCount, [oldRows, newRows](qsizetype i, qsizetype j) {
                return (oldRows ? oldRows->at(i) : i) == (newRows ? newRows->at(j) : j);
            });
        }
    } else {
        // Only the new rows compared are looked at.
        const QList<qint64> oldIds = m_ids ? *m_ids : shownIds();
        const qint64 *oldId = oldIds.constData();
        const HistoryData *record = records.constData();
        if (oldIds.size() != oldCount) {
            // Nothing known of the old rows: all of them give way.
        } else if (rows) {
            const int *newRow = rows->constData();
            std::tie(head, tail) = commonEnds(oldCount, newCount, [oldId, record, newRow](qsizetype i, qsizetype j) {
                return oldId[i] == record[newRow[j]].objectId;
            });
        } else {
            std::tie(head, tail) = commonEnds(oldCount, newCount, [oldId, record](qsizetype i, qsizetype j) {
                return oldId[i] == record[j].objectId;
            });
        }
    }
    // Between them, old rows give way to new ones: the overlap changes in
    // place, the rest is removed or inserted after it.
    const qsizetype oldMiddle = oldCount - head - tail;
    const qsizetype newMiddle = newCount - head - tail;
    const qsizetype changed = std::min(oldMiddle, newMiddle);

    // The new selection is read from now on; until the change is fully
    // announced, rows keep their old numbers (see recordAt()).
    m_records = records;
    m_recordsLetGo = false;
    m_rows = std::move(rows);
    m_ids.reset();
    m_moving = true;
    m_split = head;
    m_tailFrom = oldCount - tail;
    m_tailShift = newCount - oldCount;
    // First the rows that change in place, then the rest.
    if (changed > 0) {
        m_split = head + changed;
        emit dataChanged(index(int(head)), index(int(head + changed - 1)));
    }
    if (newMiddle < oldMiddle) {
        beginRemoveRows(QModelIndex(), int(head + changed), int(head + oldMiddle - 1));
        m_count = newCount;
        m_moving = false;
        endRemoveRows();
    } else if (newMiddle > oldMiddle) {
        beginInsertRows(QModelIndex(), int(head + changed), int(head + newMiddle - 1));
        m_count = newCount;
        m_moving = false;
        endInsertRows();
    } else {
        m_count = newCount;
        m_moving = false;
    }
    if (oldCount != newCount)
        emit countChanged();
}

const HistoryData *FilteredHistoryModel::recordAt(int row) const
{
    if (row < 0 || row >= count())
        return nullptr;
    qsizetype shown = row;
    if (m_moving) {
        // Old numbering over the new selection: the rows before the split
        // are already the new ones, the shared end has moved by the change
        // in length, and the rows between are on their way out.
        if (row >= m_tailFrom)
            shown = row + m_tailShift;
        else if (row >= m_split)
            return nullptr;
    }
    const qsizetype at = m_rows ? m_rows->at(shown) : shown;
    return at < m_records.size() ? &m_records.at(at) : nullptr;
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
