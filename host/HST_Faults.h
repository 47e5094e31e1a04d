#pragma once

#include "host/HST_Fault.h"

#include <QMap>
#include <QMutex>
#include <QSet>
#include <QString>

#include <atomic>
#include <utility>

class HST_Recorder;

// Every host operation the plug-in calls passes through here, on whatever thread: the first
// call of an operation in each script step is recorded ("hostCall"), so that a test learns from
// a clean run which operations a flow calls and when, and a scenario's fault is thrown.
class HST_Faults
{
public:
    HST_Faults(QMap<QString, HST_Fault> faults, HST_Recorder* recorder);

    // Throws the operation's fault when one is due.
    void enter(const char* operation);
    // The number of script steps that have acted.
    void setStep(int step) { m_step.store(step); }

private:
    QMap<QString, HST_Fault> m_faults;
    HST_Recorder* m_recorder;
    std::atomic<int> m_step { 0 };
    QMutex m_mutex;
    // (operation, step) pairs seen, and the listed steps whose fault was thrown.
    QSet<std::pair<QString, int>> m_seen;
    QSet<std::pair<QString, int>> m_thrown;
};
