#include "SingleInstance.h"

#include "Platform.h"

#include <QCryptographicHash>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTextStream>

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

bool SingleInstance::readMessages(QIODevice &device)
{
    while (device.canReadLine()) {
        const QByteArray line = device.readLine(maxMessageBytes + 1);
        if (!line.endsWith('\n'))
            return false;
        const QByteArray message = line.trimmed();
        if (message.isEmpty())
            emit activationRequested();
        else
            emit linkReceived(QUrl::fromEncoded(message));
    }
    return device.bytesAvailable() <= maxMessageBytes;
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
            // Nothing past one message is buffered.
            socket->setReadBufferSize(maxMessageBytes + 1);
            connect(socket, &QLocalSocket::readyRead, socket, [this, socket] {
                if (!readMessages(*socket)) {
                    QTextStream(stdout) << "## Link refused: longer than " << maxMessageBytes - 1 << " characters"
                                        << Qt::endl;
                    socket->abort();
                }
            });
        }
    });
}
