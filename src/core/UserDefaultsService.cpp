#include "UserDefaultsService.h"

UserDefaultsService::UserDefaultsService(std::unique_ptr<KeyValueStore> standard,
                                         std::unique_ptr<KeyValueStore> sharedSuite, QObject *parent)
    : QObject(parent), m_userDefaults(std::move(standard)), m_userDefaultsShared(std::move(sharedSuite))
{
    setupDefaultValues();
}

UserDefaultsService::~UserDefaultsService() = default;

bool UserDefaultsService::isFirstTimeInApp() const
{
    for (const char *key : { "firstTimeInApp", "hiddenNumber", "saveToHistory" }) {
        if (m_userDefaults->hasObject(QString::fromLatin1(key)))
            return m_userDefaults->boolValue(QStringLiteral("firstTimeInApp"));
    }
    return true;
}

void UserDefaultsService::setupDefaultValues()
{
    KeyValueStore &store = *m_userDefaults;
    if (isFirstTimeInApp()) {
        store.setBool(QStringLiteral("hiddenNumber"), true);
        store.setBool(QStringLiteral("saveToHistory"), true);
        store.setBool(QStringLiteral("firstTimeInApp"), false);
    }

    if (!store.stringValue(QStringLiteral("prefix")))
        store.setString(QStringLiteral("prefix"), defaultPrefix());

    if (store.stringValue(QStringLiteral("autoSortBy")).value_or(QString()).isEmpty())
        store.setInteger(QStringLiteral("autoSortBy"), 0);
}

std::optional<QDateTime> UserDefaultsService::installDate() const
{
    return m_userDefaults->dateValue(QStringLiteral("dateAppInstalled"));
}

void UserDefaultsService::saveInstallDateIfNeeded()
{
    if (!installDate())
        m_userDefaults->setDate(QStringLiteral("dateAppInstalled"), QDateTime::currentDateTime());
}

void UserDefaultsService::setBool(const QString &key, bool value)
{
    m_userDefaults->setBool(key, value);
    emit valueChanged(key);
}

void UserDefaultsService::setInteger(const QString &key, qint64 value)
{
    m_userDefaults->setInteger(key, value);
    emit valueChanged(key);
}

void UserDefaultsService::setString(const QString &key, const QString &value)
{
    m_userDefaults->setString(key, value);
    emit valueChanged(key);
}
