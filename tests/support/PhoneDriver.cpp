#include "PhoneDriver.h"

#include "HistoryCallDataService.h"
#include "Platform.h"
#include "RecordingTelephony.h"

PhoneDriver::PhoneDriver(RecordingTelephony *telephony, QObject *parent) : QObject(parent), m_telephony(telephony) { }

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
    HistoryCallDataService file(Platform::dataDirectory() + QStringLiteral("/CallHistoryData.sqlite"));
    file.fetchHistory();
    for (const HistoryData &r : file.savedEntities()) {
        rows.append(QVariantMap{ { QStringLiteral("firstName"), r.firstName },
                                 { QStringLiteral("lastName"), r.lastName },
                                 { QStringLiteral("telephone"), r.telephone },
                                 { QStringLiteral("callHidden"), r.callHidden } });
    }
    return rows;
}
