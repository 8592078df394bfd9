#include "ScreenReader.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

// Switched on before every use, as when a screen reader starts.
QAccessibleInterface *reader(QObject *object)
{
    QAccessible::setActive(true);
    return object ? QAccessible::queryAccessibleInterface(object) : nullptr;
}

void collectButtons(QAccessibleInterface *iface, QStringList &names)
{
    if (!iface || iface->state().invisible)
        return;
    if (iface->role() == QAccessible::Button)
        names.append(iface->text(QAccessible::Name));
    for (int i = 0; i < iface->childCount(); ++i)
        collectButtons(iface->child(i), names);
}

} // namespace

QString ScreenReader::name(QQuickItem *item) const
{
    QAccessibleInterface *iface = reader(item);
    return iface ? iface->text(QAccessible::Name) : QString();
}

QStringList ScreenReader::buttons(QQuickItem *item) const
{
    QStringList names;
    collectButtons(reader(item ? item->window() : nullptr), names);
    return names;
}

QStringList ScreenReader::rows(QQuickItem *list) const
{
    QStringList names;
    QAccessibleInterface *view = reader(list);
    for (int i = 0; view && i < view->childCount(); ++i) {
        if (view->child(i)->role() == QAccessible::ListItem)
            names.append(view->child(i)->text(QAccessible::Name));
    }
    return names;
}

bool ScreenReader::act(QQuickItem *item, const QString &action) const
{
    QAccessibleInterface *iface = reader(item);
    QAccessibleActionInterface *actions = iface ? iface->actionInterface() : nullptr;
    if (!actions || !actions->actionNames().contains(action))
        return false;
    actions->doAction(action);
    return true;
}
