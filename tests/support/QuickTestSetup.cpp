#include "QuickTestSetup.h"
#include "ScreenReader.h"

#include "TestHome.h"

#include <QQmlContext>
#include <QQmlEngine>

void QuickTestSetup::applicationAvailable()
{
    TestHome::use();
    m_testApp = std::make_unique<TestApp>();
    prepare();
}

void QuickTestSetup::qmlEngineAvailable(QQmlEngine *engine)
{
    engine->addImportPath(QStringLiteral("qrc:/"));
    QQmlContext *context = engine->rootContext();
    context->setContextProperty(QStringLiteral("testApp"), &m_testApp->app());
    context->setContextProperty(QStringLiteral("service"), &m_testApp->service());
    context->setContextProperty(QStringLiteral("defaults"), &m_testApp->defaults());
    context->setContextProperty(QStringLiteral("screenReader"), new ScreenReader(engine));
    publish(context);
}

void QuickTestSetup::cleanupTestCase()
{
    m_testApp.reset();
}

void QuickTestSetup::markOnboardingDone()
{
    m_testApp->defaults().setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
}
