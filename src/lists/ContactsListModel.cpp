#include "ContactsListModel.h"

#include "ContactsViewModel.h"

ContactsListModel::ContactsListModel(const ContactsViewModel *contacts, QObject *parent)
    : QAbstractListModel(parent), m_contacts(contacts)
{
}

int ContactsListModel::count() const
{
    return int(m_contacts->visibleCount());
}

int ContactsListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ContactsListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= count())
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
    endResetModel();
    emit countChanged();
}

void ContactsListModel::beginAppend(int added)
{
    beginInsertRows(QModelIndex(), count(), count() + added - 1);
}

void ContactsListModel::endAppend()
{
    endInsertRows();
    emit countChanged();
}
