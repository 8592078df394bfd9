#pragma once

#include "TestApp.h"

#include <QObject>

#include <memory>

class QQmlContext;
class QQmlEngine;

// The setup object of a Qt Quick Test program: the app's folders in a fresh
// temporary home, the app made on recording parts (TestApp), its QML modules
// importable, and for the QML tests the names `testApp`, `service`,
// `defaults` and `screenReader`; then whatever the program adds in prepare() and publish().
class QuickTestSetup : public QObject
{
    Q_OBJECT
public slots:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine *engine);
    void cleanupTestCase();

protected:
    // Runs once the app exists, before any QML is loaded.
    virtual void prepare() { }
    // Runs once the QML engine exists; `context` is its root context.
    virtual void publish(QQmlContext *context) { Q_UNUSED(context) }

    TestApp &testApp() { return *m_testApp; }
    // Stores that the first-run onboarding is done, so the app opens on its
    // main screen.
    void markOnboardingDone();

private:
    std::unique_ptr<TestApp> m_testApp;
};
