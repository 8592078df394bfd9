#pragma once

#include <QByteArray>
#include <QList>
#include <QTcpServer>

// A one-answer HTTP server on 127.0.0.1: every request gets the prepared
// status and body, then the connection closes (or, silent, gets nothing at
// all). Remembers the requests.
class LoopbackHttpServer : public QTcpServer
{
    Q_OBJECT
public:
    struct Request
    {
        QByteArray method;
        QByteArray target;
        QList<std::pair<QByteArray, QByteArray>> headers;
        QByteArray header(const QByteArray &name) const;
    };

    explicit LoopbackHttpServer(QObject *parent = nullptr);

    // The origin to ask: "http://127.0.0.1:<port>".
    QString origin() const;
    void answer(const QByteArray &body, int status = 200);
    // Takes requests in and never answers them.
    void keepSilent() { m_silent = true; }
    // Answers with a body that never ends: blanks, `chunk` bytes every
    // `intervalMs` (as fast as they are taken when 0).
    void answerEndlessly(int chunk, int intervalMs)
    {
        m_endlessChunk = chunk;
        m_endlessInterval = intervalMs;
    }

    QList<Request> requests;
    // Connections closed, by either side.
    int closedConnections = 0;

private:
    void serve(QTcpSocket *socket);

    QByteArray m_body;
    int m_status = 200;
    bool m_silent = false;
    int m_endlessChunk = 0;
    int m_endlessInterval = 0;
};
