#pragma once

#include <QObject>
#include <QProperty>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
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
// settings store (every change is written back at once), the prefix
// catalogue with its country and prefix choices, the hand-typed prefix rule,
// and the two destructive operations, reset settings and clear all.
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
    // Rows of the country list: "All Other Countries" first, then the
    // catalogue's countries in ascending order of their localised names.
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

    // Each switch is written to the settings at once.
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
    // A country of the catalogue. A country with one prefix stores it at
    // once; a country with several makes it the selected country and returns
    // true: the screen then offers the choice. Unknown names change nothing.
    Q_INVOKABLE bool selectCountry(const QString &key);
    // The choice rows for the selected country, each {caption, prefix};
    // none when it is not a country with several prefixes.
    Q_INVOKABLE QVariantList prefixChoices() const;
    // Stores a prefix picked from the choice rows (or any other way).
    Q_INVOKABLE void choosePrefix(const QString &prefix);

    // The rule for a hand-typed prefix: no plain space, and at least two
    // user-perceived characters.
    Q_INVOKABLE static bool isValidPrefix(const QString &text);
    // Stores `text` as the prefix when the rule accepts it; returns whether it did.
    Q_INVOKABLE bool saveManualPrefix(const QString &text);

    // Prefix back to the default, both automatic options off, contacts by first name.
    Q_INVOKABLE void resetSettings();
    Q_INVOKABLE void clearAll();

    // Opens the app's store page at `address` through the platform; an
    // address that is not a valid URL opens nothing. Returns whether it opened.
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
