#pragma once

#include <QTemporaryDir>

// A temporary folder that holds the app's settings and data folders (XDG
// config and data homes) while it lives. Make it before the application
// object; processes started from this one inherit the same home.
class TemporaryHome
{
public:
    TemporaryHome();

    QString path() const { return m_folder.path(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};
