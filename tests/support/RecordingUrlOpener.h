#pragma once

#include "UrlOpener.h"

#include <QList>
#include <QStringList>

// A URL opener that records what it was asked to open.
class RecordingUrlOpener : public UrlOpener
{
public:
    QList<QUrl> opened;

    bool canOpen(const QUrl &url) override { return url.isValid() && !url.scheme().isEmpty(); }
    bool open(const QUrl &url) override
    {
        if (!canOpen(url))
            return false;
        opened.append(url);
        return true;
    }
    void openSystemSettings() override { }

    // The addresses opened so far, oldest first.
    QStringList addresses() const
    {
        QStringList out;
        for (const QUrl &url : opened)
            out.append(url.toString());
        return out;
    }
};
