#pragma once

#include "DialTarget.h"
#include "Telephony.h"

#include <optional>

class QProcess;

// Hands call requests to the desktop's registered tel: handler, which asks
// the user on its own; it sees no call events.
//
// Whether a handler is registered is asked of xdg-mime in the background
// from the first request on (run at start-up, the script competed with the
// window for the CPU). A handler once found is remembered; "none" is asked
// again at the next request, a failed look-up not remembered at all.
class DesktopTelephony : public Telephony
{
    Q_OBJECT
public:
    explicit DesktopTelephony(QObject *parent = nullptr);
    ~DesktopTelephony() override;

    QString backendName() const override { return QStringLiteral("desktop tel: handler"); }
    bool canOpen(const DialRequest &request) override;
    void open(const DialRequest &request) override;

private:
    enum class Handler { Unknown, Registered, None };

    void lookUp();
    void answered(Handler handler);
    void hand(const DialTarget &target);

    Handler m_handler = Handler::Unknown;
    QProcess *m_lookup = nullptr;
    std::optional<DialTarget> m_waiting;
};
