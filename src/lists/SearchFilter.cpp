#include "SearchFilter.h"

namespace {

// Ends each field of a row's form: a noncharacter, in no name or number.
constexpr QChar separator = QChar(0xFFFF);

QString searchForm(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C).toCaseFolded();
}

} // namespace

// Reading and folding every field again at each keystroke cost 38 ms at
// 100 000 rows (of which making variants took 40%), over the 33 ms a
// keystroke may take: each row's form is kept, dropped with its row, which
// leaves a keystroke at about 6 ms. Forming 100 000 rows takes about 100 ms,
// so it is done in slices while the app is idle, and only what is still
// missing when a search comes is formed then.
SearchFilter::SearchFilter(QAbstractItemModel *source, const QList<QByteArray> &roleNames, QObject *parent)
    : QAbstractListModel(parent), m_source(source)
{
    m_forming.setSingleShot(true);
    m_forming.setInterval(0);
    connect(&m_forming, &QTimer::timeout, this, &SearchFilter::formSomeRows);
    connect(source, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &, int first, int last) {
        if (first <= m_rowForms.size())
            m_rowForms.insert(first, last - first + 1, QString());
        reform(first);
        refilter(first);
    });
    connect(source, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex &, int first, int last) {
        m_rowForms.remove(first, std::clamp<qsizetype>(m_rowForms.size() - first, 0, last - first + 1));
        reform(first);
        refilter(first);
    });
    connect(source, &QAbstractItemModel::dataChanged, this, [this](const QModelIndex &from, const QModelIndex &to) {
        for (int row = from.row(); row <= to.row() && row < m_rowForms.size(); ++row)
            m_rowForms[row] = QString();
        reform(from.row());
        refilter(from.row());
    });
    const auto forget = [this] {
        m_rowForms.clear();
        reform(0);
        refilter(0);
    };
    connect(source, &QAbstractItemModel::modelReset, this, forget);
    connect(source, &QAbstractItemModel::layoutChanged, this, forget);
    connect(source, &QAbstractItemModel::rowsMoved, this, forget);

    const QHash<int, QByteArray> names = source->roleNames();
    for (const QByteArray &name : roleNames)
        m_roles.append(names.key(name, -1));
    reform(0);
    refilter();
}

void SearchFilter::setSearchText(const QString &text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    m_searchForm = searchForm(text);
    refilter();
    emit searchTextChanged();
}

void SearchFilter::refilter(int changedFrom)
{
    const int sourceRows = m_source->rowCount();
    m_rowForms.resize(sourceRows);
    QList<int> rows;
    for (int row = 0; row < sourceRows; ++row) {
        if (accepts(row))
            rows.append(row);
    }
    const qsizetype before = m_rows.size();
    const qsizetype after = rows.size();
    // Of the rows both lists have, the first and the last that change.
    const auto same = [&](qsizetype row) { return m_rows.at(row) == rows.at(row) && rows.at(row) < changedFrom; };
    qsizetype first = 0;
    qsizetype last = std::min(before, after) - 1;
    while (first <= last && same(first))
        ++first;
    while (last >= first && same(last))
        --last;
    if (after < before) {
        beginRemoveRows(QModelIndex(), int(after), int(before - 1));
        m_rows.resize(after);
        endRemoveRows();
    } else if (after > before) {
        beginInsertRows(QModelIndex(), int(before), int(after - 1));
        m_rows.append(rows.sliced(before));
        endInsertRows();
    }
    m_rows = std::move(rows);
    if (first <= last)
        emit dataChanged(index(int(first)), index(int(last)));
    if (after != before)
        emit countChanged();
}

int SearchFilter::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant SearchFilter::data(const QModelIndex &index, int role) const
{
    return checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)
               ? m_source->index(m_rows.at(index.row()), 0).data(role)
               : QVariant();
}

QString SearchFilter::rowForm(int sourceRow) const
{
    // The separator is a character of its own in both forms: the fields
    // can be joined first and formed in one go.
    const QModelIndex row = m_source->index(sourceRow, 0);
    QString form;
    form.reserve(64);
    for (int role : m_roles) {
        const QVariant field = row.data(role);
        if (field.isValid() && !field.isNull())
            form += field.toString();
        form += separator;
    }
    return searchForm(form);
}

void SearchFilter::reform(int fromRow)
{
    m_nextToForm = std::min(m_nextToForm, fromRow);
    m_forming.start();
}

void SearchFilter::formSomeRows()
{
    const int rows = m_source->rowCount();
    m_rowForms.resize(rows);
    for (int made = 0; m_nextToForm < rows && made < 2000; ++m_nextToForm) {
        QString &form = m_rowForms[m_nextToForm];
        if (form.isNull()) {
            form = rowForm(m_nextToForm);
            ++made;
        }
    }
    if (m_nextToForm < rows)
        m_forming.start();
}

bool SearchFilter::accepts(int sourceRow)
{
    if (m_searchForm.isEmpty())
        return true;
    if (m_searchForm.contains(separator)) {
        // Only a field that holds the separator itself can match.
        const QModelIndex row = m_source->index(sourceRow, 0);
        for (int role : m_roles) {
            const QVariant field = row.data(role);
            if (field.isValid() && !field.isNull() && searchForm(field.toString()).contains(m_searchForm))
                return true;
        }
        return false;
    }
    QString &form = m_rowForms[sourceRow];
    if (form.isNull())
        form = rowForm(sourceRow);
    return form.contains(m_searchForm);
}
