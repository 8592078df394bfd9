#pragma once

#include <QObject>

class QQmlContext;
class QQmlEngine;

// The setup object of a Qt Quick Test program: the app's folders in a fresh
// temporary home, the app's QML module importable, then whatever the program
// adds in prepare() (platform parts to install) and publish() (objects the QML tests reach by name).
class QuickTestSetup : public QObject
{
    Q_OBJECT
public slots:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine *engine);

protected:
    // Runs once the application exists, before any QML is loaded.
    virtual void prepare() { }
    // Runs once the QML engine exists; `context` is its root context.
    virtual void publish(QQmlContext *context) { Q_UNUSED(context) }

    // Stores that the first-run onboarding is done, so the app opens on its
    // main screen.
    static void markOnboardingDone();
};
