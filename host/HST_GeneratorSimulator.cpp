#include "host/HST_GeneratorSimulator.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QRegularExpression>
#include <QTcpServer>

namespace {

constexpr int readyTimeoutMs = 10000;

// A port that is free on the address now. The simulator binds it a moment later; another
// process taking it in between makes the start fail with a message, never a wrong connection.
quint16 freePort(const QString& address)
{
    QTcpServer probe;
    if (!probe.listen(QHostAddress(address), 0))
        return 0;
    return probe.serverPort();
}

} // namespace

HST_GeneratorSimulator::~HST_GeneratorSimulator()
{
    stop();
}

QString HST_GeneratorSimulator::executable()
{
#ifdef HST_SIMULATOR_FILE
    return QStringLiteral(HST_SIMULATOR_FILE);
#else
    return QString();
#endif
}

QStringList HST_GeneratorSimulator::arguments(const QJsonObject& options, quint16 portmapperPort)
{
    QStringList args { QStringLiteral("--listen"),
        options.value(QStringLiteral("listen")).toString(QStringLiteral("127.0.0.1")),
        QStringLiteral("--portmapper-port"), QString::number(portmapperPort) };
    const QList<QPair<const char*, const char*>> valued { { "model", "--model" },
        { "maker", "--maker" }, { "serial", "--serial" }, { "delayMs", "--delay-ms" },
        { "silentAt", "--silent-at" }, { "maxLinks", "--max-links" }, { "log", "--log" } };
    for (const auto& [key, flag] : valued) {
        const QJsonValue value = options.value(QLatin1String(key));
        if (value.isString())
            args << QLatin1String(flag) << value.toString();
        else if (value.isDouble())
            args << QLatin1String(flag) << QString::number(value.toInt());
    }
    if (options.value(QStringLiteral("dropMidReply")).toBool())
        args << QStringLiteral("--drop-mid-reply");
    if (options.value(QStringLiteral("garbage")).toBool())
        args << QStringLiteral("--garbage");
    return args;
}

bool HST_GeneratorSimulator::start(const QJsonObject& options, QString& error)
{
    const QString program = executable();
    if (program.isEmpty()) {
        error = QStringLiteral("generator: the simulator sim33210a was not built");
        return false;
    }
    m_address = options.value(QStringLiteral("listen")).toString(QStringLiteral("127.0.0.1"));
    quint16 port = quint16(options.value(QStringLiteral("portmapperPort")).toInt(0));
    if (port == 0)
        port = freePort(m_address);
    if (port == 0) {
        error = QStringLiteral("generator: no free port on %1").arg(m_address);
        return false;
    }
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, arguments(options, port));
    if (!m_process.waitForStarted(readyTimeoutMs)) {
        error = QStringLiteral("generator: %1: %2").arg(program, m_process.errorString());
        return false;
    }
    const QRegularExpression ready(QStringLiteral("^SIM33210A_READY .*portmapper=(\\d+)"));
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < readyTimeoutMs) {
        if (!m_process.canReadLine() && !m_process.waitForReadyRead(200)) {
            if (m_process.state() == QProcess::NotRunning)
                break;
            continue;
        }
        const QString line = QString::fromUtf8(m_process.readLine()).trimmed();
        const QRegularExpressionMatch match = ready.match(line);
        if (match.hasMatch()) {
            m_portmapperPort = quint16(match.captured(1).toUInt());
            qputenv("SYNC_VXI11_PORTMAPPER_PORT", QByteArray::number(m_portmapperPort));
            return true;
        }
    }
    error = QStringLiteral("generator: the simulator did not get ready (exit code %1)")
                .arg(m_process.state() == QProcess::NotRunning ? m_process.exitCode() : -1);
    stop();
    return false;
}

void HST_GeneratorSimulator::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(3000)) {
        m_process.kill();
        m_process.waitForFinished(1000);
    }
}
