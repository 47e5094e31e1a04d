#include "SimProcess.h"

#include <QRegularExpression>

SimProcess::~SimProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(2000);
    }
}

bool SimProcess::start(const QStringList& arguments, QString* error)
{
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    m_process.start(QStringLiteral(SIM33210A_FILE), arguments);
    if (!m_process.waitForStarted(5000)) {
        if (error)
            *error = m_process.errorString();
        return false;
    }
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(5000)) {
            if (error)
                *error = QString::fromUtf8(m_process.readAllStandardError());
            return false;
        }
    }
    const QString line = QString::fromUtf8(m_process.readLine()).trimmed();
    const QRegularExpression ready(
        QStringLiteral("^SIM33210A_READY address=\\S+ portmapper=(\\d+) core=(\\d+)$"));
    const QRegularExpressionMatch match = ready.match(line);
    if (!match.hasMatch()) {
        if (error)
            *error = QStringLiteral("unexpected ready line: ") + line;
        return false;
    }
    m_portmapperPort = quint16(match.captured(1).toUInt());
    m_corePort = quint16(match.captured(2).toUInt());
    return true;
}

int SimProcess::stop()
{
    m_process.terminate();
    if (!m_process.waitForFinished(5000))
        return -1;
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}
