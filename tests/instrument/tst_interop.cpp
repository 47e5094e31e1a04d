// Other VXI-11 clients against the simulator, so that a fault shared by our client and our
// server (both use one message layer) can't hide: Debian's pyvisa-py and lxi-tools ask for
// "*IDN?" and "FREQ?" inside the private network namespace, through the portmapper on port 111.
#include "../NetNamespace.h"
#include "SimProcess.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QtTest>

namespace {
const QString kPython = QStringLiteral("/usr/bin/python3");
const QByteArray kIdentity = "Simulated Instruments Inc.,33210A,";
const QByteArray kFrequency = "+1.00000000000000E+03";

struct Run
{
    int exitCode = -1;
    QByteArray output;
};

Run run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    Run result;
    if (!process.waitForFinished(30000)) {
        process.kill();
        process.waitForFinished();
        return result;
    }
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.output = process.readAll();
    return result;
}
} // namespace

class tst_Interop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pyvisaPy();
    void lxiTools_data();
    void lxiTools();

private:
    SimProcess m_sim;
};

void tst_Interop::initTestCase()
{
    REQUIRE_PRIVATE_NETWORK();
    QString error;
    QVERIFY2(m_sim.start({}, &error), qPrintable(error));
    QCOMPARE(m_sim.portmapperPort(), quint16(111)); // the port both clients insist on
}

void tst_Interop::pyvisaPy()
{
    if (!QFileInfo::exists(kPython)
        || run(kPython, { "-c", "import pyvisa, pyvisa_py" }).exitCode != 0)
        QSKIP("Debian's python3-pyvisa-py is not installed (tools/apt-packages.txt lists it)");
    const QString script = QStringLiteral(
        "import pyvisa\n"
        "rm = pyvisa.ResourceManager('@py')\n"
        "inst = rm.open_resource('TCPIP0::127.0.0.1::inst0::INSTR', timeout=5000)\n"
        "print(inst.query('*IDN?').strip())\n"
        "print(inst.query('FREQ?').strip())\n"
        "inst.close()\n");
    const Run result = run(kPython, { "-c", script });
    QVERIFY2(result.exitCode == 0, result.output.constData());
    const QList<QByteArray> lines = result.output.trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines[0].startsWith(kIdentity), lines[0].constData());
    QCOMPARE(lines[1], kFrequency);
}

void tst_Interop::lxiTools_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("replyStart");
    QTest::newRow("identity") << "*IDN?" << kIdentity;
    QTest::newRow("frequency") << "FREQ?" << kFrequency;
}

void tst_Interop::lxiTools()
{
    QFETCH(QString, command);
    QFETCH(QByteArray, replyStart);
    const QString lxi = QStandardPaths::findExecutable(QStringLiteral("lxi"));
    if (lxi.isEmpty())
        QSKIP("Debian's lxi-tools is not installed (tools/apt-packages.txt lists it)");
    const Run result = run(lxi, { "scpi", "-a", "127.0.0.1", command });
    QVERIFY2(result.exitCode == 0, result.output.constData());
    QVERIFY2(result.output.trimmed().startsWith(replyStart), result.output.constData());
}

NETNS_MAIN(tst_Interop)
#include "tst_interop.moc"
