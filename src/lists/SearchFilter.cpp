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
    : QSortFilterProxyModel(parent)
{
    m_forming.setSingleShot(true);
    m_forming.setInterval(0);
    connect(&m_forming, &QTimer::timeout, this, &SearchFilter::formSomeRows);
    // Connected before the proxy's own handlers, so that the forms follow
    // the source before the proxy filters its changed rows.
    connect(source, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &, int first, int last) {
        if (first <= m_rowForms.size())
            m_rowForms.insert(first, last - first + 1, QString());
        reform(first);
    });
    connect(source, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex &, int first, int last) {
        m_rowForms.remove(first, std::clamp<qsizetype>(m_rowForms.size() - first, 0, last - first + 1));
        reform(first);
    });
    connect(source, &QAbstractItemModel::dataChanged, this, [this](const QModelIndex &from, const QModelIndex &to) {
        for (int row = from.row(); row <= to.row() && row < m_rowForms.size(); ++row)
            m_rowForms[row] = QString();
        reform(from.row());
    });
    const auto forget = [this] {
        m_rowForms.clear();
        reform(0);
    };
    connect(source, &QAbstractItemModel::modelReset, this, forget);
    connect(source, &QAbstractItemModel::layoutChanged, this, forget);
    connect(source, &QAbstractItemModel::rowsMoved, this, forget);
    setSourceModel(source);
    reform(0);

    const QHash<int, QByteArray> names = source->roleNames();
    for (const QByteArray &name : roleNames)
        m_roles.append(names.key(name, -1));
    // One count notification for any change of the rows.
    const auto recount = [this] {
        if (m_count == rowCount())
            return;
        m_count = rowCount();
        emit countChanged();
    };
    connect(this, &QAbstractItemModel::rowsInserted, this, recount);
    connect(this, &QAbstractItemModel::rowsRemoved, this, recount);
    connect(this, &QAbstractItemModel::modelReset, this, recount);
    connect(this, &QAbstractItemModel::layoutChanged, this, recount);
    m_count = rowCount();
}

void SearchFilter::setSearchText(const QString &text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    m_searchForm = searchForm(text);
    // invalidateFilter() tells views of every run of rows that goes or
    // comes, rebuilding its whole row map for each run: 150 to 300 ms for
    // one letter at 50 000 rows. Filtering afresh is one pass, and views lay
    // out the rows they show again.
    invalidate();
    emit searchTextChanged();
}

QString SearchFilter::rowForm(const QModelIndex &row) const
{
    // The separator is a character of its own in both forms: the fields
    // can be joined first and formed in one go.
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
    const int rows = sourceModel()->rowCount();
    m_rowForms.resize(rows);
    for (int made = 0; m_nextToForm < rows && made < 2000; ++m_nextToForm) {
        QString &form = m_rowForms[m_nextToForm];
        if (form.isNull()) {
            form = rowForm(sourceModel()->index(m_nextToForm, 0));
            ++made;
        }
    }
    if (m_nextToForm < rows)
        m_forming.start();
}

bool SearchFilter::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (m_searchForm.isEmpty())
        return true;
    const QModelIndex row = sourceModel()->index(sourceRow, 0, sourceParent);
    if (m_searchForm.contains(separator)) {
        // Only a field that holds the separator itself can match.
        for (int role : m_roles) {
            const QVariant field = row.data(role);
            if (field.isValid() && !field.isNull() && searchForm(field.toString()).contains(m_searchForm))
                return true;
        }
        return false;
    }
    if (m_rowForms.size() != sourceModel()->rowCount(sourceParent))
        m_rowForms.resize(sourceModel()->rowCount(sourceParent));
    QString &form = m_rowForms[sourceRow];
    if (form.isNull())
        form = rowForm(row);
    return form.contains(m_searchForm);
}
