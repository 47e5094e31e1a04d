#include "FakeVisa.h"

#include "generator/DOC_VIGen.h"
#include "generator/vi.h"
#include "util/DOC_Exception.h"

#include <QtTest>

namespace {

constexpr int errorTimeout = int(0xBFFF0015);

QStringList calls()
{
    QStringList result;
    for (int i = 0; i < fakeVisaCallCount(); ++i)
        result.append(QString::fromUtf8(fakeVisaCall(i)));
    return result;
}

QStringList printed()
{
    QStringList result;
    for (const QString& call : calls()) {
        if (call.startsWith(QLatin1String("viPrintf|")))
            result.append(call.section(QLatin1Char('|'), 2));
    }
    return result;
}

void queueReply(const QByteArray& reply)
{
    fakeVisaQueueReply(reply.constData(), reply.size());
}

} // namespace

class tst_VIGen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void loadLibraryFollowsEnvironment();
    void connectOpensResourceOnWorker();
    void connectWhileLiveTouchesNothing();
    void failedOpenLeavesDisconnected();
    void lostLinkKeepsSession();
    void supportedDevice_data();
    void supportedDevice();
    void frequency_data();
    void frequency();
    void notConnectedSendsNothing();
    void syncSequence();
    void syncStopsAtFirstFailure();

private:
    DOC_VIGen* m_driver = nullptr;
};

void tst_VIGen::initTestCase()
{
    qputenv("SYNC_VISA_LIBRARY", FAKEVISA_FILE);
}

void tst_VIGen::init()
{
    fakeVisaReset();
    m_driver = new DOC_VIGen(nullptr);
    QVERIFY(m_driver->loadLibrary());
}

void tst_VIGen::cleanup()
{
    delete m_driver;
    m_driver = nullptr;
    QVERIFY(!vi::isLoaded());
}

void tst_VIGen::loadLibraryFollowsEnvironment()
{
    delete m_driver;
    qputenv("SYNC_VISA_LIBRARY", "/nonexistent/libvisa.so");
    m_driver = new DOC_VIGen(nullptr);
    QVERIFY(!m_driver->loadLibrary());
    // Without a library there is no session to open and nothing to crash on.
    QVERIFY(!m_driver->connect(0, 0x7F000001));
    qputenv("SYNC_VISA_LIBRARY", FAKEVISA_FILE);
    QVERIFY(m_driver->loadLibrary());
}

void tst_VIGen::connectOpensResourceOnWorker()
{
    QVERIFY(m_driver->connect(0, 0x01020304));
    // Closing what an earlier attempt may have left comes first.
    QVERIFY(calls().at(0).startsWith(QLatin1String("viClose|")));
    QVERIFY(calls().at(1).startsWith(QLatin1String("viClose|")));
    QCOMPARE(calls().mid(2), (QStringList{"viOpenDefaultRM",
                                   "viOpen|100|TCPIP0::1.2.3.4::inst0::INSTR|0|0"}));
    fakeVisaReset();
    m_driver->disconnect();
    QCOMPARE(calls(), (QStringList{"viClose|7", "viClose|100"}));
}

void tst_VIGen::connectWhileLiveTouchesNothing()
{
    QVERIFY(m_driver->connect(0, 0x01020304));
    fakeVisaReset();
    queueReply("+1.0E+03\n");
    QVERIFY(m_driver->connect(0, 0x05060708));
    // Only the live test went out: the session to the first address stays.
    QCOMPARE(calls(), (QStringList{"viPrintf|7|FREQ?\n", "viScanf|7|%1024t"}));
}

void tst_VIGen::failedOpenLeavesDisconnected()
{
    fakeVisaSetStatus("viOpen", errorTimeout);
    QVERIFY(!m_driver->connect(0, 0x7F000002));
    QVERIFY(!m_driver->isConnected());
    QVERIFY(!m_driver->isSupportedDevice());
}

void tst_VIGen::lostLinkKeepsSession()
{
    QVERIFY(m_driver->connect(0, 0x01020304));
    fakeVisaReset();
    fakeVisaSetStatus("viScanf", errorTimeout);
    QVERIFY(!m_driver->isConnected());
    // Closing is left to the next disconnect.
    QVERIFY(!calls().join(QLatin1Char(' ')).contains(QLatin1String("viClose")));
}

