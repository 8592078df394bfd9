#pragma once

#include <QMap>
#include <QTcpServer>

// An HTTP server on 127.0.0.1 that remembers the requests and answers each
// with the prepared status and body, then closes the connection; or sends a
// body that never ends.
class LoopbackHttpServer : public QTcpServer
{
public:
    struct Request
    {
        QByteArray target;
        QMap<QByteArray, QByteArray> headers; // names in lower case
        QByteArray header(const QByteArray &name) const { return headers.value(name.toLower()); }
    };

    LoopbackHttpServer();

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
    void serve(QTcpSocket *socket);

    QByteArray m_body;
    int m_status = 200;
    int m_endlessChunk = 0;
    int m_endlessInterval = 0;
};
