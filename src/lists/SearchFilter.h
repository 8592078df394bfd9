#pragma once

#include <QList>
#include <QSortFilterProxyModel>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

// The rows of a list whose text fields contain the search text, in the
// list's own order. Both sides are compared in one form: composed (so "e"
// with a combining acute and a precomposed "é" are the same text) and
// case-folded. A field the row does not have never matches; the text is
// used as typed, blanks included.
class SearchFilter : public QSortFilterProxyModel
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
    int count() const { return rowCount(); }

signals:
    void searchTextChanged();
    void countChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    QString rowForm(const QModelIndex &row) const;
    void formSomeRows();
    void reform(int fromRow);

    QList<int> m_roles;
    QString m_searchText;
    QString m_searchForm;
    int m_count = 0;
    // Each source row's fields in their search form, one after the other,
    // each followed by a separator; a null string for a row not formed yet.
    mutable QList<QString> m_rowForms;
    // Rows not formed yet are formed a slice at a time while the app is
    // idle, from this row on.
    QTimer m_forming;
    int m_nextToForm = 0;
};
