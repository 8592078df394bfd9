#include "StdoutCapture.h"

#include <QFile>
#include <QTemporaryFile>

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
