#pragma once

#include <QMetaType>
#include <QString>

// One recorded call as the history store keeps it. A null string means the
// store holds no value for that field; `objectId` is the record's identity in
// the store (0 for a record that has never been saved).
struct HistoryData
{
    Q_GADGET
    Q_PROPERTY(qint64 objectId MEMBER objectId)
    Q_PROPERTY(QString firstName MEMBER firstName)
    Q_PROPERTY(QString lastName MEMBER lastName)
    Q_PROPERTY(QString telephone MEMBER telephone)
    Q_PROPERTY(QString time MEMBER time)
    Q_PROPERTY(bool callHidden MEMBER callHidden)

public:
    qint64 objectId = 0;
    QString firstName;
    QString lastName;
    QString telephone;
    QString time; // local time, "yyyy-MM-dd HH:mm:ss"
    bool callHidden = false;

    // Field by field, telling a null string from an empty one.
    friend bool operator==(const HistoryData &a, const HistoryData &b)
    {
        const auto same = [](const QString &x, const QString &y) { return x.isNull() == y.isNull() && x == y; };
        return a.objectId == b.objectId && same(a.firstName, b.firstName) && same(a.lastName, b.lastName)
            && same(a.telephone, b.telephone) && same(a.time, b.time) && a.callHidden == b.callHidden;
    }
};
Q_DECLARE_TYPEINFO(HistoryData, Q_RELOCATABLE_TYPE);
Q_DECLARE_METATYPE(HistoryData)
