#include "util/GUI_MarqueeProgressDialog.h"

#include "plugin/APP_Host.h"
#include "util/RUN_ProgressThreadInterface.h"
#include "util/UTL_Messages.h"

#include <QThread>

GUI_MarqueeProgressDialog::GUI_MarqueeProgressDialog(APP_Host* host, const QString& labelText,
                                                     const QString& cancelButtonText, bool modal)
    : GUI_ProgressDialog(labelText, cancelButtonText, 0, 0,
                         host ? host->getMainWindow() : nullptr,
                         Qt::Tool | Qt::FramelessWindowHint, true)
{
    setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
    setAutoClose(true);
    setAutoReset(true);
    if (cancelButtonText.isEmpty())
        setCancelButton(nullptr);
    UTL_Messages::setNativeStyle(host, this);
}

int GUI_MarqueeProgressDialog::run(RUN_ProgressThreadInterface* worker)
{
    QThread* thread = worker->thread();
    thread->start(QThread::InheritPriority);
    // A worker that ends before exec() starts still ends it: its reset is queued until the
    // nested loop runs.
    const int result = exec();
    worker->cancel();
    while (thread->isRunning())
        QThread::msleep(1);
    // isRunning turns false as soon as the thread begins to finish, while it still tears down
    // its event dispatcher; cancelling it there aborts the process. Only once it has ended is
    // terminate the no-op it is meant to be: the guarantee that no thread outlives the dialog.
    thread->wait();
    thread->terminate();
    reset();
    return result;
}
