#include "Appearance.h"
#include "BuildConfig.h"
#include "QuietonApp.h"
#include "SingleInstance.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QWindow>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QuietonApp::nameApplication();

    // Before the command line is read, so that its help is in the user's language.
    QuietonApp::installTranslation();
    QCommandLineParser arguments;
    arguments.setApplicationDescription(QCoreApplication::translate("main", "Private calls: dial with your number withheld."));
    arguments.addHelpOption();
    arguments.addPositionalArgument(QStringLiteral("link"), QCoreApplication::translate("main", "A quieton: link to open."),
                                    QStringLiteral("[link]"));
    arguments.process(application);
    const QUrl link = arguments.positionalArguments().isEmpty()
            ? QUrl()
            : QUrl::fromUserInput(arguments.positionalArguments().constFirst());

    SingleInstance singleInstance;
    if (!singleInstance.listen())
        return singleInstance.forwardToRunning(link) ? 0 : 1;

    QQuickStyle::setStyle(QStringLiteral("Material"));
    Appearance::applyTextScaleOverride();
    QuietonApp app;
    QObject::connect(&singleInstance, &SingleInstance::linkReceived, &app, &QuietonApp::deliverLink);
    QObject::connect(&singleInstance, &SingleInstance::activationRequested, &app, &QuietonApp::activationRequested);

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &application,
                     [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    engine.setInitialProperties({ { QStringLiteral("app"), QVariant::fromValue(&app) } });
    engine.load(QUrl(QStringLiteral("qrc:/Quieton/App/AppWindow.qml")));
    if (engine.rootObjects().isEmpty())
        return 1;
    if (QUIETON_UPDATE_CHECK)
        app.checkForUpdateAfterFirstFrame(qobject_cast<QWindow *>(engine.rootObjects().constFirst()));
    if (link.isValid() && !link.isEmpty())
        app.deliverLink(link);
    return application.exec();
}
