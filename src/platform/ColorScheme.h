#pragma once

#include <QDBusConnection>
#include <QObject>

class QDBusVariant;

// Whether the user prefers a dark look. The environment variable
// QUIETON_COLOR_SCHEME ("dark" or "light") decides when set, for tests and
// screenshots; otherwise the desktop's "color-scheme" setting decides, read
// through the desktop portal and followed while the app runs. Without a
// portal the look is light.
class ColorScheme : public QObject
{
    Q_OBJECT

public:
    explicit ColorScheme(const QDBusConnection &bus = QDBusConnection::sessionBus(), QObject *parent = nullptr);

    bool prefersDark() const { return m_prefersDark; }

signals:
    void prefersDarkChanged();

private slots:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void readFromPortal();
    void apply(const QVariant &portalValue);

    QDBusConnection m_bus;
    bool m_prefersDark = false;
};
