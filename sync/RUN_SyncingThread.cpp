#include "sync/RUN_SyncingThread.h"

#include "plugin/APP_Host.h"
#include "util/UTL_Barrier.h"

RUN_SyncingThread::RUN_SyncingThread(
    APP_Host* host, QList<DOC_Camera*> cameras, DOC_Camera* master, const SyncSettings& settings)
    : m_host(host)
    , m_cameras(std::move(cameras))
    , m_master(master)
    , m_settings(settings)
{
    setObjectName(QStringLiteral("SYNCIN"));
}

void RUN_SyncingThread::run()
{
    bool status = true;
    try {
        static_cast<APP_CameraManager*>(m_host)->applySync(m_cameras, m_master,
            m_settings.distributor, m_settings.external, m_settings.generatorControl,
            m_settings.syncIn, m_settings.frequency, m_settings.polarity);
    } catch (const std::exception&) {
        // The user is told that it failed; the host has its own account of why.
        status = false;
    } catch (...) {
        // Nothing may leave a thread's run: it would end the process.
        UTL_Barrier::logUnknown("RUN_SyncingThread::run");
        status = false;
    }
    emit complete(status);
}
