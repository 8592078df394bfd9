#pragma once

#include <QMetaType>
#include <QString>

// One address-book entry as the contacts list shows it: the names and the
// first phone number. Every record made gets the next number of one counter
// that lives as long as the process, so ids are never reused, not even by a
// reload. Records are made on the main thread only.
struct FetchedContact
{
    Q_GADGET
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(QString firstName MEMBER firstName)
    Q_PROPERTY(QString lastName MEMBER lastName)
    Q_PROPERTY(QString telephone MEMBER telephone)

public:
    qint64 id = 0;
    QString firstName;
    QString lastName;
    QString telephone;

    // A new record with the counter's next id.
    static FetchedContact make(const QString &firstName, const QString &lastName, const QString &telephone);

    bool operator==(const FetchedContact &other) const = default;
};

Q_DECLARE_METATYPE(FetchedContact)
