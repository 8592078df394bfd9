#include "PhoneDriver.h"

#include "HistoryCallDataService.h"

#include "RecordingTelephony.h"

PhoneDriver::PhoneDriver(TestApp &app, QObject *parent)
    : QObject(parent), m_app(app), m_telephony(app.telephony)
{
}

void PhoneDriver::resetCallFlags()
{
    m_app.service().setCallFailed(false);
    m_app.service().setCallStartedFromApp(false);
}

void PhoneDriver::setCallsPossible(bool possible)
{
    m_telephony->callsPossible = possible;
}

int PhoneDriver::openedCount() const
{
    return int(m_telephony->opened.size());
}

QString PhoneDriver::lastAsked() const
{
    return m_telephony->asked.value(m_telephony->asked.size() - 1);
}

QString PhoneDriver::lastOpened() const
{
    return m_telephony->opened.value(m_telephony->opened.size() - 1);
}

void PhoneDriver::report(const QString &id, bool outgoing, bool connected, bool ended)
{
    m_telephony->report(id, outgoing, connected, ended);
}

QVariantList PhoneDriver::storedRows() const
{
    QVariantList rows;
    HistoryCallDataService file(m_app.history().databasePath());
    for (const HistoryData &r : file.savedEntities()) {
        rows.append(QVariantMap{ { QStringLiteral("firstName"), r.firstName },
                                 { QStringLiteral("lastName"), r.lastName },
                                 { QStringLiteral("telephone"), r.telephone },
                                 { QStringLiteral("callHidden"), r.callHidden } });
    }
    return rows;
}
