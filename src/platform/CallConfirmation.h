#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

// The question put to the user before a call is placed in their name: the
// full dial string with "Call" and "Cancel". The window shows it while one
// is pending. A newer question replaces an older one, which counts as
// cancelled.
class CallConfirmation : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool pending READ isPending NOTIFY pendingChanged)
    Q_PROPERTY(QString dialString READ dialString NOTIFY pendingChanged)

public:
    using QObject::QObject;

    bool isPending() const { return m_pending; }
    QString dialString() const { return m_dialString; }

    // Asks to confirm a call to `dialString`. `placeCall` runs once the user
    // chooses Call, and never after Cancel or once `context` is gone.
    void ask(const QString &dialString, QObject *context, std::function<void()> placeCall);

    Q_INVOKABLE void call() { finish(true); }
    Q_INVOKABLE void cancel() { finish(false); }

signals:
    void pendingChanged();

private:
    void finish(bool placed);

    bool m_pending = false;
    QString m_dialString;
    QPointer<QObject> m_context;
    std::function<void()> m_placeCall;
};
