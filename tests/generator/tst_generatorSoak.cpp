// 500 generator connect/disconnect cycles, each as one opening of the sync dialog makes it: a new
// driver binds the VISA library, connects, checks and identifies the instrument, disconnects and
// goes. Our VXI-11 library against the simulator process, inside a private network namespace.
// Memory, threads and open files of this process, and links on the simulator, must not grow.
#include "../NetNamespace.h"
#include "../ProcessUsage.h"

#include "generator/DOC_VIGen.h"
#include "host/HST_GeneratorSimulator.h"
#include "util/UTL_TextHelpers.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// Links the simulator's log shows open: created, never destroyed, connection never lost.
int openLinks(const QString& log)
{
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return -1;
    QSet<QString> open;
    const QRegularExpression line(QStringLiteral("^<link (\\d+) (open|closed|lost)>$"));
    for (const QString& entry : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QRegularExpressionMatch m = line.match(entry);
        if (!m.hasMatch())
            continue;
        if (m.captured(2) == QLatin1String("open"))
            open.insert(m.captured(1));
        else
            open.remove(m.captured(1));
    }
    return open.size();
}

// Warnings other than the expected ones count as failures. Expected: connect closes the last
// session's stale handles first, which warns by design, and the platform can't raise windows.
QStringList unexpected;
void collectWarnings(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtDebugMsg || type == QtInfoMsg || text.contains(QLatin1String("function: vi::close "))
        || text.contains(QLatin1String("does not support raise()")))
        return;
    if (unexpected.size() < 10)
        unexpected << text;
}

} // namespace

class tst_GeneratorSoak : public QObject
{
    Q_OBJECT

private slots:
    void connectCycles();
};

void tst_GeneratorSoak::connectCycles()
{
    REQUIRE_PRIVATE_NETWORK();
    if (HST_GeneratorSimulator::executable().isEmpty())
        QSKIP("the simulator was not built");
    const int cycles = qEnvironmentVariableIntValue("SYNC_SOAK_CYCLES") > 0
                           ? qEnvironmentVariableIntValue("SYNC_SOAK_CYCLES")
                           : 500;
    qputenv("SYNC_VISA_LIBRARY", VXIVISA_FILE);
    qputenv("SYNC_VISA_TIMEOUT_MS", "2000");

    QTemporaryDir dir;
    const QString log = dir.filePath(QStringLiteral("commands.log"));
    HST_GeneratorSimulator simulator;
    QString problem;
    QVERIFY2(simulator.start({{"listen", "127.0.0.1"}, {"log", log}}, problem),
             qPrintable(problem));
    const quint32 address = ipToNumber(QStringLiteral("127.0.0.1"));

    QtMessageHandler previous = qInstallMessageHandler(collectWarnings);
    QElapsedTimer clock;
    clock.start();
    ProcessUsage::Usage after50;
    int linksAfter50 = -1;
    int failed = 0;
    for (int done = 1; done <= cycles; ++done) {
        {
            DOC_VIGen driver(nullptr);
            const bool ok = driver.loadLibrary() && driver.connect(0, address)
                            && driver.isConnected() && driver.isSupportedDevice()
                            && driver.getFrequency() == 1000;
            if (!ok)
                ++failed;
            driver.disconnect();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (done == 50) {
            after50 = ProcessUsage::current();
            linksAfter50 = openLinks(log);
        }
    }
    const ProcessUsage::Usage last = ProcessUsage::current();
    const int linksLast = openLinks(log);
    qInstallMessageHandler(previous);

    const double growth = ProcessUsage::growth(after50, last);
    qInfo("generator soak: %d connect cycles in %lld ms; RSS after 50: %lld kB, after %d: %lld kB "
          "(%+.1f %%); threads %d -> %d; open files %d -> %d; open links %d -> %d",
          cycles, clock.elapsed(), after50.rssKb, cycles, last.rssKb, growth * 100,
          after50.threads, last.threads, after50.files, last.files, linksAfter50, linksLast);
    QCOMPARE(failed, 0);
    QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join(QLatin1Char('\n'))));
    if (cycles >= 100 && ProcessUsage::memoryGrowthMeaningful)
        QVERIFY2(growth < 0.05, "memory grows with each connect");
    QVERIFY(last.threads <= after50.threads);
    QVERIFY(last.files <= after50.files);
    QCOMPARE(linksAfter50, 0);
    QCOMPARE(linksLast, 0);
}

int main(int argc, char** argv)
{
    NetNamespace::enterPrivateNetwork(argc, argv);
    QApplication app(argc, argv);
    tst_GeneratorSoak test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_generatorSoak.moc"
