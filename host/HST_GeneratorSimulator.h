#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QString>

// The simulated signal generator of a scenario: a sim33210a process on a loopback address,
// started with the scenario's options. The VISA library of this process is pointed at its
// portmapper by SYNC_VXI11_PORTMAPPER_PORT. Stopped (SIGTERM) when this object goes.
class HST_GeneratorSimulator
{
public:
    HST_GeneratorSimulator() = default;
    ~HST_GeneratorSimulator();
    HST_GeneratorSimulator(const HST_GeneratorSimulator&) = delete;
    HST_GeneratorSimulator& operator=(const HST_GeneratorSimulator&) = delete;

    // The simulator executable of this build; empty when it wasn't built.
    static QString executable();
    // The command-line flags for the scenario's "generator" object (keys checked by the scenario).
    static QStringList arguments(const QJsonObject& options, quint16 portmapperPort);

    // Waits for the simulator's ready line; on failure error says why.
    bool start(const QJsonObject& options, QString& error);
    void stop();

    QString address() const { return m_address; }
    quint16 portmapperPort() const { return m_portmapperPort; }

private:
    QProcess m_process;
    QString m_address;
    quint16 m_portmapperPort = 0;
};
