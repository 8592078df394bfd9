#include "DialerViewModel.h"

#include "CrashManager.h"
#include "KeyValueStore.h"
#include "Service.h"
#include "UserDefaultsService.h"
#include "WidgetLink.h"

#include <QTextBoundaryFinder>

DialerViewModel::DialerViewModel(UserDefaultsService &defaultsService, Service &service, CrashManager &crashManager,
                                 QObject *parent)
    : QObject(parent),
      m_defaultsService(&defaultsService),
      m_crashManager(crashManager),
      m_service(&service),
      m_toggleHiddenNumber(m_defaultsService->userDefaults().boolValue(QStringLiteral("hiddenNumber"))),
      m_toggleSaveToHistory(m_defaultsService->userDefaults().boolValue(QStringLiteral("saveToHistory")))
{
}

void DialerViewModel::setToggleSaveToHistory(bool save)
{
    m_toggleSaveToHistory = save;
    m_service->setPendingCallSaveToHistory(save);
}

void DialerViewModel::fillFromLink(const QUrl &link)
{
    setNumberPhoneTyping(WidgetLink::queryValue(link, QStringLiteral("number")));
    setToggleHiddenNumber(WidgetLink::isTrue(WidgetLink::queryValue(link, QStringLiteral("hidden"))));
    setToggleSaveToHistory(WidgetLink::isTrue(WidgetLink::queryValue(link, QStringLiteral("saveToHistory"))));
}

void DialerViewModel::loadSettings()
{
    const KeyValueStore &store = m_defaultsService->userDefaults();
    setToggleHiddenNumber(store.boolValue(QStringLiteral("hiddenNumber")));
    setToggleSaveToHistory(store.boolValue(QStringLiteral("saveToHistory")));
}

bool DialerViewModel::call()
{
    return m_service->placeCall({ QString(), QString(), m_numberPhoneTyping, m_toggleHiddenNumber, std::nullopt });
}

void DialerViewModel::appendDigit(const QString &key)
{
    setNumberPhoneTyping(m_numberPhoneTyping.value() + key);
}

void DialerViewModel::deleteLast()
{
    const QString number = m_numberPhoneTyping;
    if (number.isEmpty())
        return;
    // One user-perceived character, so a flag or an accented letter that came
    // in through a link goes as a whole.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, number);
    finder.toEnd();
    setNumberPhoneTyping(number.left(finder.toPreviousBoundary()));
}

void DialerViewModel::clear()
{
    setNumberPhoneTyping(QString());
}
