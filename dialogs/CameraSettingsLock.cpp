#include "dialogs/CameraSettingsLock.h"

#include "plugin/APP_Host.h"

#include <QMutex>

CameraSettingsLock::CameraSettingsLock(APP_Host* host)
    : m_mutex(host->cameraMutex())
    , m_locked(m_mutex && m_mutex->tryLock(1))
{
    if (host->isCameraMode())
        host->pauseLive();
    else
        host->stopPlayer();
}

CameraSettingsLock::~CameraSettingsLock()
{
    if (m_locked)
        m_mutex->unlock();
}
