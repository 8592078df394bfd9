#pragma once

#include <QObject>
#include <QStringList>

class QQuickItem;

// What a screen reader meets and does, through Qt Quick's accessibility
// interfaces (QML tests have it as `screenReader`): an item's spoken name,
// the buttons it can press in a window, the rows of a list, and its own
// "Press" or "Toggle", which is not a tap.
class ScreenReader : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    Q_INVOKABLE QString name(QQuickItem *item) const;
    // The names of the buttons shown in `item`'s window.
    Q_INVOKABLE QStringList buttons(QQuickItem *item) const;
    // The names of the rows `list` exposes.
    Q_INVOKABLE QStringList rows(QQuickItem *list) const;
    // Runs `action` on `item`; false when the item offers no such action.
    Q_INVOKABLE bool act(QQuickItem *item, const QString &action = QStringLiteral("Press")) const;
};
