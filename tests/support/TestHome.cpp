#include "TestHome.h"
#include "VCardFolderAddressBook.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {
QDir home()
{
    static QTemporaryDir dir;
    return QDir(dir.path());
}
} // namespace

QString TestHome::use()
{
    home().mkpath(QStringLiteral("config"));
    home().mkpath(QStringLiteral("data"));
    qputenv("XDG_CONFIG_HOME", home().filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", home().filePath(QStringLiteral("data")).toUtf8());
    return home().path();
}

QString TestHome::configDirectory()
{
    return home().filePath(QStringLiteral("config/quieton"));
}

void TestHome::writeBook(const QList<QStringList> &people, bool readable)
{
    const QString folder = VCardFolderAddressBook::defaultFolder();
    QFile::remove(folder);
    QDir(folder).removeRecursively();
    if (!readable) {
        QFile(folder).open(QIODevice::WriteOnly);
        return;
    }
    QDir().mkpath(folder);
    QByteArray text;
    for (const QStringList &fields : people) {
        text += "BEGIN:VCARD\nVERSION:3.0\nN:" + fields.value(1).toUtf8() + ";" + fields.value(0).toUtf8() + "\n";
        for (const QString &phone : fields.mid(2))
            text += "TEL:" + phone.toUtf8() + "\n";
        text += "END:VCARD\n";
    }
    QFile file(QDir(folder).filePath(QStringLiteral("book.vcf")));
    file.open(QIODevice::WriteOnly);
    file.write(text);
}
