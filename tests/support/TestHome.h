#pragma once

#include <QStringList>

// Points the app's settings and data folders (XDG config and data homes) at
// a fresh temporary folder for the rest of the test program. Call before
// anything opens a store.
class TestHome
{
public:
    static QString use();
    static QString configDirectory();
    // Replaces the vCard address book's folder with one file of `people`,
    // each [first, last, number...]; unreadable: a file in the folder's place.
    static void writeBook(const QList<QStringList> &people, bool readable = true);
};
