#include "sync/GUI_SyncProgress.h"

#include "plugin/APP_Host.h"
#include "sync/RUN_SyncingThread.h"
#include "util/UTL_Messages.h"

GUI_SyncProgress::GUI_SyncProgress(APP_Host* host)
    : GUI_ProgressDialog(QString(), QString(), 0, 0, host->getMainWindow(),
                         Qt::FramelessWindowHint, true)
    , m_host(host)
{
    setLabelText(UTL_Messages::translate(host, QStringLiteral("Syncing")));
    UTL_Messages::setNativeStyle(host, this);
}

void GUI_SyncProgress::start(QList<DOC_Camera*> cameras, DOC_Camera* master,
                             const SyncSettings& settings)
{
    m_thread = new RUN_SyncingThread(m_host, std::move(cameras), master, settings);
    connect(m_thread, &RUN_SyncingThread::complete, this, &GUI_SyncProgress::complete,
            Qt::AutoConnection);
    // The worker needs nothing of the object after complete; it goes when it has finished.
    connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    m_thread->start(QThread::InheritPriority);
    exec();
}

void GUI_SyncProgress::complete(bool result)
{
    m_result = result;
    close();
}
