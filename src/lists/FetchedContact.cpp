#include "FetchedContact.h"

namespace {
qint64 counter = 0;
} // namespace

FetchedContact FetchedContact::make(const QString &firstName, const QString &lastName, const QString &telephone)
{
    return { counter++, firstName, lastName, telephone };
}
