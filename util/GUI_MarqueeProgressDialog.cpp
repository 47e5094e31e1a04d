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
    // A no-op on a stopped thread; kept so that no thread can outlive the dialog.
    thread->terminate();
    reset();
    return result;
}
