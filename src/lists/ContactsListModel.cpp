#include "ContactsListModel.h"

#include "ContactsViewModel.h"

#include <algorithm>

ContactsListModel::ContactsListModel(const ContactsViewModel *contacts, QObject *parent)
    : QAbstractListModel(parent), m_contacts(contacts)
{
}

int ContactsListModel::count() const
{
    return m_count;
}

int ContactsListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ContactsListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= count() || index.row() >= m_contacts->visibleCount())
        return {};
    const FetchedContact &contact = m_contacts->visibleContactAt(index.row());
    switch (role) {
    case ContactIdRole:
        return contact.id;
    case Qt::DisplayRole:
    case FirstNameRole:
        return contact.firstName;
    case LastNameRole:
        return contact.lastName;
    case TelephoneRole:
        return contact.telephone;
    default:
        return {};
    }
}

QHash<int, QByteArray> ContactsListModel::roleNames() const
{
    return { { ContactIdRole, "contactId" },
             { FirstNameRole, "firstName" },
             { LastNameRole, "lastName" },
             { TelephoneRole, "telephone" } };
}

void ContactsListModel::beginReset() { beginResetModel(); }

void ContactsListModel::endReset()
{
    m_count = int(m_contacts->visibleCount());
    endResetModel();
    emit countChanged();
}

void ContactsListModel::beginAppend(int added)
{
    beginInsertRows(QModelIndex(), m_count, m_count + added - 1);
}

void ContactsListModel::endAppend()
{
    m_count = int(m_contacts->visibleCount());
    endInsertRows();
    emit countChanged();
}

void ContactsListModel::rowsReplaced()
{
    const int oldCount = m_count;
    const int newCount = int(m_contacts->visibleCount());
    if (newCount < oldCount) {
        beginRemoveRows(QModelIndex(), newCount, oldCount - 1);
        m_count = newCount;
        endRemoveRows();
    } else if (newCount > oldCount) {
        beginInsertRows(QModelIndex(), oldCount, newCount - 1);
        m_count = newCount;
        endInsertRows();
    }
    const int kept = std::min(oldCount, newCount);
    if (kept > 0)
        emit dataChanged(index(0), index(kept - 1));
    if (oldCount != newCount)
        emit countChanged();
}
