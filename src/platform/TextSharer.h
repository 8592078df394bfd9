#pragma once

#include <QObject>
#include <QString>

// Offers a text to other apps or people.
class TextSharer : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    virtual void share(const QString &text) = 0;

signals:
    // A short message for the user about what sharing did.
    void notice(const QString &message);
};
