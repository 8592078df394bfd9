// The lists screens over a real vCard folder, a real SQLite history and a recording telephony.
#include "HistoryCallDataService.h"
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "RecordingUrlOpener.h"
#include "TestHome.h"

#include <QQmlContext>
#include <QQuickItem>
#include <QtQuickTest>

class Driver : public PhoneDriver
{
    Q_OBJECT
public:
    explicit Driver(TestApp &app) : PhoneDriver(app), m_opener(app.urlOpener) { }

    Q_INVOKABLE void writeBook(const QVariantList &people, bool readable = true)
    {
        QList<QStringList> rows;
        for (const QVariant &entry : people)
            rows.append(entry.toStringList());
        TestHome::writeBook(rows, readable);
    }
    Q_INVOKABLE QString openedUrl() const { return m_opener->addresses().value(m_opener->opened.size() - 1); }

    // A history record as the app stores it; names left out are stored absent.
    Q_INVOKABLE void addRecord(const QString &telephone, bool hidden, const QVariant &firstName = QVariant(),
                               const QVariant &lastName = QVariant())
    {
        const auto text = [](const QVariant &value) {
            if (value.isNull())
                return QString();
            return value.toString().isNull() ? QStringLiteral("") : value.toString();
        };
        app().history().addHistory(text(firstName), text(lastName), telephone, hidden);
    }
    Q_INVOKABLE void clearHistory() { app().history().deleteAllHistory(); }

private:
    RecordingUrlOpener *m_opener;
};

class Setup : public QuickTestSetup
{
protected:
    void prepare() override { markOnboardingDone(); }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("driver"), new Driver(testApp()));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(listsview, Setup)
#include "tst_listsview.moc"
