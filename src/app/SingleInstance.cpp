#include "SingleInstance.h"

#include "Platform.h"

#include <QCryptographicHash>
#include <QLocalServer>
#include <QLocalSocket>

#include <unistd.h>

SingleInstance::SingleInstance(QObject *parent) : QObject(parent) { }

QString SingleInstance::serverName()
{
    // One running app per user and settings folder: an app started on other
    // settings (another XDG config home) is a separate app.
    const QByteArray folder = QCryptographicHash::hash(Platform::configDirectory().toUtf8(), QCryptographicHash::Sha1);
    return QStringLiteral("quieton-%1-%2").arg(::getuid()).arg(QString::fromLatin1(folder.toHex().left(12)));
}

bool SingleInstance::forwardToRunning(const QUrl &link)
{
    QLocalSocket socket;
    socket.connectToServer(serverName());
    if (!socket.waitForConnected(200))
        return false;
    socket.write(link.toEncoded() + '\n');
    socket.waitForBytesWritten(1000);
    socket.disconnectFromServer();
    return true;
}

void SingleInstance::listen()
{
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(serverName());
    if (!m_server->listen(serverName()))
        return;
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, socket, [this, socket] {
                while (socket->canReadLine()) {
                    const QByteArray line = socket->readLine().trimmed();
                    if (line.isEmpty())
                        emit activationRequested();
                    else
                        emit linkReceived(QUrl::fromEncoded(line));
                }
            });
        }
    });
}
