#pragma once

#include "sync/SyncSettings.h"

#include <QList>
#include <QThread>

class APP_Host;
class DOC_Camera;

// Makes the one blocking host call of a sync, off the GUI thread, and tells how it ended.
class RUN_SyncingThread : public QThread
{
    Q_OBJECT

public:
    RUN_SyncingThread(APP_Host* host, QList<DOC_Camera*> cameras, DOC_Camera* master,
                      const SyncSettings& settings);

signals:
    void complete(bool status);

protected:
    void run() override;

private:
    APP_Host* m_host;
    QList<DOC_Camera*> m_cameras;
    DOC_Camera* m_master;
    SyncSettings m_settings;
};
