#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <limits>

// The rows of a list whose text fields contain the search text, in the
// list's own order. Both sides are compared in one form: composed (so "e"
// with a combining acute and a precomposed "é" are the same text) and
// case-folded. A field the row does not have never matches; the text is
// used as typed, blanks included.
//
// When the matches change, the rows both lists have are told that they
// show other records, and only the rows past the shorter list come or go:
// a view keeps its row items and fills them again. Telling a view that
// every row changed places (a layout change, what a QSortFilterProxyModel
// does on a new search) makes it throw away its items and make new ones:
// at 10 000 records half of each keystroke, 12 ms of it on the first one.
class SearchFilter : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the list's view model")
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    // Searches the roles of `source` named `roleNames`.
    SearchFilter(QAbstractItemModel *source, const QList<QByteArray> &roleNames, QObject *parent = nullptr);

    QString searchText() const { return m_searchText; }
    void setSearchText(const QString &text);
    int count() const { return int(m_rows.size()); }
    // The source's row listed at `row`; -1 for no listed row.
    int sourceRow(int row) const { return row >= 0 && row < m_rows.size() ? m_rows.at(row) : -1; }
    // Filters the source's rows again; the source's rows from `changedFrom`
    // on may hold other records than before.
    void refilter(int changedFrom = std::numeric_limits<int>::max());

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override { return m_source->roleNames(); }

signals:
    void searchTextChanged();
    void countChanged();

private:
    bool accepts(int sourceRow);
    QString rowForm(int sourceRow) const;
    void formSomeRows();
    void reform(int fromRow);

    QAbstractItemModel *m_source;
    QList<int> m_roles;
    QString m_searchText;
    QString m_searchForm;
    // The listed source rows.
    QList<int> m_rows;
    // Each source row's fields in their search form, one after the other,
    // each followed by a separator; a null string for a row not formed yet.
    QList<QString> m_rowForms;
    // Rows not formed yet are formed a slice at a time while the app is
    // idle, from this row on.
    QTimer m_forming;
    int m_nextToForm = 0;
};
