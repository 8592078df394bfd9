// The user guide in real QML views, its flag in the real settings file and
// its count lines on standard output.
#include "QuickTestSetup.h"
#include "SettingsFileReader.h"
#include "StdoutCapture.h"

#include <QQmlContext>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

#include <cstdio>
#include <memory>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

// Captures the app's log lines while a test runs. What the test framework
// itself writes meanwhile is passed on when the capture ends.
class LogCapture : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE void start() { m_capture = std::make_unique<StdoutCapture>(); }
    Q_INVOKABLE QStringList lines() { return m_capture ? m_capture->lines() : QStringList(); }
    Q_INVOKABLE void stop()
    {
        if (!m_capture)
            return;
        const QStringList captured = m_capture->lines();
        m_capture.reset();
        for (const QString &line : captured) {
            if (!line.startsWith(QLatin1String("## ")))
                std::printf("%s\n", qPrintable(line));
        }
    }

private:
    std::unique_ptr<StdoutCapture> m_capture;
};

class Setup : public QuickTestSetup
{
protected:
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("log"), new LogCapture);
        context->setContextProperty(QStringLiteral("settingsFile"), new SettingsFileReader);
    }
};

QUICK_TEST_MAIN_WITH_SETUP(userguideview, Setup)
#include "tst_userguideview.moc"
