#include "CombinedAddressBook.h"

CombinedAddressBook::CombinedAddressBook(std::vector<std::unique_ptr<AddressBook>> books)
    : m_books(std::move(books)), m_granted(m_books.size(), false)
{
}

AddressBook::AccessAnswer CombinedAddressBook::requestAccess()
{
    AccessAnswer answer;
    QStringList errors;
    for (size_t i = 0; i < m_books.size(); ++i) {
        const AccessAnswer part = m_books[i]->requestAccess();
        m_granted[i] = part.granted;
        answer.granted = answer.granted || part.granted;
        if (!part.error.isEmpty())
            errors.append(part.error);
    }
    // A book that is there but refuses (a registry that does not answer, a
    // folder that cannot be listed) is for the user to mend: no access.
    if (!errors.isEmpty())
        answer = { false, errors.join(QStringLiteral("; ")) };
    return answer;
}

QString CombinedAddressBook::enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver)
{
    QStringList errors;
    for (size_t i = 0; i < m_books.size(); ++i) {
        if (!m_granted[i])
            continue;
        if (const QString error = m_books[i]->enumerateContacts(deliver); !error.isEmpty())
            errors.append(error);
    }
    return errors.join(QStringLiteral("; "));
}

void CombinedAddressBook::stop()
{
    for (const auto &book : m_books)
        book->stop();
}

QUrl CombinedAddressBook::accessSettingsUrl() const
{
    for (const auto &book : m_books) {
        if (const QUrl url = book->accessSettingsUrl(); !url.isEmpty())
            return url;
    }
    return {};
}
