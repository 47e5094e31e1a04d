#pragma once

#include <QString>

class GUI_MarqueeProgressDialog;
class QThread;

// How a progress dialog's runner sees a worker thread: it starts the thread, shows itself until
// the worker resets it, and waits for the thread to stop.
class RUN_ProgressThreadInterface
{
public:
    virtual QThread* thread() = 0;
    virtual void setProgressDialog(GUI_MarqueeProgressDialog* dialog) = 0;
    virtual void cancel() = 0;
    virtual QString progressText() = 0;

protected:
    // Owners delete the concrete worker, never through this interface.
    ~RUN_ProgressThreadInterface() = default;
};
