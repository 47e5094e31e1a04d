#include "plugin/APP_PauseGuard.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"

#include <QDebug>
#include <QMutex>

APP_PauseGuard::APP_PauseGuard(APP_Host* host, bool refresh, bool restart)
    : m_host(host)
    , m_refresh(refresh)
    , m_restart(restart)
    , m_cameraMode(host->isCameraMode())
{
    // Goes on without the lock: a pause that did not get it still pauses and resumes.
    m_mutex = host->documentMutex();
    m_locked = m_mutex && m_mutex->tryLock(1);
    try {
        if (m_cameraMode)
            host->pauseLiveLoop(false);
        else
            host->pausePlayback();
    } catch (...) {
        // No destructor will run for a guard that wasn't made.
        if (m_locked)
            m_mutex->unlock();
        throw;
    }
}

APP_PauseGuard::~APP_PauseGuard()
{
    // A destructor can't pass a failure on, and the lock must go back whatever the host did.
    try {
        resume();
    } catch (const std::exception& e) {
        qCritical() << "APP_PauseGuard: resuming failed:" << QString::fromUtf8(e.what());
    } catch (...) {
        qCritical() << "APP_PauseGuard: resuming failed";
    }
    if (m_locked)
        m_mutex->unlock();
}

void APP_PauseGuard::resume()
{
    if (!m_cameraMode) {
        m_host->resumePlayback();
        return;
    }
    if (m_restart && m_host->needsRestart()) {
        QList<int> keys;
        m_host->liveDocumentKeys(keys, 0);
        for (const int key : qAsConst(keys)) {
            if (DOC_Interface* doc = m_host->document(key, true))
                static_cast<DOC_Feed*>(doc)->restart(true);
        }
    }
    m_host->resumeLive();
    if (m_refresh) {
        m_host->refreshAfterPause();
        m_host->refreshViewsAfterPause();
    }
}
