#include "SingleInstance.h"

#include "BuildConfig.h"
#include "WidgetLink.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QTextStream>

SingleInstance::SingleInstance(QDBusConnection bus, QObject *parent) : QObject(parent), m_bus(std::move(bus)) { }

QString SingleInstance::objectPath()
{
    return u'/' + QStringLiteral(QUIETON_APP_ID).replace(u'.', u'/');
}

bool SingleInstance::listen()
{
    if (!m_bus.isConnected()) {
        QTextStream(stdout) << "No session bus: links from later launches cannot reach this app" << Qt::endl;
        return true;
    }
    // The object first, so that a launch which finds the name finds it answering.
    m_bus.registerObject(objectPath(), this, QDBusConnection::ExportAllSlots);
    const auto reply = m_bus.interface()->registerService(QStringLiteral(QUIETON_APP_ID),
                                                          QDBusConnectionInterface::DontQueueService,
                                                          QDBusConnectionInterface::DontAllowReplacement);
    if (reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceNotRegistered) {
        m_bus.unregisterObject(objectPath());
        return false;
    }
    return true;
}

bool SingleInstance::forwardToRunning(const QUrl &link)
{
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral(QUIETON_APP_ID), objectPath(),
                                                       QStringLiteral("org.freedesktop.Application"),
                                                       link.isEmpty() ? QStringLiteral("Activate")
                                                                      : QStringLiteral("Open"));
    if (link.isEmpty())
        call << QVariantMap();
    else
        call << QStringList{ QString::fromUtf8(link.toEncoded()) } << QVariantMap();
    // Only the app that runs now: the bus is not to start one for it.
    call.setAutoStartService(false);
    return m_bus.call(call, QDBus::Block, 5000).type() == QDBusMessage::ReplyMessage;
}

void SingleInstance::Activate(const QVariantMap &)
{
    emit activationRequested();
}

void SingleInstance::Open(const QStringList &uris, const QVariantMap &)
{
    for (const QString &uri : uris) {
        if (uri.size() > WidgetLink::maxLinkLength)
            QTextStream(stdout) << "## Link refused: longer than " << WidgetLink::maxLinkLength << " characters"
                                << Qt::endl;
        else
            emit linkReceived(QUrl::fromEncoded(uri.toUtf8()));
    }
}

void SingleInstance::ActivateAction(const QString &, const QVariantList &, const QVariantMap &)
{
    // The app has no actions; the desktop asking for one only brings it forward.
    emit activationRequested();
}
