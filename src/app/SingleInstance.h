#pragma once

#include "WidgetLink.h"

#include <QObject>
#include <QUrl>

class QIODevice;
class QLocalServer;

// Keeps one running app per user and settings folder. A second launch hands its link (or a plain
// "come forward") to the running one and exits.
class SingleInstance : public QObject
{
    Q_OBJECT
public:
    explicit SingleInstance(QObject *parent = nullptr);

    // Sends `link` to an app already running; true when one took it.
    bool forwardToRunning(const QUrl &link);
    // Starts listening for later launches.
    void listen();

    // The longest message a launch may send: a link at its bound, and its line end.
    static constexpr qint64 maxMessageBytes = WidgetLink::maxLinkLength + 1;
    // Takes the complete lines `device` holds: an empty one asks the app to
    // come forward, any other is a link. False when what is left is a line
    // past the bound: the sender is then cut off.
    bool readMessages(QIODevice &device);

signals:
    void linkReceived(const QUrl &link);
    void activationRequested();

private:
    static QString serverName();
    QLocalServer *m_server = nullptr;
};
