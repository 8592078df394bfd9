#pragma once

#include "DialTarget.h"
#include "Telephony.h"

#include <optional>

class QProcess;

// Hands call requests to the desktop's registered tel: handler, which asks
// the user on its own; it sees no call events.
//
// Whether a handler is registered is asked of xdg-mime in the background,
// never on the UI thread, and only from the first request on: the shell
// script, run at start-up, competed with the window for the CPU. A handler
// once found is remembered; an answer of "none" is asked again at the next
// request, and a look-up that fails or takes too long is not remembered at
// all. While no answer is known, a request waits for the look-up.
class DesktopTelephony : public Telephony
{
    Q_OBJECT
public:
    explicit DesktopTelephony(QObject *parent = nullptr);
    ~DesktopTelephony() override;

    QString backendName() const override { return QStringLiteral("desktop tel: handler"); }
    // False for what is not a call, and once xdg-mime said that no handler is registered.
    bool canOpen(const DialRequest &request) override;
    void open(const DialRequest &request) override;

signals:
    // A look-up ended; `registered` tells whether a handler was found.
    void handlerLookedUp(bool registered);

private:
    enum class Handler { Unknown, Registered, None };

    void lookUp();
    void answered(Handler handler);
    void hand(const DialTarget &target);

    Handler m_handler = Handler::Unknown;
    QProcess *m_lookup = nullptr;
    std::optional<DialTarget> m_waiting;
};
