#include "ClipboardSharer.h"

#include <QClipboard>
#include <QGuiApplication>

void ClipboardSharer::share(const QString &text)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (!clipboard)
        return;
    clipboard->setText(text);
    emit notice(tr("Link copied – paste it to share Quieton"));
}
