#include "util/UTL_BackgroundTask.h"

#include "plugin/APP_Host.h"
#include "util/APP_ConcurrentException.h"
#include "util/UTL_Barrier.h"

#include <QFutureWatcher>
#include <QtConcurrent>

bool UTL_BackgroundTask::run(
    APP_Host* host, const QString& busyText, const std::function<void()>& work)
{
    try {
        QFutureWatcher<void> watcher;
        watcher.setFuture(QtConcurrent::run(&UTL_BackgroundTask::runCarryingException, work));
        host->runWithBusyDialog(busyText, &watcher);
        return true;
    } catch (const APP_ConcurrentException& e) {
        UTL_Barrier::report(host, e.exception());
    } catch (const std::exception& e) {
        UTL_Barrier::report(host, e);
    }
    return false;
}

void UTL_BackgroundTask::runCarryingException(const std::function<void()>& work)
{
    try {
        work();
    } catch (const APP_Exception& e) {
        throw APP_ConcurrentException(e);
    }
}
