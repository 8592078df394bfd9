#include "VCardFolderAddressBook.h"

#include "VCardReader.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextStream>

#include <QtConcurrent/QtConcurrentMap>

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

QString cannotRead(const QString &path) { return QStringLiteral("Cannot read %1: %2").arg(path, systemError(errno)); }

bool hasVCardSuffix(const char *name)
{
    const size_t length = std::strlen(name);
    return length > 4 && strcasecmp(name + length - 4, ".vcf") == 0;
}

// A .vcf file: its folder (an index into the folder list) and its name.
struct FileEntry
{
    size_t folder;
    std::string name;
};

// The .vcf files below `folder`, depth first, each folder's entries by name.
// Entries whose names start with a dot (temporary files, tool state) are left
// out; a folder that cannot be listed is noted in `error` and skipped.
void collectFiles(const std::string &folder, std::vector<std::string> &folders, std::vector<FileEntry> &files,
                  QString &error)
{
    DIR *dir = ::opendir(folder.c_str());
    if (!dir) {
        if (error.isEmpty())
            error = cannotRead(QString::fromStdString(folder));
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
    const size_t index = folders.size();
    folders.push_back(folder);
    for (const auto &[name, isFolder] : entries) {
        if (isFolder)
            collectFiles(folder + '/' + name, folders, files, error);
        else
            files.push_back({ index, name });
    }
}

// Opens files relative to their folder, so that the folder's path is looked
// up once per folder and not once per file.
class FileOpener
{
public:
    explicit FileOpener(const std::vector<std::string> &folders) : m_folders(folders) { }
    ~FileOpener()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    FileOpener(const FileOpener &) = delete;
    FileOpener &operator=(const FileOpener &) = delete;

    int open(const FileEntry &file)
    {
        if (file.folder != m_folder) {
            if (m_fd >= 0)
                ::close(m_fd);
            m_folder = file.folder;
            m_fd = ::open(m_folders[m_folder].c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        }
        return m_fd < 0 ? -1 : ::openat(m_fd, file.name.c_str(), O_RDONLY | O_CLOEXEC);
    }
    std::string path(const FileEntry &file) const { return m_folders[file.folder] + '/' + file.name; }

private:
    const std::vector<std::string> &m_folders;
    size_t m_folder = size_t(-1);
    int m_fd = -1;
};

// Reads the whole file into `bytes`, whose capacity is reused from file to
// file. A regular file answers a read with less than was asked only at its end.
bool readFile(FileOpener &opener, const FileEntry &file, QByteArray &bytes, QString &error)
{
    const int fd = opener.open(file);
    if (fd < 0) {
        error = cannotRead(QString::fromStdString(opener.path(file)));
        return false;
    }
    if (bytes.capacity() < 65536)
        bytes.reserve(65536);
    bytes.resize(bytes.capacity());
    qsizetype filled = 0;
    for (;;) {
        const ssize_t got = ::read(fd, bytes.data() + filled, size_t(bytes.size() - filled));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            error = cannotRead(QString::fromStdString(opener.path(file)));
            ::close(fd);
            return false;
        }
        filled += got;
        if (got == 0 || filled < bytes.size())
            break;
        bytes.resize(bytes.size() * 2);
    }
    ::close(fd);
    bytes.resize(filled);
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
        return { false, cannotRead(m_folder) };
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
    std::vector<std::string> folders;
    std::vector<FileEntry> files;
    collectFiles(root, folders, files, error);

    QList<AddressBookContact> batch;
    const auto add = [&](AddressBookContact &&contact) {
        if (m_stopped)
            return;
        batch.append(std::move(contact));
        if (batch.size() >= batchSize)
            deliver(std::exchange(batch, {}));
    };
    // Reads files [first, first + count) for `collect`; returns the broken
    // cards and the first file error.
    const auto readFiles = [&](size_t first, size_t count, const auto &collect, QString &fileError) {
        FileOpener opener(folders);
        QByteArray bytes;
        int broken = 0;
        for (size_t f = first; f < std::min(files.size(), first + count) && !m_stopped; ++f) {
            QString why;
            if (readFile(opener, files[f], bytes, why))
                broken += VCardReader::read(bytes, collect, &m_stopped).brokenCards;
            else if (fileError.isEmpty())
                fileError = why;
        }
        return broken;
    };
    int broken = 0;
    constexpr size_t filesPerChunk = 256;
    if (files.size() <= filesPerChunk) {
        // A few files, perhaps large ones: read here, handing over as the
        // cards are read.
        broken = readFiles(0, files.size(), add, error);
    } else {
        // Many files: read in chunks on the thread pool, handed over chunk by
        // chunk in path order.
        struct Chunk
        {
            QList<AddressBookContact> contacts;
            int broken = 0;
            QString error;
        };
        QList<size_t> firsts;
        for (size_t f = 0; f < files.size(); f += filesPerChunk)
            firsts.append(f);
        const std::function<Chunk(size_t)> readChunk = [&](size_t first) {
            Chunk chunk;
            const auto collect = [&chunk](AddressBookContact &&contact) { chunk.contacts.append(std::move(contact)); };
            chunk.broken = readFiles(first, filesPerChunk, collect, chunk.error);
            return chunk;
        };
        QFuture<Chunk> chunks = QtConcurrent::mapped(firsts, readChunk);
        for (int c = 0; c < firsts.size(); ++c) {
            Chunk chunk = chunks.resultAt(c);
            broken += chunk.broken;
            if (error.isEmpty())
                error = chunk.error;
            for (AddressBookContact &contact : chunk.contacts)
                add(std::move(contact));
        }
        chunks.waitForFinished();
    }
    if (!batch.isEmpty() && !m_stopped)
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
