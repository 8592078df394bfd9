// The popup presenter in real QML views.
#include "TestHome.h"

#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

class Setup : public QObject
{
    Q_OBJECT
public slots:
    void applicationAvailable() { TestHome::use(); }
    void qmlEngineAvailable(QQmlEngine *engine) { engine->addImportPath(QStringLiteral("qrc:/")); }
};

QUICK_TEST_MAIN_WITH_SETUP(popupview, Setup)
#include "tst_popupview.moc"
