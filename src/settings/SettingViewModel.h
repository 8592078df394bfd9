#pragma once

#include <QObject>
#include <QProperty>
#include <QStringList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include "CheckUpdate.h"
#include "Service.h"
#include "UrlOpener.h"
#include "UserDefaultsService.h"

class HistoryCallDataService;
class SendFeedBackViewModel;
class UserGuideForQuietonViewModel;

// The settings screen's model: the private-call preferences mirrored from the
// settings store (every change written back at once), the prefix catalogue,
// the hand-typed prefix rule, reset settings and clear all.
class SettingViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made for its screen by the app's start-up")
    Q_MOC_INCLUDE("SendFeedBackViewModel.h")
    Q_MOC_INCLUDE("UserGuideForQuietonViewModel.h")
    Q_PROPERTY(UserDefaultsService *defaultsService READ defaultsService CONSTANT)
    Q_PROPERTY(Service *service READ service CONSTANT)
    Q_PROPERTY(CheckUpdate *checkNewVersionService READ checkNewVersionService CONSTANT)
    Q_PROPERTY(UrlOpener *urlOpener READ urlOpener CONSTANT)
    Q_PROPERTY(int sortByFirstName READ sortByFirstName CONSTANT)
    Q_PROPERTY(int sortByLastName READ sortByLastName CONSTANT)
    Q_PROPERTY(int sortByTelephone READ sortByTelephone CONSTANT)
    // The app's version text, or undefined when the app has none.
    Q_PROPERTY(QVariant appVersion READ appVersion CONSTANT)
    // Country name (localised) -> one prefix (string) or several (list of strings).
    Q_PROPERTY(QVariantMap prefix_country_codes READ prefix_country_codes CONSTANT)
    Q_PROPERTY(QString selected_country_codes READ selected_country_codes WRITE setSelected_country_codes NOTIFY selected_country_codesChanged)
    Q_PROPERTY(QString selectedLang READ selectedLang WRITE setSelectedLang NOTIFY selectedLangChanged)
    Q_PROPERTY(QString prefixNumber READ prefixNumber WRITE setPrefixNumber NOTIFY prefixNumberChanged)
    Q_PROPERTY(bool autoHiddenNumber READ autoHiddenNumber WRITE setAutoHiddenNumber NOTIFY autoHiddenNumberChanged)
    Q_PROPERTY(bool autoSaveToHistory READ autoSaveToHistory WRITE setAutoSaveToHistory NOTIFY autoSaveToHistoryChanged)
    Q_PROPERTY(bool autoSortByFirstName READ autoSortByFirstName WRITE setAutoSortByFirstName NOTIFY autoSortByFirstNameChanged)
    Q_PROPERTY(bool autoSortByLastName READ autoSortByLastName WRITE setAutoSortByLastName NOTIFY autoSortByLastNameChanged)
    Q_PROPERTY(bool autoSortByTelephone READ autoSortByTelephone WRITE setAutoSortByTelephone NOTIFY autoSortByTelephoneChanged)
    // "All Other Countries", then the catalogue's countries in text order.
    Q_PROPERTY(QStringList countryList READ countryList CONSTANT)
    Q_PROPERTY(QString allOtherCountries READ allOtherCountries CONSTANT)

