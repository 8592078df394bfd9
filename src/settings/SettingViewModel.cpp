#include "SettingViewModel.h"

#include "HistoryCallDataService.h"
#include "KeyValueStore.h"
#include "Platform.h"
#include "UrlOpener.h"
#include "UserDefaultsService.h"

#include <QCoreApplication>
#include <QTextBoundaryFinder>
#include <QTextStream>
#include <QUrl>

#include <algorithm>
#include <initializer_list>

namespace {

const QString prefixKey = QStringLiteral("prefix");
const QString hiddenNumberKey = QStringLiteral("hiddenNumber");
const QString saveToHistoryKey = QStringLiteral("saveToHistory");
const QString autoSortByKey = QStringLiteral("autoSortBy");

// One country of the built-in catalogue. A country with a single prefix keeps
// it as a text, one with several as a list, so that the screen can tell
// whether to offer a choice.
struct CatalogueEntry
{
    const char *name;
    std::initializer_list<const char *> prefixes;
    bool several;
};

// Prefixes that hide the caller's number, by country; the order of a list
// is the order in which the user is offered its prefixes.
const CatalogueEntry catalogue[] = {
    { QT_TRANSLATE_NOOP("SettingViewModel", "United States"), { "#31#", "*67" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Canada"), { "#31#", "*67" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "United Kingdom"), { "141" }, false },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Australia"), { "#31#", "1831" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Austria"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Ireland"), { "141" }, false },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Germany"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Japan"), { "184" }, false },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Hungary"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "South Africa"), { "*31*" }, false },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Brazil"), { "*31*", "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Czech Republic"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Netherlands"), { "#31#", "*31*" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "New Zealand"), { "*67", "0197" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Norway"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Poland"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Portugal"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Romania"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "South Korea"), { "*23", "*23#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Hong Kong"), { "133" }, false },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Ukraine"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Finland"), { "#31#", "*31#" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Mexico"), { "*31*", "*67" }, true },
    { QT_TRANSLATE_NOOP("SettingViewModel", "China"), { "133" }, false },
};

bool isText(const QVariant &value)
{
    return value.metaType().id() == QMetaType::QString;
}

bool isList(const QVariant &value)
{
    return value.metaType().id() == QMetaType::QStringList;
}

} // namespace

SettingViewModel::SettingViewModel(HistoryCallDataService *historyDataService, QObject *parent)
    : QObject(parent),
      m_defaultsService(UserDefaultsService::shared()),
      m_historyDataService(historyDataService),
      m_sortByFirstName(0),
      m_sortByLastName(1),
      m_sortByTelephone(2)
{
    const QString version = QCoreApplication::applicationVersion();
    if (!version.isEmpty())
        m_appVersion = version;

    for (const CatalogueEntry &entry : catalogue) {
        const QString name = tr(entry.name);
        if (entry.several) {
            QStringList prefixes;
            for (const char *prefix : entry.prefixes)
                prefixes.append(QString::fromLatin1(prefix));
            m_prefix_country_codes.insert(name, prefixes);
        } else {
            m_prefix_country_codes.insert(name, QString::fromLatin1(*entry.prefixes.begin()));
        }
    }
    m_allOtherCountries = tr("All Other Countries");

    const KeyValueStore &store = m_defaultsService->userDefaults();
    m_prefixNumber = store.stringValue(prefixKey).value_or(QString());
    m_autoHiddenNumber = store.boolValue(hiddenNumberKey);
    m_autoSaveToHistory = store.boolValue(saveToHistoryKey);
    m_autoSortByFirstName = store.integerValue(autoSortByKey) == m_sortByFirstName;
    m_autoSortByLastName = store.integerValue(autoSortByKey) == m_sortByLastName;
    m_autoSortByTelephone = store.integerValue(autoSortByKey) == m_sortByTelephone;
}

void SettingViewModel::setSelected_country_codes(const QString &key)
{
    if (m_selected_country_codes == key)
        return;
    m_selected_country_codes = key;
    emit selected_country_codesChanged();
}

void SettingViewModel::setSelectedLang(const QString &lang)
{
    if (m_selectedLang == lang)
        return;
    m_selectedLang = lang;
    emit selectedLangChanged();
}

void SettingViewModel::setPrefixNumber(const QString &prefix)
{
    if (m_prefixNumber == prefix)
        return;
    m_prefixNumber = prefix;
    emit prefixNumberChanged();
}

void SettingViewModel::setAutoHiddenNumber(bool hidden)
{
    if (m_autoHiddenNumber != hidden) {
        m_autoHiddenNumber = hidden;
        emit autoHiddenNumberChanged();
    }
    m_defaultsService->setBool(hiddenNumberKey, hidden);
}

void SettingViewModel::setAutoSaveToHistory(bool save)
{
    if (m_autoSaveToHistory != save) {
        m_autoSaveToHistory = save;
        emit autoSaveToHistoryChanged();
    }
    m_defaultsService->setBool(saveToHistoryKey, save);
}

void SettingViewModel::setAutoSortByFirstName(bool on)
{
    if (m_autoSortByFirstName != on) {
        m_autoSortByFirstName = on;
        emit autoSortByFirstNameChanged();
    }
    keepSortFlagsExclusive(m_sortByFirstName, on);
}

void SettingViewModel::setAutoSortByLastName(bool on)
{
    if (m_autoSortByLastName != on) {
        m_autoSortByLastName = on;
        emit autoSortByLastNameChanged();
    }
    keepSortFlagsExclusive(m_sortByLastName, on);
}

void SettingViewModel::setAutoSortByTelephone(bool on)
{
    if (m_autoSortByTelephone != on) {
        m_autoSortByTelephone = on;
        emit autoSortByTelephoneChanged();
    }
    keepSortFlagsExclusive(m_sortByTelephone, on);
}

// Runs after a sort flag was set. Switching the current flag off leaves all
// three off and keeps the stored order, so the next start shows it on again.
void SettingViewModel::keepSortFlagsExclusive(int code, bool on)
{
    if (!on)
        return;
    m_defaultsService->setInteger(autoSortByKey, code);
    if (code != m_sortByFirstName)
        setAutoSortByFirstName(false);
    if (code != m_sortByLastName)
        setAutoSortByLastName(false);
    if (code != m_sortByTelephone)
        setAutoSortByTelephone(false);
}

QStringList SettingViewModel::countryList() const
{
    QStringList countries = m_prefix_country_codes.keys();
    std::sort(countries.begin(), countries.end());
    countries.prepend(m_allOtherCountries);
    return countries;
}

void SettingViewModel::storePrefix(const QString &prefix)
{
    m_defaultsService->setString(prefixKey, prefix);
    setPrefixNumber(prefix);
}

void SettingViewModel::selectAllOtherCountries()
{
    storePrefix(QString::fromLatin1(otherCountriesPrefix));
}

bool SettingViewModel::selectCountry(const QString &key)
{
    const auto found = m_prefix_country_codes.constFind(key);
    if (found == m_prefix_country_codes.cend())
        return false;
    QTextStream(stdout) << "## Selected Prefix for " << key << " is " << describe(found.value()) << Qt::endl;
    if (isList(found.value())) {
        setSelected_country_codes(key);
        return true;
    }
    if (isText(found.value()))
        storePrefix(found.value().toString());
    return false;
}

QVariantList SettingViewModel::prefixChoices() const
{
    QVariantList rows;
    const QVariant value = m_prefix_country_codes.value(m_selected_country_codes);
    if (!isList(value))
        return rows;
    const QStringList prefixes = value.toStringList();
    for (qsizetype i = 0; i < prefixes.size(); ++i) {
        const QString caption = tr("%1 - %2 - [%3]").arg(QString::number(qlonglong(i + 1)), m_selected_country_codes,
                                                         prefixes.at(i));
        rows.append(QVariantMap{ { QStringLiteral("caption"), caption }, { QStringLiteral("prefix"), prefixes.at(i) } });
    }
    return rows;
}

void SettingViewModel::choosePrefix(const QString &prefix)
{
    storePrefix(prefix);
}

bool SettingViewModel::isValidPrefix(const QString &text)
{
    if (text.contains(QLatin1Char(' ')))
        return false;
    // Count user-perceived characters: an emoji or a letter with a combining
    // accent is one, however many code units it takes.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int characters = 0;
    while (finder.toNextBoundary() != -1) {
        if (++characters > 1)
            return true;
    }
    return false;
}

bool SettingViewModel::saveManualPrefix(const QString &text)
{
    if (!isValidPrefix(text))
        return false;
    storePrefix(text);
    return true;
}

void SettingViewModel::resetSettings()
{
    storePrefix(m_defaultsService->defaultPrefix());
    setAutoHiddenNumber(false);
    setAutoSaveToHistory(false);
    setAutoSortByFirstName(true);
    setAutoSortByLastName(false);
    setAutoSortByTelephone(false);
}

void SettingViewModel::clearAll()
{
    resetSettings();
    m_historyDataService->deleteAllHistory();
}

bool SettingViewModel::openStorePage(const QString &address)
{
    const QUrl url(address, QUrl::StrictMode);
    if (address.isEmpty() || !url.isValid() || url.scheme().isEmpty())
        return false;
    return Platform::urlOpener().open(url);
}

void SettingViewModel::openSystemSettings()
{
    Platform::urlOpener().openSystemSettings();
}

QString SettingViewModel::describe(const QVariant &value)
{
    if (!isList(value))
        return value.toString();
    QStringList quoted;
    for (const QString &prefix : value.toStringList())
        quoted.append(QLatin1Char('"') + prefix + QLatin1Char('"'));
    return QLatin1Char('[') + quoted.join(QStringLiteral(", ")) + QLatin1Char(']');
}
