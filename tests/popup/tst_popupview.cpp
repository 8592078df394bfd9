// The popup presenter and the alerts in real QML views, also as a screen
// reader meets them.
#include "QuickTestSetup.h"

#include <QAccessible>
#include <QQmlContext>
#include <QQuickItem>
#include <QtQuickTest>

// What a screen reader hears and does, through Qt Quick's accessibility
// interfaces.
class ScreenReader : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    Q_INVOKABLE QString name(QQuickItem *item) const
    {
        QAccessibleInterface *iface = reader(item);
        return iface ? iface->text(QAccessible::Name) : QString();
    }
    // The reader's "press", which is not a tap: false when the item offers none.
    Q_INVOKABLE bool press(QQuickItem *item) const
    {
        QAccessibleInterface *iface = reader(item);
        QAccessibleActionInterface *actions = iface ? iface->actionInterface() : nullptr;
        if (!actions || !actions->actionNames().contains(QAccessibleActionInterface::pressAction()))
            return false;
        actions->doAction(QAccessibleActionInterface::pressAction());
        return true;
    }

private:
    static QAccessibleInterface *reader(QQuickItem *item)
    {
        QAccessible::setActive(true); // as when a screen reader starts
        return QAccessible::queryAccessibleInterface(item);
    }
};

class Setup : public QuickTestSetup
{
protected:
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("screenReader"), new ScreenReader(context));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(popupview, Setup)
#include "tst_popupview.moc"