public:
    SettingViewModel(UserDefaultsService &defaultsService, Service &service, HistoryCallDataService &historyDataService,
                     CheckUpdate &checkNewVersionService, UrlOpener &urlOpener, QObject *parent = nullptr);

    UserDefaultsService *defaultsService() const { return m_defaultsService; }
    Service *service() const { return m_service; }
    CheckUpdate *checkNewVersionService() const { return m_checkNewVersionService; }
    UrlOpener *urlOpener() const { return m_urlOpener; }

    Q_INVOKABLE UserGuideForQuietonViewModel *createUserGuideModel(QObject *owner);
    Q_INVOKABLE SendFeedBackViewModel *createSendFeedBackModel(QObject *owner);

    static int sortByFirstName() { return 0; }
    static int sortByLastName() { return 1; }
    static int sortByTelephone() { return 2; }
    QVariant appVersion() const { return m_appVersion; }
    QVariantMap prefix_country_codes() const { return m_prefix_country_codes; }

    QString selected_country_codes() const { return m_selected_country_codes; }
    void setSelected_country_codes(const QString &key) { m_selected_country_codes = key; }
    QString selectedLang() const { return m_selectedLang; }
    void setSelectedLang(const QString &lang) { m_selectedLang = lang; }
    QString prefixNumber() const { return m_prefixNumber; }
    // Publishes only; the operations that change the prefix store it first.
    void setPrefixNumber(const QString &prefix) { m_prefixNumber = prefix; }

    bool autoHiddenNumber() const { return m_autoHiddenNumber; }
    void setAutoHiddenNumber(bool hidden);
    bool autoSaveToHistory() const { return m_autoSaveToHistory; }
    void setAutoSaveToHistory(bool save);
    bool autoSortByFirstName() const { return m_autoSortByFirstName; }
    void setAutoSortByFirstName(bool on);
    bool autoSortByLastName() const { return m_autoSortByLastName; }
    void setAutoSortByLastName(bool on);
    bool autoSortByTelephone() const { return m_autoSortByTelephone; }
    void setAutoSortByTelephone(bool on);

    QStringList countryList() const;
    QString allOtherCountries() const { return m_allOtherCountries; }

    Q_INVOKABLE void selectAllOtherCountries();
    // One prefix is stored at once; several make `key` the selected country
    // and return true, for the screen to offer the choice.
    Q_INVOKABLE bool selectCountry(const QString &key);
    // {caption, prefix} rows for the selected country's several prefixes.
    Q_INVOKABLE QVariantList prefixChoices() const;
    Q_INVOKABLE void choosePrefix(const QString &prefix);

    // No plain space, and at least two user-perceived characters.
    Q_INVOKABLE static bool isValidPrefix(const QString &text);
    Q_INVOKABLE bool saveManualPrefix(const QString &text);

    // Prefix back to the default, both automatic options off, contacts by first name.
    Q_INVOKABLE void resetSettings();
    Q_INVOKABLE void clearAll();

    // An address that is not a valid URL opens nothing.
    Q_INVOKABLE bool openStorePage(const QString &address);
    Q_INVOKABLE void openSystemSettings() { m_urlOpener->openSystemSettings(); }

signals:
    void selected_country_codesChanged();
    void selectedLangChanged();
    void prefixNumberChanged();
    void autoHiddenNumberChanged();
    void autoSaveToHistoryChanged();
    void autoSortByFirstNameChanged();
    void autoSortByLastNameChanged();
    void autoSortByTelephoneChanged();

private:
    void keepSortFlagsExclusive(int code, bool on);

    UserDefaultsService *m_defaultsService;
    Service *m_service;
    HistoryCallDataService *m_historyDataService;
    CheckUpdate *m_checkNewVersionService;
    UrlOpener *m_urlOpener;
    QVariant m_appVersion;
    QVariantMap m_prefix_country_codes;
    QString m_allOtherCountries;
    Q_OBJECT_BINDABLE_PROPERTY(SettingViewModel, QString, m_selected_country_codes,
                               &SettingViewModel::selected_country_codesChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SettingViewModel, QString, m_selectedLang, &SettingViewModel::selectedLangChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SettingViewModel, QString, m_prefixNumber, &SettingViewModel::prefixNumberChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SettingViewModel, bool, m_autoHiddenNumber, &SettingViewModel::autoHiddenNumberChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SettingViewModel, bool, m_autoSaveToHistory, &SettingViewModel::autoSaveToHistoryChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SettingViewModel, bool, m_autoSortByFirstName,
                               &SettingViewModel::autoSortByFirstNameChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SettingViewModel, bool, m_autoSortByLastName, &SettingViewModel::autoSortByLastNameChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SettingViewModel, bool, m_autoSortByTelephone,
                               &SettingViewModel::autoSortByTelephoneChanged)
};
