#pragma once

#include <QObject>
#include <QUrl>

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

signals:
    void linkReceived(const QUrl &link);
    void activationRequested();

private:
    static QString serverName();
    QLocalServer *m_server = nullptr;
};
