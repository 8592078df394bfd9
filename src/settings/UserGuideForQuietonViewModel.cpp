#include "UserGuideForQuietonViewModel.h"

#include "UserDefaultsService.h"

#include <QTextStream>

UserGuideForQuietonViewModel::UserGuideForQuietonViewModel(UserDefaultsService &defaultsService, QObject *parent)
    : QObject(parent), m_defaultsService(&defaultsService)
{
}

int UserGuideForQuietonViewModel::tick(int timeRemaining)
{
    if (timeRemaining < 1) {
        m_defaultsService->setBool(QStringLiteral("isReadUserGuide"), true);
        QTextStream(stdout) << "## User Guide Read" << Qt::endl;
        return timeRemaining;
    }
    --timeRemaining;
    QTextStream(stdout) << "## Time to User Guide Read: " << timeRemaining << Qt::endl;
    return timeRemaining;
}
