#include "LoopbackHttpServer.h"

#include <QTcpSocket>
#include <QTimer>

#include <memory>

QByteArray LoopbackHttpServer::Request::header(const QByteArray &name) const
{
    for (const auto &[key, value] : headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

LoopbackHttpServer::LoopbackHttpServer(QObject *parent) : QTcpServer(parent)
{
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = nextPendingConnection())
            serve(socket);
    });
}

QString LoopbackHttpServer::origin() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(serverPort());
}

void LoopbackHttpServer::answer(const QByteArray &body, int status)
{
    m_body = body;
    m_status = status;
}

void LoopbackHttpServer::serve(QTcpSocket *socket)
{
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
        ++closedConnections;
        socket->deleteLater();
    });
    auto received = std::make_shared<QByteArray>();
    connect(socket, &QTcpSocket::readyRead, this, [this, socket, received] {
        received->append(socket->readAll());
        const qsizetype end = received->indexOf("\r\n\r\n");
        if (end < 0)
            return;
        const QList<QByteArray> lines = received->left(end).split('\n');
        Request request;
        const QList<QByteArray> first = lines.value(0).trimmed().split(' ');
        request.method = first.value(0);
        request.target = first.value(1);
        for (qsizetype i = 1; i < lines.size(); ++i) {
            const qsizetype colon = lines.at(i).indexOf(':');
            if (colon > 0)
                request.headers.append({ lines.at(i).left(colon).trimmed(), lines.at(i).mid(colon + 1).trimmed() });
        }
        requests.append(request);
        received->clear();
        if (m_silent)
            return;

        if (m_endlessChunk > 0) {
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nConnection: close\r\n\r\n{");
            QTimer *timer = new QTimer(socket);
            connect(timer, &QTimer::timeout, socket, [socket, chunk = QByteArray(m_endlessChunk, ' ')] {
                if (socket->bytesToWrite() < 4 * chunk.size())
                    socket->write(chunk);
            });
            timer->start(m_endlessInterval);
            return;
        }
        QByteArray response = "HTTP/1.1 " + QByteArray::number(m_status) + " Whatever\r\n"
                "Content-Type: application/json\r\n"
                "Content-Length: " + QByteArray::number(m_body.size()) + "\r\n"
                "Connection: close\r\n\r\n" + m_body;
        socket->write(response);
        socket->disconnectFromHost();
    });
}
