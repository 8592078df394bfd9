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
    Desktop(RecordingUrlOpener *opener, RecordingSharer *sharer) : m_opener(opener), m_sharer(sharer) { }

    Q_INVOKABLE QStringList opened() const { return m_opener->addresses(); }
    Q_INVOKABLE QStringList shared() const { return m_sharer->shared; }
    Q_INVOKABLE void clear() { m_opener->opened.clear(); m_sharer->shared.clear(); }
    Q_INVOKABLE QString site() const { return QStringLiteral("https://" QUIETON_TEST_WEB_HOST); }

private:
    RecordingUrlOpener *m_opener;
    RecordingSharer *m_sharer;
};

class Setup : public QuickTestSetup
{
    Desktop *m_desktop = nullptr;

protected:
    void prepare() override { m_desktop = new Desktop(testApp().urlOpener, testApp().sharer); }
    void publish(QQmlContext *context) override { context->setContextProperty(QStringLiteral("desktop"), m_desktop); }
};

QUICK_TEST_MAIN_WITH_SETUP(infoscreens, Setup)
#include "tst_infoscreens.moc"
