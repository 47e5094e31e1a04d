#include "host/HST_Faults.h"

#include "host/HST_Recorder.h"
#include "util/APP_Exception.h"

#include <QMutexLocker>

HST_Faults::HST_Faults(QMap<QString, HST_Fault> faults, HST_Recorder* recorder)
    : m_faults(std::move(faults))
    , m_recorder(recorder)
{
}

void HST_Faults::enter(const char* operation)
{
    const QString name = QLatin1String(operation);
    const int step = m_step.load();
    const std::pair<QString, int> key(name, step);
    QString text;
    {
        QMutexLocker locker(&m_mutex);
        if (!m_seen.contains(key)) {
            m_seen.insert(key);
            if (m_recorder)
                m_recorder->record(QStringLiteral("hostCall"),
                    { { QStringLiteral("operation"), name }, { QStringLiteral("step"), step } });
        }
        const auto fault = m_faults.constFind(name);
        if (fault == m_faults.constEnd())
            return;
        if (!fault->steps.isEmpty()) {
            // Due once for each listed step, at the first call in it or, when a run's timing
            // moved that call (a paint comes later), at the first call after it.
            bool due = false;
            for (int listed : fault->steps) {
                const std::pair<QString, int> listedKey(name, listed);
                if (listed <= step && !m_thrown.contains(listedKey)) {
                    m_thrown.insert(listedKey);
                    due = true;
                }
            }
            if (!due)
                return;
        }
        text = fault->text;
    }
    if (m_recorder)
        m_recorder->record(QStringLiteral("fault"),
            { { QStringLiteral("operation"), name }, { QStringLiteral("text"), text },
                { QStringLiteral("step"), step } });
    throw APP_Exception(text, 1);
}
