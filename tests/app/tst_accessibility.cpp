// Every screen as a screen reader meets it, over a real vCard book and history file.
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

// The shared screen reader, walking a whole window through Qt Quick's accessibility interfaces.
class ScreenReaderWalk : public ScreenReader
{
    Q_OBJECT
public:
    // Every control a person can press or type into now, open popups included, as { name, what }.
    Q_INVOKABLE QVariantList controls(QQuickItem *item) const
    {
        QAccessible::setActive(true); // as when a screen reader starts

        QVariantList found;
        if (item && item->window())
            collect(item->window()->contentItem(), found);
        return found;
    }

    // The accessible tree as { name, role, focusable, what, inList, shown }; shown: within its list's area.
    Q_INVOKABLE QVariantList nodes(QQuickItem *item) const
    {
        QVariantList found;
        if (item && item->window())
            walk(QAccessible::queryAccessibleInterface(item->window()), found);
        return found;
    }

private:
    // The name set, or a button's caption (Qt names buttons by their text once accessibility is on).
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

    static QQuickItem *listOf(QQuickItem *item)
    {
        for (QQuickItem *up = item ? item->parentItem() : nullptr; up; up = up->parentItem())
            if (up->inherits("QQuickItemView"))
                return up;
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
        for (const QObject *child : item->children())
            if (child->inherits("QQuickTapHandler") && child->property("enabled").toBool())
                return true;
        return false;
    }

    static void collect(QQuickItem *item, QVariantList &found)
    {
        if (!item->isVisible() || !item->isEnabled())
            return;
        // Skips what is marked ignored, read without creating an Accessible attached object.
        for (const QObject *child : item->children())
            if (child->inherits("QQuickAccessibleAttached") && child->property("ignored").toBool())
                return;
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
