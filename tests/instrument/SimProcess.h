#pragma once

#include <QProcess>
#include <QStringList>

// The sim33210a executable as a child process: starts it, waits for its ready line and reads
// the ports from it, stops it with SIGTERM.
class SimProcess
{
public:
    ~SimProcess();

    bool start(const QStringList& arguments, QString* error = nullptr);
    // Exit code after SIGTERM, or -1 if it didn't exit by itself in time.
    int stop();

    quint16 portmapperPort() const { return m_portmapperPort; }
    quint16 corePort() const { return m_corePort; }

private:
    QProcess m_process;
    quint16 m_portmapperPort = 0;
    quint16 m_corePort = 0;
};
