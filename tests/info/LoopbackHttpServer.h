#pragma once

#include <QMap>
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
        QMap<QByteArray, QByteArray> headers; // names in lower case
        QByteArray header(const QByteArray &name) const { return headers.value(name.toLower()); }
    };

    LoopbackHttpServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection())
                serve(socket);
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
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            if (!socket->peek(socket->bytesAvailable()).contains("\r\n\r\n"))
                return; // the head is not all in yet
            const QList<QByteArray> lines = socket->readAll().split('\n');
            Request request{ lines.value(0).split(' ').value(1), {} };
            for (const QByteArray &line : lines.mid(1)) {
                if (const qsizetype colon = line.indexOf(':'); colon > 0)
                    request.headers.insert(line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed());
            }
            requests.append(request);
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
        });
    }

    QByteArray m_body;
    int m_status = 200;
    int m_endlessChunk = 0;
    int m_endlessInterval = 0;
};
