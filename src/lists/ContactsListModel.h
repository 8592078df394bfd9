#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

class ContactsViewModel;

// The contacts a search leaves visible, as a list model for the view. Rows
// are read from the contacts model when the view asks for them, so only the
// rows on screen cost anything.
class ContactsListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by ContactsViewModel")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        ContactIdRole = Qt::UserRole + 1,
        FirstNameRole,
        LastNameRole,
        TelephoneRole,
    };
    Q_ENUM(Role)

    explicit ContactsListModel(const ContactsViewModel *contacts, QObject *parent = nullptr);

    int count() const;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    // Told by the contacts model, around its own changes.
    void beginReset();
    void endReset();
    void beginAppend(int count);
    void endAppend();
    // Told after the contacts model chose other visible rows (a search):
    // the rows on screen change in place and only the difference in count
    // is removed or added, so a view keeps its delegates instead of
    // building them all again.
    void rowsReplaced();

signals:
    void countChanged();

private:
    const ContactsViewModel *m_contacts;
    int m_count = 0; // the rows as announced to views
};
