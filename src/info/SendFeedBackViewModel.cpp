#include "SendFeedBackViewModel.h"

#include "Service.h"
#include "UserDefaultsService.h"

SendFeedBackViewModel::SendFeedBackViewModel(UserDefaultsService &defaultsService, Service &service,
                                             UrlOpener &urlOpener, QObject *parent)
    : QObject(parent), m_defaultsService(&defaultsService), m_service(&service), m_urlOpener(&urlOpener)
{
}
