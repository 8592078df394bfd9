#pragma once

#include "FetchedContact.h"

#include <QAbstractListModel>
#include <QList>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <utility>

struct AddressBookContact;

// Every contact read from the address book, in the list's current order.
class ContactsListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by ContactsViewModel")

public:
    enum Role {
        ContactIdRole = Qt::UserRole + 1,
        FirstNameRole,
        LastNameRole,
        TelephoneRole,
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    const QList<FetchedContact> &contacts() const { return m_contacts; }

    // One record per person, with the person's first number, at the end.
    void append(const QList<AddressBookContact> &people);
    // A stable sort by first name (0), last name (1) or telephone (2).
    // Canonically equivalent texts are equal; the rest compare by code
    // point, case-sensitively. Rows move only when the order changes.
    void sort(qint64 field, bool ascending);
    // Works out on a worker thread the order sort(field, ascending) would
    // put the rows in, so that the next sort only moves them while no rows
    // come meanwhile: sorting 50 000 contacts the first time the tab is shown
    // again held it up for 70 ms and more (bench_loaded).
    void prepareSort(qint64 field, bool ascending);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    using Order = std::pair<qint64, bool>;
    // The rows in `order`, as indexes into `contacts`; none if already in it.
    static QList<qsizetype> sortedRows(const QList<FetchedContact> &contacts, Order order);
    // Rows came or moved: a prepared order no longer holds.
    void changed();

    QList<FetchedContact> m_contacts;
    // The order sort() last put the rows in, until rows are appended.
    std::optional<Order> m_order;
    int m_version = 0;
    std::optional<std::pair<Order, QList<qsizetype>>> m_prepared;
};
