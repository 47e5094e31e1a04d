#pragma once

#include <QString>

#include <functional>

class APP_Host;

// One blocking host call off the GUI thread, behind the host's busy dialog, with its failure
// shown to the user on the GUI thread.
class UTL_BackgroundTask
{
public:
    UTL_BackgroundTask() = delete;

    // The work runs on the global thread pool and must own copies of what it needs; it touches
    // no widget. False when it threw: the host has then reported the failure, and the caller
    // must not go on as if the work were done.
    static bool run(APP_Host* host, const QString& busyText, const std::function<void()>& work);

    // The body as the pool runs it: an APP_Exception leaves as APP_ConcurrentException, the one
    // form in which a QFuture carries it to the waiting thread.
    static void runCarryingException(const std::function<void()>& work);
};
