#include "SendFeedBackViewModel.h"

#include "Service.h"
#include "UserDefaultsService.h"

SendFeedBackViewModel::SendFeedBackViewModel(QObject *parent)
    : QObject(parent), m_defaultsService(UserDefaultsService::shared()), m_service(Service::shared())
{
}
