#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

// An HTTP server on 127.0.0.1 that records requests and answers the prepared body, or one that never ends.
class LoopbackHttpServer : public QTcpServer
{
public:
    struct Request
    {
        QByteArray target;
        QByteArray head; // request line and headers, as sent
    };

    LoopbackHttpServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection()) {
                connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { serve(socket); });
            }
        });
    }

    QString origin() const { return QStringLiteral("http://127.0.0.1:%1").arg(serverPort()); }
    void answer(const QByteArray &body, int status = 200)
    {
        m_body = body;
        m_status = status;
    }
    // Blanks, `chunk` bytes every `intervalMs` (as fast as they are taken when 0).
    void answerEndlessly(int chunk, int intervalMs)
    {
        m_endlessChunk = chunk;
        m_endlessInterval = intervalMs;
    }

    QList<Request> requests;

private:
    void serve(QTcpSocket *socket)
    {
        if (!socket->peek(socket->bytesAvailable()).contains("\r\n\r\n"))
            return; // the head is not all in yet
        const QByteArray head = socket->readAll();
        requests.append({ head.split(' ').value(1), head });
        if (m_endlessChunk > 0) {
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nConnection: close\r\n\r\n{");
            auto *timer = new QTimer(socket);
            connect(timer, &QTimer::timeout, socket, [socket, chunk = QByteArray(m_endlessChunk, ' ')] {
                if (socket->bytesToWrite() < 4 * chunk.size())
                    socket->write(chunk);
            });
            timer->start(m_endlessInterval);
            return;
        }
        socket->write("HTTP/1.1 " + QByteArray::number(m_status) + " Whatever\r\nContent-Type: application/json\r\nContent-Length: "
                      + QByteArray::number(m_body.size()) + "\r\nConnection: close\r\n\r\n" + m_body);
        socket->disconnectFromHost();
    }

    QByteArray m_body;
    int m_status = 200;
    int m_endlessChunk = 0;
    int m_endlessInterval = 0;
};
