// Every screen as a screen reader meets it, over a real vCard address book
// and a real history file in temporary folders.
#include "HistoryCallDataService.h"
#include "QuickTestSetup.h"
#include "UserDefaultsService.h"
#include "VCardFolderAddressBook.h"

#include <QAccessible>
#include <QDir>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQuickTest>

// Reads the window's items through Qt Quick's accessibility interfaces.
class ScreenReader : public QObject
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

private:
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
        if (takesInput(item)) {
            const auto spokenName = [](QQuickItem *spoken) {
                QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(spoken);
                return iface ? iface->text(QAccessible::Name) : QString();
            };
            QString name = spokenName(item);
            // A mouse area speaks through the item it lies on.
            if (name.trimmed().isEmpty() && item->inherits("QQuickMouseArea") && item->parentItem())
                name = spokenName(item->parentItem());
            // A button's caption becomes its name when asked for; a text field's content is no name.
            if (name.trimmed().isEmpty() && item->inherits("QQuickAbstractButton"))
                name = item->property("text").toString();
            found.append(QVariantMap{ { QStringLiteral("name"), name.trimmed() }, { QStringLiteral("what"), item->objectName() + QLatin1Char(' ') + QLatin1String(item->metaObject()->className()) } });
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
        context->setContextProperty(QStringLiteral("screenReader"), new ScreenReader);
    }
};

QUICK_TEST_MAIN_WITH_SETUP(accessibility, Setup)
#include "tst_accessibility.moc"
