// Every screen as a screen reader meets it: the real views with assistive
// technology switched on, over a real vCard address book and a real history
// file in temporary folders.
#include "HistoryCallDataService.h"
#include "Platform.h"
#include "QuickTestSetup.h"
#include "RecordingPlatform.h"
#include "UserDefaultsService.h"
#include "VCardFolderAddressBook.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

// Reads the window's items the way assistive technology does: through the
// accessibility interfaces Qt Quick hands out for them.
class ScreenReader : public QObject
{
    Q_OBJECT
public:
    // Every control in the window of `item` that a person can currently
    // press or type into (shown and enabled), each as
    // { name, role, what }; open popups and dialogs are included.
    Q_INVOKABLE QVariantList controls(QQuickItem *item) const
    {
        // As when a screen reader starts: every live control is told, and
        // publishes its name and role.
        QAccessible::setActive(true);
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

    // What the item is, for the failure message: its objectName, else its
    // type, with the nearest named ancestor.
    static QString describe(const QQuickItem *item)
    {
        QString what = item->objectName().isEmpty() ? QString::fromLatin1(item->metaObject()->className())
                                                    : item->objectName();
        for (const QQuickItem *up = item->parentItem(); up; up = up->parentItem()) {
            if (!up->objectName().isEmpty())
                return what + QStringLiteral(" in ") + up->objectName();
        }
        return what;
    }

    static void collect(QQuickItem *item, QVariantList &found)
    {
        if (!item->isVisible() || !item->isEnabled())
            return;
        if (takesInput(item)) {
            QString name;
            int role = -1;
            // A mouse area speaks through the item it lies on.
            QQuickItem *spoken = item->inherits("QQuickMouseArea") && item->parentItem() ? item->parentItem() : item;
            if (QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(item)) {
                name = iface->text(QAccessible::Name);
                role = iface->role();
            }
            if (name.trimmed().isEmpty() && spoken != item) {
                if (QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(spoken))
                    name = iface->text(QAccessible::Name);
            }
            // A button's caption becomes its name once a screen reader
            // asks for it; a text field's content is no name.
            if (name.trimmed().isEmpty() && item->inherits("QQuickAbstractButton"))
                name = item->property("text").toString();
            found.append(QVariantMap{ { QStringLiteral("name"), name.trimmed() },
                                      { QStringLiteral("role"), role },
                                      { QStringLiteral("what"), describe(item) } });
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
        RecordingPlatform::installTelephony();
        RecordingPlatform::installUrlOpener();
        markOnboardingDone();
        UserDefaultsService::shared()->setBool(QStringLiteral("saveToHistory"), true);

        const QString folder = VCardFolderAddressBook::defaultFolder();
        QDir().mkpath(folder);
        QFile book(QDir(folder).filePath(QStringLiteral("book.vcf")));
        book.open(QIODevice::WriteOnly);
        book.write("BEGIN:VCARD\nVERSION:3.0\nN:Smith;Anna\nTEL:0601\nEND:VCARD\n"
                   "BEGIN:VCARD\nVERSION:3.0\nN:;\nTEL:0602\nEND:VCARD\n");
        book.close();

        HistoryCallDataService history(Platform::dataDirectory() + QStringLiteral("/CallHistoryData.sqlite"));
        history.addHistory(QStringLiteral("Anna"), QStringLiteral("Smith"), QStringLiteral("0601"), true);
        history.addHistory(QString(), QString(), QStringLiteral("0602"), false);
    }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("screenReader"), new ScreenReader);
    }
};

QUICK_TEST_MAIN_WITH_SETUP(accessibility, Setup)
#include "tst_accessibility.moc"
