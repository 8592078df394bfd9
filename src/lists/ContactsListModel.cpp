#include "ContactsListModel.h"

#include "AddressBook.h"

#include <QtConcurrent>

#include <algorithm>
#include <vector>

namespace {

// UTF-16 units put everything past U+FFFF (surrogates, D800-DFFF) before
// E000-FFFF; moving the surrogates above them gives code-point order.
char16_t orderUnit(char16_t unit)
{
    if (unit >= 0xE000)
        return char16_t(unit - 0x800);
    if (unit >= 0xD800)
        return char16_t(unit + 0x2000);
    return unit;
}

// From unit `from` on; the units before it are equal.
bool codePointLess(const QString &a, const QString &b, qsizetype from)
{
    const qsizetype n = std::min(a.size(), b.size());
    for (qsizetype i = from; i < n; ++i) {
        if (a[i] != b[i])
            return orderUnit(a[i].unicode()) < orderUnit(b[i].unicode());
    }
    return a.size() < b.size();
}

// Sorting 50 000 contacts on their texts alone took 49 ms of processor time
// in bench_contacts, more than a tap may take: the texts lie all over the
// heap. Each key's first eight units, in code-point order, sit beside it as
// two numbers, so most comparisons never read the text (22 to 29 ms).
struct SortKey
{
    quint64 high = 0;
    quint64 low = 0;
    QString text;
    qsizetype index;

    SortKey(QString &&key, qsizetype at) : text(std::move(key)), index(at)
    {
        for (qsizetype i = 0; i < 8; ++i) {
            quint64 &half = i < 4 ? high : low;
            half = (half << 16) | (i < text.size() ? orderUnit(text.at(i).unicode()) : 0);
        }
    }
    bool operator<(const SortKey &other) const
    {
        if (high != other.high)
            return high < other.high;
        if (low != other.low)
            return low < other.low;
        // Most names are short, and many alike: the eight units hold all of them.
        if (text.size() <= 8 || other.text.size() <= 8)
            return text.size() < other.text.size();
        return codePointLess(text, other.text, 8);
    }
};

} // namespace

void ContactsListModel::append(const QList<AddressBookContact> &people)
{
    if (people.isEmpty())
        return;
    m_order.reset();
    changed();
    beginInsertRows(QModelIndex(), int(m_contacts.size()), int(m_contacts.size() + people.size() - 1));
    for (const AddressBookContact &person : people)
        m_contacts.append(FetchedContact::make(person.givenName, person.familyName, person.phoneNumbers.value(0)));
    endInsertRows();
}

QList<qsizetype> ContactsListModel::sortedRows(const QList<FetchedContact> &contacts, Order order)
{
    const auto [field, ascending] = order;
    QString FetchedContact::*member = field == 0 ? &FetchedContact::firstName
                                    : field == 1 ? &FetchedContact::lastName
                                                 : &FetchedContact::telephone;
    std::vector<SortKey> keys;
    keys.reserve(size_t(contacts.size()));
    for (qsizetype i = 0; i < contacts.size(); ++i)
        keys.emplace_back((contacts.at(i).*member).normalized(QString::NormalizationForm_C), i);
    const auto before = [ascending](const SortKey &a, const SortKey &b) { return ascending ? a < b : b < a; };
    if (std::is_sorted(keys.begin(), keys.end(), before))
        return {};
    std::stable_sort(keys.begin(), keys.end(), before);
    QList<qsizetype> rows;
    rows.reserve(contacts.size());
    for (const SortKey &key : keys)
        rows.append(key.index);
    return rows;
}

void ContactsListModel::prepareSort(qint64 field, bool ascending)
{
    const Order order{ field, ascending };
    if (field < 0 || field > 2 || m_order == order)
        return;
    QtConcurrent::run([contacts = m_contacts, order] { return sortedRows(contacts, order); })
        .then(this, [this, order, version = m_version](const QList<qsizetype> &rows) {
            if (version == m_version)
                m_prepared = std::pair{ order, rows };
        });
}

void ContactsListModel::sort(qint64 field, bool ascending)
{
    const Order order{ field, ascending };
    // Shown again with no rows come since, the list is still in this order.
    if (field < 0 || field > 2 || m_order == order)
        return;
    m_order = order;
    const QList<qsizetype> rows = m_prepared && m_prepared->first == order ? m_prepared->second
                                                                            : sortedRows(m_contacts, order);
    if (rows.isEmpty())
        return;
    changed();
    beginResetModel();
    // Moved in place, cycle by cycle: a second list of 50 000 contacts is
    // 4 MB of fresh memory, and showing the tab again once the book was in
    // took up to 36 ms with it, 19 ms without (bench_loaded).
    std::vector<bool> placed(size_t(rows.size()));
    for (qsizetype start = 0; start < rows.size(); ++start) {
        if (placed[size_t(start)])
            continue;
        FetchedContact held = std::move(m_contacts[start]);
        qsizetype at = start;
        for (; rows[at] != start; at = rows[at]) {
            placed[size_t(at)] = true;
            m_contacts[at] = std::move(m_contacts[rows[at]]);
        }
        placed[size_t(at)] = true;
        m_contacts[at] = std::move(held);
    }
    endResetModel();
}

void ContactsListModel::changed()
{
    ++m_version;
    m_prepared.reset();
}

int ContactsListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_contacts.size());
}

QVariant ContactsListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const FetchedContact &contact = m_contacts[index.row()];
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
