// The about and feedback screens in real QML views, on a recording URL opener and sharer.
#include "QuickTestSetup.h"
#include "RecordingSharer.h"
#include "RecordingUrlOpener.h"

#include <QQmlContext>
#include <QtQuickTest>

// What the QML tests see of the opener and the sharer.
class Desktop : public QObject
{
    Q_OBJECT
public:
    explicit Desktop(TestApp &app) : m_app(app) { }

    Q_INVOKABLE QStringList opened() const { return m_app.urlOpener->addresses(); }
    Q_INVOKABLE QStringList shared() const { return m_app.sharer->shared; }
    Q_INVOKABLE void clear() { m_app.urlOpener->opened.clear(); m_app.sharer->shared.clear(); }
    Q_INVOKABLE QString site() const { return QStringLiteral("https://" QUIETON_TEST_WEB_HOST); }

private:
    TestApp &m_app;
};

class Setup : public QuickTestSetup
{
protected:
    void publish(QQmlContext *context) override { context->setContextProperty(QStringLiteral("desktop"), new Desktop(testApp())); }
};

QUICK_TEST_MAIN_WITH_SETUP(infoscreens, Setup)
#include "tst_infoscreens.moc"
