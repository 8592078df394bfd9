#include "VCardFolderAddressBook.h"

#include "VCardReader.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextStream>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

QString systemError(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

bool hasVCardSuffix(const char *name)
{
    const size_t length = std::strlen(name);
    return length > 4 && strcasecmp(name + length - 4, ".vcf") == 0;
}

// The .vcf files below `folder`, depth first, each folder's entries by name.
// Entries whose names start with a dot (temporary files, tool state) are left
// out; a folder that cannot be listed is noted in `error` and skipped.
void collectFiles(const std::string &folder, std::vector<std::string> &files, QString &error)
{
    DIR *dir = ::opendir(folder.c_str());
    if (!dir) {
        if (error.isEmpty())
            error = QStringLiteral("Cannot read %1: %2").arg(QString::fromStdString(folder), systemError(errno));
        return;
    }
    std::vector<std::pair<std::string, bool>> entries; // name, is a folder
    while (dirent *entry = ::readdir(dir)) {
        if (entry->d_name[0] == '.')
            continue;
        unsigned char type = entry->d_type;
        if (type == DT_UNKNOWN || type == DT_LNK) {
            // Links are followed to files only, so that a link cannot make a loop.
            struct stat info;
            const std::string path = folder + '/' + entry->d_name;
            if (::stat(path.c_str(), &info) != 0)
                continue;
            if (S_ISREG(info.st_mode))
                type = DT_REG;
            else if (S_ISDIR(info.st_mode) && entry->d_type == DT_UNKNOWN)
                type = DT_DIR;
            else
                continue;
        }
        if (type == DT_DIR)
            entries.emplace_back(entry->d_name, true);
        else if (type == DT_REG && hasVCardSuffix(entry->d_name))
            entries.emplace_back(entry->d_name, false);
    }
    ::closedir(dir);
    std::sort(entries.begin(), entries.end());
    for (const auto &[name, isFolder] : entries) {
        const std::string path = folder + '/' + name;
        if (isFolder)
            collectFiles(path, files, error);
        else
            files.push_back(path);
    }
}

bool readFile(const std::string &path, QByteArray &bytes, QString &error)
{
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        error = QStringLiteral("Cannot read %1: %2").arg(QString::fromStdString(path), systemError(errno));
        return false;
    }
    struct stat info;
    qsizetype size = (::fstat(fd, &info) == 0 && info.st_size > 0) ? qsizetype(info.st_size) : 0;
    bytes.resize(size);
    qsizetype filled = 0;
    for (;;) {
        if (filled == bytes.size())
            bytes.resize(qMax<qsizetype>(4096, bytes.size() * 2));
        const ssize_t got = ::read(fd, bytes.data() + filled, size_t(bytes.size() - filled));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            error = QStringLiteral("Cannot read %1: %2").arg(QString::fromStdString(path), systemError(errno));
            ::close(fd);
            return false;
        }
        if (got == 0)
            break;
        filled += got;
    }
    ::close(fd);
    bytes.truncate(filled);
    return true;
}

} // namespace

QString VCardFolderAddressBook::defaultFolder()
{
    // GenericDataLocation honours XDG_DATA_HOME.
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .filePath(QStringLiteral("contacts"));
}

VCardFolderAddressBook::VCardFolderAddressBook(const QString &folder) : m_folder(QDir::cleanPath(folder)) { }

AddressBook::AccessAnswer VCardFolderAddressBook::requestAccess()
{
    const QByteArray path = QFile::encodeName(m_folder);
    struct stat info;
    if (::stat(path.constData(), &info) != 0) {
        if (errno == ENOENT || errno == ENOTDIR)
            return { true, QString() }; // no book yet: nothing to read, nothing refused
        return { false, QStringLiteral("Cannot open %1: %2").arg(m_folder, systemError(errno)) };
    }
    if (!S_ISDIR(info.st_mode))
        return { false, QStringLiteral("%1 is not a folder").arg(m_folder) };
    DIR *dir = ::opendir(path.constData());
    if (!dir)
        return { false, QStringLiteral("Cannot read %1: %2").arg(m_folder, systemError(errno)) };
    ::closedir(dir);
    return { true, QString() };
}

QString VCardFolderAddressBook::enumerateContacts(
    const std::function<void(QList<AddressBookContact> &&batch)> &deliver)
{
    const std::string root = QFile::encodeName(m_folder).toStdString();
    struct stat info;
    if (::stat(root.c_str(), &info) != 0 && (errno == ENOENT || errno == ENOTDIR))
        return QString();

    QString error;
    std::vector<std::string> files;
    collectFiles(root, files, error);

    QList<AddressBookContact> batch;
    batch.reserve(batchSize);
    int broken = 0;
    QByteArray bytes;
    const auto collect = [&](AddressBookContact &&contact) {
        batch.append(std::move(contact));
        if (batch.size() >= batchSize) {
            deliver(std::move(batch));
            batch = QList<AddressBookContact>();
            batch.reserve(batchSize);
        }
    };
    for (const std::string &path : files) {
        QString fileError;
        if (!readFile(path, bytes, fileError)) {
            if (error.isEmpty())
                error = fileError;
            continue;
        }
        broken += VCardReader::read(bytes, collect).brokenCards;
    }
    if (!batch.isEmpty())
        deliver(std::move(batch));
    if (broken > 0)
        QTextStream(stdout) << "Address book: skipped " << broken << " unreadable cards in " << m_folder << Qt::endl;
    return error;
}

QUrl VCardFolderAddressBook::accessSettingsUrl() const
{
    const QFileInfo book(m_folder);
    return QUrl::fromLocalFile(book.isDir() && book.isReadable() ? m_folder : book.absolutePath());
}
