#pragma once

#include "TextSharer.h"

#include <QStringList>

// A share operation that only remembers the texts it was given.
class RecordingSharer : public TextSharer
{
public:
    QStringList shared;
    void share(const QString &text) override { shared.append(text); }
};
