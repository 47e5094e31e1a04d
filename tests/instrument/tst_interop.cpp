// Other VXI-11 clients against the simulator, so that a fault shared by our client and our
// server (both use one message layer) can't hide: Debian's pyvisa-py and lxi-tools ask for
// "*IDN?" and "FREQ?" inside the private network namespace, through the portmapper on port 111,
// with Nagle's algorithm on at the simulator (as in most firmware) and off.
#include "../NetNamespace.h"
#include "SimProcess.h"

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

const QString kPyvisaScript
    = QStringLiteral("import pyvisa\n"
                     "rm = pyvisa.ResourceManager('@py')\n"
                     "i = rm.open_resource('TCPIP0::127.0.0.1::inst0::INSTR', timeout=5000)\n"
                     "print(i.query('*IDN?').strip())\n"
                     "print(i.query('FREQ?').strip())\n"
                     "i.close()\n");
} // namespace

class tst_Interop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void identityAndFrequency_data();
    void identityAndFrequency();
};

void tst_Interop::initTestCase()
{
    REQUIRE_PRIVATE_NETWORK();
}

void tst_Interop::identityAndFrequency_data()
{
    QTest::addColumn<QString>("client");
    QTest::addColumn<QStringList>("arguments");
    for (const QString client : { "pyvisa-py", "lxi-tools" }) {
        QTest::newRow(qPrintable(client + ", Nagle on")) << client << QStringList();
        QTest::newRow(qPrintable(client + ", Nagle off"))
            << client << QStringList { "--tcp-nodelay" };
    }
}

void tst_Interop::identityAndFrequency()
{
    QFETCH(QString, client);
    QFETCH(QStringList, arguments);
    const bool pyvisa = client == QLatin1String("pyvisa-py");
    const QString lxi = QStandardPaths::findExecutable(QStringLiteral("lxi"));
    if (pyvisa && run(kPython, { "-c", "import pyvisa, pyvisa_py" }).exitCode != 0)
        QSKIP("Debian's python3-pyvisa-py is not installed (tools/apt-packages.txt lists it)");
    if (!pyvisa && lxi.isEmpty())
        QSKIP("Debian's lxi-tools is not installed (tools/apt-packages.txt lists it)");
    SimProcess sim;
    QString error;
    QVERIFY2(sim.start(arguments, &error), qPrintable(error));
    QCOMPARE(sim.portmapperPort(), quint16(111)); // the port both clients insist on

    QByteArray replies;
    const QList<QStringList> runs = pyvisa
        ? QList<QStringList> { { "-c", kPyvisaScript } }
        : QList<QStringList> { { "scpi", "-a", "127.0.0.1", "*IDN?" },
              { "scpi", "-a", "127.0.0.1", "FREQ?" } };
    for (const QStringList& args : runs) {
        const Run result = run(pyvisa ? kPython : lxi, args);
        QVERIFY2(result.exitCode == 0, result.output.constData());
        replies += result.output;
    }
    const QList<QByteArray> lines = replies.trimmed().split('\n');
    QVERIFY2(lines.size() == 2 && lines[0].startsWith(kIdentity), replies.constData());
    QCOMPARE(lines[1].trimmed(), kFrequency);
}

NETNS_MAIN(tst_Interop)
#include "tst_interop.moc"
