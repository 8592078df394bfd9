#pragma once

#include <QString>

// Points the app's settings and data folders (XDG config and data homes) at
// a fresh temporary folder for the rest of the test program. Call before
// anything opens a store.
class TestHome
{
public:
    static QString use();
    static QString configDirectory();
};
