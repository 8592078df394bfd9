#pragma once

#include "KeyValueStore.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

// The app's settings: the standard suite and the suite shared with the
// home-screen widget. Creating the store writes the first-launch defaults.
class UserDefaultsService : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made at start-up")
    Q_PROPERTY(QString defaultPrefix READ defaultPrefix CONSTANT)

public:
    // A store over the given suites; `sharedSuite` may be null when the
    // widget's suite cannot be opened. Runs the first-launch initialisation.
    UserDefaultsService(std::unique_ptr<KeyValueStore> standard, std::unique_ptr<KeyValueStore> sharedSuite,
                        QObject *parent = nullptr);
    ~UserDefaultsService() override;

    KeyValueStore &userDefaults() const { return *m_userDefaults; }
    KeyValueStore *userDefaultsShared() const { return m_userDefaultsShared.get(); }
    QString defaultPrefix() const { return QStringLiteral("#31#"); }

    bool isFirstTimeInApp() const;
    std::optional<QDateTime> installDate() const;
    Q_INVOKABLE void saveInstallDateIfNeeded();

    // Reads and writes of the standard suite for the screens.
    Q_INVOKABLE bool boolForKey(const QString &key) const { return m_userDefaults->boolValue(key); }
    Q_INVOKABLE void setBool(const QString &key, bool value);
    Q_INVOKABLE void setInteger(const QString &key, qint64 value);
    Q_INVOKABLE void setString(const QString &key, const QString &value);

signals:
    // A key of the standard suite was written through this object.
    void valueChanged(const QString &key);

private:
    void setupDefaultValues();

    std::unique_ptr<KeyValueStore> m_userDefaults;
    std::unique_ptr<KeyValueStore> m_userDefaultsShared;
};
