#include "SettingViewModel.h"

#include "HistoryCallDataService.h"
#include "KeyValueStore.h"
#include "SendFeedBackViewModel.h"
#include "UserGuideForQuietonViewModel.h"

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

// A country with a single prefix keeps it as a text, one with several as a
// list, so that the screen can tell whether to offer a choice.
struct CatalogueEntry
{
    const char *name;
    std::initializer_list<const char *> prefixes;
};

// Prefixes that hide the caller's number, in the order they are offered.
const CatalogueEntry catalogue[] = {
    { QT_TRANSLATE_NOOP("SettingViewModel", "United States"), { "#31#", "*67" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Canada"), { "#31#", "*67" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "United Kingdom"), { "141" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Australia"), { "#31#", "1831" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Austria"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Ireland"), { "141" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Germany"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Japan"), { "184" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Hungary"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "South Africa"), { "*31*" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Brazil"), { "*31*", "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Czech Republic"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Netherlands"), { "#31#", "*31*" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "New Zealand"), { "*67", "0197" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Norway"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Poland"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Portugal"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Romania"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "South Korea"), { "*23", "*23#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Hong Kong"), { "133" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Ukraine"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Finland"), { "#31#", "*31#" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "Mexico"), { "*31*", "*67" } },
    { QT_TRANSLATE_NOOP("SettingViewModel", "China"), { "133" } },
};

bool isList(const QVariant &value)
{
    return value.metaType().id() == QMetaType::QStringList;
}

// "## Selected Prefix for " line's way of printing a catalogue value.
QString describe(const QVariant &value)
{
    if (!isList(value))
        return value.toString();
    QStringList quoted;
    for (const QString &prefix : value.toStringList())
        quoted.append(QLatin1Char('"') + prefix + QLatin1Char('"'));
    return QLatin1Char('[') + quoted.join(QStringLiteral(", ")) + QLatin1Char(']');
}

} // namespace

SettingViewModel::SettingViewModel(UserDefaultsService &defaultsService, Service &service,
                                   HistoryCallDataService &historyDataService, CheckUpdate &checkNewVersionService,
                                   UrlOpener &urlOpener, QObject *parent)
    : QObject(parent),
      m_defaultsService(&defaultsService),
      m_service(&service),
      m_historyDataService(&historyDataService),
      m_checkNewVersionService(&checkNewVersionService),
      m_urlOpener(&urlOpener)
{
    const QString version = QCoreApplication::applicationVersion();
    if (!version.isEmpty())
        m_appVersion = version;

    for (const CatalogueEntry &entry : catalogue) {
        QStringList prefixes;
        for (const char *prefix : entry.prefixes)
            prefixes.append(QString::fromLatin1(prefix));
        m_prefix_country_codes.insert(tr(entry.name), prefixes.size() > 1 ? QVariant(prefixes) : QVariant(prefixes[0]));
    }
    m_allOtherCountries = tr("All Other Countries");

    const KeyValueStore &store = m_defaultsService->userDefaults();
    m_prefixNumber = store.stringValue(prefixKey).value_or(QString());
    m_autoHiddenNumber = store.boolValue(hiddenNumberKey);
    m_autoSaveToHistory = store.boolValue(saveToHistoryKey);
    m_autoSortByFirstName = store.integerValue(autoSortByKey) == sortByFirstName();
    m_autoSortByLastName = store.integerValue(autoSortByKey) == sortByLastName();
    m_autoSortByTelephone = store.integerValue(autoSortByKey) == sortByTelephone();
}

void SettingViewModel::setAutoHiddenNumber(bool hidden)
{
    m_autoHiddenNumber = hidden;
    m_defaultsService->setBool(hiddenNumberKey, hidden);
}

void SettingViewModel::setAutoSaveToHistory(bool save)
{
    m_autoSaveToHistory = save;
    m_defaultsService->setBool(saveToHistoryKey, save);
}

void SettingViewModel::setAutoSortByFirstName(bool on)
{
    m_autoSortByFirstName = on;
    keepSortFlagsExclusive(sortByFirstName(), on);
}

void SettingViewModel::setAutoSortByLastName(bool on)
{
    m_autoSortByLastName = on;
    keepSortFlagsExclusive(sortByLastName(), on);
}

void SettingViewModel::setAutoSortByTelephone(bool on)
{
    m_autoSortByTelephone = on;
    keepSortFlagsExclusive(sortByTelephone(), on);
}

// Runs after a sort flag was set. Switching the current flag off leaves all
// three off and keeps the stored order, so the next start shows it on again.
void SettingViewModel::keepSortFlagsExclusive(int code, bool on)
{
    if (!on)
        return;
    m_defaultsService->setInteger(autoSortByKey, code);
    if (code != sortByFirstName())
        setAutoSortByFirstName(false);
    if (code != sortByLastName())
        setAutoSortByLastName(false);
    if (code != sortByTelephone())
        setAutoSortByTelephone(false);
}

QStringList SettingViewModel::countryList() const
{
    QStringList countries = m_prefix_country_codes.keys();
    std::sort(countries.begin(), countries.end());
    countries.prepend(m_allOtherCountries);
    return countries;
}

void SettingViewModel::choosePrefix(const QString &prefix)
{
    m_defaultsService->setString(prefixKey, prefix);
    setPrefixNumber(prefix);
}

void SettingViewModel::selectAllOtherCountries()
{
    choosePrefix(QStringLiteral("#31#"));
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
    choosePrefix(found.value().toString());
    return false;
}

QVariantList SettingViewModel::prefixChoices() const
{
    QVariantList rows;
    const QVariant value = m_prefix_country_codes.value(m_selected_country_codes.value());
    if (!isList(value))
        return rows;
    const QStringList prefixes = value.toStringList();
    for (qsizetype i = 0; i < prefixes.size(); ++i) {
        const QString caption = tr("%1 - %2 - [%3]").arg(QString::number(qlonglong(i + 1)), m_selected_country_codes.value(),
                                                         prefixes.at(i));
        rows.append(QVariantMap{ { QStringLiteral("caption"), caption }, { QStringLiteral("prefix"), prefixes.at(i) } });
    }
    return rows;
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
    choosePrefix(text);
    return true;
}

void SettingViewModel::resetSettings()
{
    choosePrefix(m_defaultsService->defaultPrefix());
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
    return m_urlOpener->open(url);
}

UserGuideForQuietonViewModel *SettingViewModel::createUserGuideModel(QObject *owner)
{
    return new UserGuideForQuietonViewModel(*m_defaultsService, owner);
}

SendFeedBackViewModel *SettingViewModel::createSendFeedBackModel(QObject *owner)
{
    return new SendFeedBackViewModel(*m_defaultsService, *m_service, *m_urlOpener, owner);
}
