#include "StdoutCapture.h"

#include <QFile>
#include <QTemporaryFile>
#include <QTest>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

StdoutCapture::StdoutCapture()
{
    QTemporaryFile file;
    file.setAutoRemove(false);
    file.open();
    m_path = file.fileName();
    file.close();
    std::fflush(stdout);
    m_savedFd = ::dup(STDOUT_FILENO);
    m_captureFd = ::open(QFile::encodeName(m_path).constData(), O_WRONLY | O_TRUNC);
    ::dup2(m_captureFd, STDOUT_FILENO);
}

StdoutCapture::~StdoutCapture()
{
    std::fflush(stdout);
    ::dup2(m_savedFd, STDOUT_FILENO);
    ::close(m_savedFd);
    ::close(m_captureFd);
    // The test's own report of a failure went into the capture too: it is
    // given back, with what the code printed before it, so no failure is lost.
    if (QTest::currentTestFailed()) {
        QFile file(m_path);
        if (file.open(QIODevice::ReadOnly)) {
            const QByteArray text = file.readAll();
            std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
            std::fflush(stdout);
        }
    }
    QFile::remove(m_path);
}

QStringList StdoutCapture::lines()
{
    std::fflush(stdout);
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList result = QString::fromUtf8(file.readAll()).split(u'\n');
    if (!result.isEmpty() && result.last().isEmpty())
        result.removeLast();
    return result;
}
