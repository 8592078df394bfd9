#include "QuietonApp.h"
#include "SingleInstance.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("quieton"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quieton"));
    QGuiApplication::setDesktopFileName(QStringLiteral("quieton"));

    QCommandLineParser arguments;
    arguments.setApplicationDescription(QStringLiteral("Private calls: dial with your number withheld."));
    arguments.addHelpOption();
    arguments.addPositionalArgument(QStringLiteral("link"), QStringLiteral("A quieton: link to open."), QStringLiteral("[link]"));
    arguments.process(application);
    const QUrl link = arguments.positionalArguments().isEmpty()
            ? QUrl()
            : QUrl::fromUserInput(arguments.positionalArguments().constFirst());

    SingleInstance singleInstance;
    if (singleInstance.forwardToRunning(link))
        return 0;
    singleInstance.listen();

    QQuickStyle::setStyle(QStringLiteral("Material"));
    QuietonApp quietonApp(nullptr);
    QObject::connect(&singleInstance, &SingleInstance::linkReceived, &quietonApp, &QuietonApp::deliverLink);
    QObject::connect(&singleInstance, &SingleInstance::activationRequested, &quietonApp,
                     &QuietonApp::activationRequested);

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &application,
                     [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    engine.load(QUrl(QStringLiteral("qrc:/Quieton/app/AppWindow.qml")));
    if (link.isValid() && !link.isEmpty())
        quietonApp.deliverLink(link);
    return application.exec();
}
