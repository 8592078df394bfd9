#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

class HistoryCallDataService;

// The history store's records as a list model, one row per record in the
// store's order. Rows are read from the store's list when asked for; nothing
// is copied or created per row.
class HistoryListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        ObjectIdRole = Qt::UserRole + 1,
        FirstNameRole,
        LastNameRole,
        TelephoneRole,
        TimeRole,
        CallHiddenRole,
    };
    Q_ENUM(Role)

    // Over the shared store.
    explicit HistoryListModel(QObject *parent = nullptr);
    explicit HistoryListModel(HistoryCallDataService *store, QObject *parent = nullptr);

    int count() const;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    HistoryCallDataService *m_store;
};
