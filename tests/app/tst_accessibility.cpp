// Every screen as a screen reader meets it, over a real vCard address book
// and a real history file in temporary folders.
#include "HistoryCallDataService.h"
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "ScreenReader.h"
#include "UserDefaultsService.h"
#include "VCardFolderAddressBook.h"

#include <QAccessible>
#include <QDir>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQuickTest>

// Reads the window's items through Qt Quick's accessibility interfaces.
// The shared screen reader, and how it walks a whole window.
class ScreenReaderWalk : public ScreenReader
{
    Q_OBJECT
public:
    // Every control in the window of `item` that a person can currently press
    // or type into, open popups included, each as { name, what }.
    Q_INVOKABLE QVariantList controls(QQuickItem *item) const
    {
        QAccessible::setActive(true); // as when a screen reader starts

        QVariantList found;
        if (item && item->window())
            collect(item->window()->contentItem(), found);
        return found;
    }

    // The accessible tree of the window of `item` as a screen reader walks
    // it, each node as { name, role, focusable, what, inList, shown }; a node
    // in a list is shown when it lies in the list's area.
    Q_INVOKABLE QVariantList nodes(QQuickItem *item) const
    {
        QVariantList found;
        if (item && item->window())
            walk(QAccessible::queryAccessibleInterface(item->window()), found);
        return found;
    }

private:
    // What a running screen reader hears: the name set, or for a button
    // its caption (Qt names buttons by their text once accessibility is on).
    static QString spokenName(QQuickItem *item)
    {
        QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(item);
        const QString name = iface ? iface->text(QAccessible::Name).trimmed() : QString();
        if (name.isEmpty() && item->inherits("QQuickAbstractButton"))
            return item->property("text").toString().trimmed();
        return name;
    }

    static QString what(const QQuickItem *item)
    {
        return item->objectName() + QLatin1Char(' ') + QLatin1String(item->metaObject()->className());
    }

    // The list (item view) `item` lies in, if any.
    static QQuickItem *listOf(QQuickItem *item)
    {
        for (QQuickItem *up = item ? item->parentItem() : nullptr; up; up = up->parentItem()) {
            if (up->inherits("QQuickItemView"))
                return up;
        }
        return nullptr;
    }

    static void walk(QAccessibleInterface *iface, QVariantList &found)
    {
        if (!iface || !iface->isValid() || iface->state().invisible)
            return;
        if (auto *item = qobject_cast<QQuickItem *>(iface->object())) {
            const QQuickItem *list = listOf(item);
            const QRectF shown = list ? list->mapRectToScene(list->boundingRect()) : QRectF();
            found.append(QVariantMap{
                { QStringLiteral("name"), spokenName(item) },
                { QStringLiteral("role"), int(iface->role()) },
                { QStringLiteral("focusable"), bool(iface->state().focusable) },
                { QStringLiteral("what"), what(item) },
                { QStringLiteral("inList"), list != nullptr },
                { QStringLiteral("shown"), !list || shown.intersects(item->mapRectToScene(item->boundingRect())) },
            });
        }
        for (int i = 0; i < iface->childCount(); ++i)
            walk(iface->child(i), found);
    }

    static bool takesInput(const QQuickItem *item)
    {
        if (item->inherits("QQuickAbstractButton") || item->inherits("QQuickTextInput")
            || item->inherits("QQuickTextEdit"))
            return true;
        if (item->inherits("QQuickMouseArea"))
            return item->acceptedMouseButtons() != Qt::NoButton;
        // Pointer handlers make the item they sit on take taps.
        for (const QObject *child : item->children()) {
            if (child->inherits("QQuickTapHandler") && child->property("enabled").toBool())
                return true;
        }
        return false;
    }

    static void collect(QQuickItem *item, QVariantList &found)
    {
        if (!item->isVisible() || !item->isEnabled())
            return;
        // What a screen reader is told to pass over is not there for it.
        // (read from its Accessible attached object, a child of the item,
        // without making one where there is none).
        for (const QObject *child : item->children()) {
            if (child->inherits("QQuickAccessibleAttached") && child->property("ignored").toBool())
                return;
        }
        if (takesInput(item)) {
            QString name = spokenName(item);
            // A mouse area speaks through the item it lies on.
            if (name.isEmpty() && item->inherits("QQuickMouseArea") && item->parentItem())
                name = spokenName(item->parentItem());
            found.append(QVariantMap{ { QStringLiteral("name"), name }, { QStringLiteral("what"), what(item) } });
        }
        for (QQuickItem *child : item->childItems())
            collect(child, found);
    }
};

class Setup : public QuickTestSetup
{
protected:
    void prepare() override
    {
        markOnboardingDone();
        testApp().defaults().setBool(QStringLiteral("saveToHistory"), true);

        QDir().mkpath(VCardFolderAddressBook::defaultFolder());
        QFile book(QDir(VCardFolderAddressBook::defaultFolder()).filePath(QStringLiteral("book.vcf")));
        book.open(QIODevice::WriteOnly);
        book.write("BEGIN:VCARD\nVERSION:3.0\nN:Smith;Anna\nTEL:0601\nEND:VCARD\n"
                   "BEGIN:VCARD\nVERSION:3.0\nN:;\nTEL:0602\nEND:VCARD\n");

        testApp().history().addHistory(QStringLiteral("Anna"), QStringLiteral("Smith"), QStringLiteral("0601"), true);
        testApp().history().addHistory(QString(), QString(), QStringLiteral("0602"), false);
    }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("screenReader"), new ScreenReaderWalk);
        context->setContextProperty(QStringLiteral("phone"), new PhoneDriver(testApp()));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(accessibility, Setup)
#include "tst_accessibility.moc"
