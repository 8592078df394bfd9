#pragma once

#include "HistoryData.h"

#include <QAbstractListModel>
#include <QList>
#include <QtQml/qqmlregistration.h>

#include <optional>

// The history records a list shows: all of a record list, or the rows of it
// that a search kept. Rows are read from the shared list when the view asks
// for them; nothing is made per row in advance.
//
// A new selection is announced as the smallest change that turns the old rows
// into the new ones around their common start and end (an added call is one
// inserted row, a deleted one one removed row), so a list view keeps its
// delegates and its place instead of starting over.
class FilteredHistoryModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by HistoryViewModel")
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

    explicit FilteredHistoryModel(QObject *parent = nullptr);

    // Shows `rows` of `records` (ascending indexes), or every record when
    // `rows` is std::nullopt. With `replaced`, the rows are announced as a
    // new list; otherwise records are told apart by their row numbers in an
    // unchanged list, by their ids in a changed one.
    void show(const QList<HistoryData> &records, std::optional<QList<int>> rows, bool replaced = false);
    // Drops the model's share of the record list until the next show(), so
    // that its owner can change it in place. Rows read as empty meanwhile.
    void letGoOfRecords();

    int count() const { return int(m_count); }
    // The record at `row`; a default record outside the list.
    HistoryData at(int row) const;
    // The record at `row` for QML (undefined outside the list).
    Q_INVOKABLE QVariant get(int row) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    // An absent text field reads as undefined, an empty one as "".
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    const HistoryData *recordAt(int row) const;
    // The ids of the rows shown now.
    QList<qint64> shownIds() const;

    QList<HistoryData> m_records;
    std::optional<QList<int>> m_rows;
    qsizetype m_count = 0;
    // Whether m_records was let go of: the next list is a changed one.
    bool m_recordsLetGo = false;
    // The ids of the rows shown when the record list was let go of, to
    // compare the changed list's selection with. While the list stays the
    // same, selections are compared by row numbers instead.
    std::optional<QList<qint64>> m_ids;
    // While show() announces a change: rows below m_split and from
    // m_tailFrom on are read from the new selection (the latter m_tailShift
    // rows further on), the others are going.
    bool m_moving = false;
    qsizetype m_split = 0;
    qsizetype m_tailFrom = 0;
    qsizetype m_tailShift = 0;
};
