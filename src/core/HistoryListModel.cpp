#include "HistoryListModel.h"

#include "HistoryCallDataService.h"

HistoryListModel::HistoryListModel(QObject *parent)
    : HistoryListModel(HistoryCallDataService::shared(), parent)
{
}

HistoryListModel::HistoryListModel(HistoryCallDataService *store, QObject *parent)
    : QAbstractListModel(parent), m_store(store)
{
    using Store = HistoryCallDataService;
    connect(store, &Store::entitiesAboutToBeInserted, this,
            [this](int first, int last) { beginInsertRows(QModelIndex(), first, last); });
    connect(store, &Store::entitiesInserted, this, [this] {
        endInsertRows();
        emit countChanged();
    });
    connect(store, &Store::entitiesAboutToBeRemoved, this,
            [this](int first, int last) { beginRemoveRows(QModelIndex(), first, last); });
    connect(store, &Store::entitiesRemoved, this, [this] {
        endRemoveRows();
        emit countChanged();
    });
    connect(store, &Store::entitiesAboutToBeReset, this, [this] { beginResetModel(); });
    connect(store, &Store::entitiesReset, this, [this] {
        endResetModel();
        emit countChanged();
    });
}

int HistoryListModel::count() const
{
    return int(m_store->savedEntities().size());
}

int HistoryListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant HistoryListModel::data(const QModelIndex &index, int role) const
{
    const QList<HistoryData> &rows = m_store->savedEntities();
    if (!index.isValid() || index.row() < 0 || index.row() >= rows.size())
        return {};
    const HistoryData &record = rows.at(index.row());
    switch (role) {
    case ObjectIdRole:
        return record.objectId;
    case FirstNameRole:
        return record.firstName;
    case LastNameRole:
        return record.lastName;
    case TelephoneRole:
        return record.telephone;
    case TimeRole:
        return record.time();
    case CallHiddenRole:
        return record.callHidden;
    case Qt::DisplayRole:
        return record.telephone;
    default:
        return {};
    }
}

QHash<int, QByteArray> HistoryListModel::roleNames() const
{
    return {
        { ObjectIdRole, "objectId" },   { FirstNameRole, "firstName" }, { LastNameRole, "lastName" },
        { TelephoneRole, "telephone" }, { TimeRole, "time" },           { CallHiddenRole, "callHidden" },
    };
}
