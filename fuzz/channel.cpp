// What a later launch sends to the running app, arriving in pieces (the first
// byte picks their size) into a buffer as small as the socket's: every
// complete line is taken, at most one message is ever held, and a line past
// the bound cuts the sender off instead of stalling.
#include "FuzzCheck.h"
#include "SingleInstance.h"

#include <QBuffer>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const qsizetype piece = 1 + data[0] * 37;
    QByteArrayView rest(data + 1, qsizetype(size - 1));
    SingleInstance channel;
    qsizetype messages = 0;
    QObject::connect(&channel, &SingleInstance::linkReceived, [&messages](const QUrl &) { ++messages; });
    QObject::connect(&channel, &SingleInstance::activationRequested, [&messages] { ++messages; });
    QBuffer socket;
    socket.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    const qint64 capacity = SingleInstance::maxMessageBytes + 1;
    while (!rest.isEmpty()) {
        const qsizetype room = qsizetype(capacity - socket.bytesAvailable());
        FUZZ_CHECK(room > 0);
        const qsizetype take = std::min({ piece, room, rest.size() });
        socket.buffer().append(rest.first(take));
        rest = rest.sliced(take);
        if (!channel.readMessages(socket))
            break;
    }
    FUZZ_CHECK(messages <= QByteArrayView(data, qsizetype(size)).count('\n'));
    return 0;
}
