#pragma once

#include "TextSharer.h"

// Shares by copying the text to the clipboard and telling the user so.
class ClipboardSharer : public TextSharer
{
    Q_OBJECT
public:
    using TextSharer::TextSharer;
    void share(const QString &text) override;
};
