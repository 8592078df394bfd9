#pragma once

#include <QString>
#include <QStringList>

// Captures what the process writes to standard output while it lives. When
// the running test fails meanwhile, the captured text, with the failure
// report, is written out once the capture ends.
class StdoutCapture
{
public:
    StdoutCapture();
    ~StdoutCapture();
    StdoutCapture(const StdoutCapture &) = delete;
    StdoutCapture &operator=(const StdoutCapture &) = delete;

    // Everything written so far, one entry a line.
    QStringList lines();

private:
    int m_savedFd = -1;
    int m_captureFd = -1;
    QString m_path;
};
