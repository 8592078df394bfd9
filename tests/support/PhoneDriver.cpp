#include "PhoneDriver.h"

#include "HistoryCallDataService.h"

void PhoneDriver::resetCallFlags()
{
    m_app.service().setCallFailed(false);
    m_app.service().setCallStartedFromApp(false);
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
