#pragma once

#include "sync/SyncSettings.h"
#include "util/GUI_ProgressDialog.h"

#include <QPointer>

#include <QList>

class APP_Host;
class DOC_Camera;
class RUN_SyncingThread;

// The frameless running bar in front of a sync; it cannot be cancelled, and closes itself when
// the worker reports.
class GUI_SyncProgress : public GUI_ProgressDialog
{
    Q_OBJECT

public:
    explicit GUI_SyncProgress(APP_Host* host);

    // Returns when the sync has ended.
    void start(QList<DOC_Camera*> cameras, DOC_Camera* master, const SyncSettings& settings);
    bool result() const { return m_result; }

public slots:
    void complete(bool result);

private:
    // The thread deletes itself once it has finished.
    QPointer<RUN_SyncingThread> m_thread;
    APP_Host* m_host;
    bool m_result = true;
};
