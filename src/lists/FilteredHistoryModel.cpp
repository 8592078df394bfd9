#include "FilteredHistoryModel.h"

FilteredHistoryModel::FilteredHistoryModel(QObject *parent) : QAbstractListModel(parent) { }

void FilteredHistoryModel::letGoOfRecords()
{
    m_records = QList<HistoryData>();
}

void FilteredHistoryModel::show(const QList<HistoryData> &records, std::optional<QList<int>> rows, bool replaced)
{
    const qsizetype oldCount = m_count;
    const qsizetype newCount = rows ? rows->size() : records.size();
    QList<qint64> ids;
    ids.reserve(newCount);
    for (qsizetype row = 0; row < newCount; ++row)
        ids.append(records.at(rows ? rows->at(row) : row).objectId);

    if (replaced) {
        beginResetModel();
        m_records = records;
        m_rows = std::move(rows);
        m_ids = std::move(ids);
        m_count = newCount;
        m_moving = false;
        endResetModel();
        if (oldCount != newCount)
            emit countChanged();
        return;
    }

    // The rows both selections share at their start and at their end.
    const qsizetype shorter = std::min(oldCount, newCount);
    qsizetype head = 0;
    while (head < shorter && m_ids.at(head) == ids.at(head))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && m_ids.at(oldCount - 1 - tail) == ids.at(newCount - 1 - tail))
        ++tail;
    // Between them, old rows give way to new ones: the overlap changes in
    // place, the rest is removed or inserted after it.
    const qsizetype oldMiddle = oldCount - head - tail;
    const qsizetype newMiddle = newCount - head - tail;
    const qsizetype changed = std::min(oldMiddle, newMiddle);

    // The new selection is read from now on; until the change is fully
    // announced, rows keep their old numbers (see recordAt()).
    m_records = records;
    m_rows = std::move(rows);
    m_ids = std::move(ids);
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