void tst_VIGen::supportedDevice_data()
{
    QTest::addColumn<QByteArray>("identity");
    QTest::addColumn<bool>("supported");
    QTest::newRow("four fields, model second")
        << QByteArray("Maker,33210A,MY1234,1.03-1.01\n") << true;
    QTest::newRow("empty fields count") << QByteArray(",33210A,,\n") << true;
    QTest::newRow("three fields") << QByteArray("Maker,33210A,MY1234\n") << false;
    QTest::newRow("five fields") << QByteArray("Maker,33210A,MY1234,1.03,x\n") << false;
    QTest::newRow("other letter case") << QByteArray("Maker,33210a,MY1234,1.03\n") << false;
    QTest::newRow("blanks around the model") << QByteArray("Maker, 33210A,MY1234,1.03\n") << false;
    QTest::newRow("another model") << QByteArray("Maker,33220A,MY1234,1.03\n") << false;
    QTest::newRow("no reply") << QByteArray() << false;
}

void tst_VIGen::supportedDevice()
{
    QFETCH(QByteArray, identity);
    QFETCH(bool, supported);
    QVERIFY(m_driver->connect(0, 0x7F000001));
    fakeVisaReset();
    queueReply(identity);
    QCOMPARE(m_driver->isSupportedDevice(), supported);
    QCOMPARE(printed(), QStringList{"*IDN?\n"});
}

void tst_VIGen::frequency_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("hertz");
    QTest::newRow("instrument's float notation") << QByteArray("+1.00000000000000E+03\n") << 1000;
    QTest::newRow("truncated, not rounded") << QByteArray("999.9\n") << 999;
    QTest::newRow("line feeds removed before reading") << QByteArray("20\n00\n") << 2000;
    QTest::newRow("no number gives 0") << QByteArray("garbage\n") << 0;
    QTest::newRow("out of int range is clamped") << QByteArray("+9.9E+37\n") << INT_MAX;
}

void tst_VIGen::frequency()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, hertz);
    QVERIFY(m_driver->connect(0, 0x7F000001));
    queueReply(reply);
    QCOMPARE(m_driver->getFrequency(), hertz);
}

void tst_VIGen::notConnectedSendsNothing()
{
    m_driver->sync(1000);
    QCOMPARE(m_driver->getFrequency(), 0);
    QCOMPARE(m_driver->getIdentity(), QString());
    QVERIFY(!m_driver->isConnected());
    QVERIFY(calls().isEmpty());
}

void tst_VIGen::syncSequence()
{
    QVERIFY(m_driver->connect(0, 0x7F000001));
    fakeVisaReset();
    m_driver->sync(4000);
    QCOMPARE(calls().at(1), QStringLiteral("viClear|7"));
    QCOMPARE(printed(), (QStringList{"*RST\n",
                                     "DISP ON\n",
                                     "DISP:TEXT \"Tarvix4 Setting Start\"\n",
                                     "FUNC:SHAP PULS\n",
                                     "FREQ 4000\n",
                                     "VOLT:LOW 0\n",
                                     "VOLT:HIGH 5\n",
                                     "FUNC:PULS:DCYC 50\n",
                                     "OUTP ON\n",
                                     "DISP:TEXT \"Tarvix4 Setting End\"\n"}));
}

void tst_VIGen::syncStopsAtFirstFailure()
{
    QVERIFY(m_driver->connect(0, 0x7F000001));
    fakeVisaReset();
    fakeVisaSetStatus("viClear", errorTimeout);
    QString message;
    try {
        m_driver->sync(1000);
    } catch (const DOC_Exception& e) {
        message = QString::fromUtf8(e.what());
    }
    QCOMPARE(message, QStringLiteral("Failed sync to signal generator"));
    QCOMPARE(calls(), (QStringList{"viPrintf|7|*RST\n", "viClear|7"}));
    // A failed setup leaves the session as it was.
    fakeVisaSetStatus("viClear", 0);
    queueReply("+1.0E+03\n");
    QVERIFY(m_driver->isConnected());
}

QTEST_MAIN(tst_VIGen)
#include "tst_vigen.moc"
