#pragma once

#include <QMetaType>
#include <QString>

// One recorded call as the history store keeps it. A null string means the
// store holds no value for that field; `objectId` is the record's identity in
// the store (0 for a record that has never been saved).
//
// A long history holds one time text per call, all different: a text in the
// app's own form, "yyyy-MM-dd HH:mm:ss", is kept as its 14 digits in one
// number instead of a string of its own, and made again when asked for.
struct HistoryData
{
    Q_GADGET
    Q_PROPERTY(qint64 objectId MEMBER objectId)
    Q_PROPERTY(QString firstName MEMBER firstName)
    Q_PROPERTY(QString lastName MEMBER lastName)
    Q_PROPERTY(QString telephone MEMBER telephone)
    Q_PROPERTY(QString time READ time WRITE setTime)
    Q_PROPERTY(bool callHidden MEMBER callHidden)

public:
    qint64 objectId = 0;
    QString firstName;
    QString lastName;
    QString telephone;
    bool callHidden = false;

    QString time() const
    {
        if (m_packedTime == notPacked)
            return m_otherTime;
        char16_t text[19];
        qint64 digits = m_packedTime;
        for (int i = 18; i >= 0; --i) {
            if (i == 4 || i == 7)
                text[i] = u'-';
            else if (i == 10)
                text[i] = u' ';
            else if (i == 13 || i == 16)
                text[i] = u':';
            else {
                text[i] = char16_t(u'0' + digits % 10);
                digits /= 10;
            }
        }
        return QString(reinterpret_cast<const QChar *>(text), 19);
    }
    void setTime(const QString &text)
    {
        m_packedTime = notPacked;
        m_otherTime.clear();
        qint64 digits = 0;
        bool ownForm = text.size() == 19;
        for (int i = 0; ownForm && i < 19; ++i) {
            const char16_t c = text[i].unicode();
            if (i == 4 || i == 7)
                ownForm = c == u'-';
            else if (i == 10)
                ownForm = c == u' ';
            else if (i == 13 || i == 16)
                ownForm = c == u':';
            else if ((ownForm = c >= u'0' && c <= u'9'))
                digits = digits * 10 + (c - u'0');
        }
        if (ownForm)
            m_packedTime = digits;
        else
            m_otherTime = text;
    }

    // Field by field, telling a null string from an empty one.
    friend bool operator==(const HistoryData &a, const HistoryData &b)
    {
        const auto same = [](const QString &x, const QString &y) { return x.isNull() == y.isNull() && x == y; };
        return a.objectId == b.objectId && same(a.firstName, b.firstName) && same(a.lastName, b.lastName)
            && same(a.telephone, b.telephone) && a.m_packedTime == b.m_packedTime && same(a.m_otherTime, b.m_otherTime)
            && a.callHidden == b.callHidden;
    }
    friend bool operator!=(const HistoryData &a, const HistoryData &b) { return !(a == b); }

private:
    static constexpr qint64 notPacked = -1;
    qint64 m_packedTime = notPacked;
    QString m_otherTime; // a time in any other form, or null
};
Q_DECLARE_TYPEINFO(HistoryData, Q_RELOCATABLE_TYPE);
Q_DECLARE_METATYPE(HistoryData)
