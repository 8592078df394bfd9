#include "ColorScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");

// The portal's values: 0 no preference, 1 prefer dark, 2 prefer light.
constexpr uint preferDark = 1;

// Read() wraps the value in one variant more than ReadOne() does.
QVariant unwrap(QVariant value)
{
    while (value.canConvert<QDBusVariant>() && value.userType() == qMetaTypeId<QDBusVariant>())
        value = qvariant_cast<QDBusVariant>(value).variant();
    return value;
}

} // namespace

ColorScheme::ColorScheme(const QDBusConnection &bus, QObject *parent) : QObject(parent), m_bus(bus)
{
    const QByteArray forced = qgetenv("QUIETON_COLOR_SCHEME").trimmed().toLower();
    if (forced == "dark" || forced == "light") {
        m_prefersDark = forced == "dark";
        return;
    }
    if (!m_bus.isConnected())
        return;
    m_bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    readFromPortal();
}

void ColorScheme::readFromPortal()
{
    // ReadOne is the newer call; older portals only have Read.
    auto ask = [this](const QString &method, auto onError) {
        QDBusMessage message = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, method);
        message << appearanceGroup << colorSchemeKey;
        auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, onError] {
            watcher->deleteLater();
            const QDBusPendingReply<QDBusVariant> reply = *watcher;
            if (reply.isError())
                onError(reply.error());
            else
                apply(reply.value().variant());
        });
    };
    ask(QStringLiteral("ReadOne"), [this, ask](const QDBusError &error) {
        if (error.type() == QDBusError::UnknownMethod)
            ask(QStringLiteral("Read"), [](const QDBusError &) {});
    });
}

void ColorScheme::onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == appearanceGroup && key == colorSchemeKey)
        apply(value.variant());
}

void ColorScheme::apply(const QVariant &portalValue)
{
    const bool dark = unwrap(portalValue).toUInt() == preferDark;
    if (dark != m_prefersDark) {
        m_prefersDark = dark;
        emit prefersDarkChanged();
    }
}
