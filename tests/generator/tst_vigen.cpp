// The generator driver and its VISA binding against a scripted VISA library: what the
// simulated instrument can't easily be made to do (a library lacking an entry point, positive
// completion codes, overlong replies, odd identities and frequencies).
#include "FakeVisa.h"

#include "generator/DOC_VIGen.h"
#include "generator/vi.h"
#include "util/DOC_Exception.h"

#include <QtTest>

#include <stdexcept>

namespace {

// Completion codes of the VISA standard: a positive success code and an error.
constexpr int successTermChar = 0x3FFF0005;
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
    void incompleteLibraryIsRefused_data();
    void incompleteLibraryIsRefused();
    void openStatus_data();
    void openStatus();
    void connectWhileLiveTouchesNothing();
    void statusSign_data();
    void statusSign();
    void queries_data();
    void queries();
    void notConnectedSendsNothing();
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

// Without a usable library the generator isn't offered, and nothing may crash on the way.
void tst_VIGen::incompleteLibraryIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("no library") << QByteArray("/nonexistent/libvisa.so");
    for (const char* name :
        { "viOpenDefaultRM", "viOpen", "viPrintf", "viScanf", "viClose", "viClear" })
        QTest::newRow(name) << QStringLiteral(FAKEVISA_DIR "/libfakevisa_no_%1.so")
                                   .arg(QLatin1String(name))
                                   .toLocal8Bit();
}

void tst_VIGen::incompleteLibraryIsRefused()
{
    QFETCH(QByteArray, file);
    delete m_driver;
    qputenv("SYNC_VISA_LIBRARY", file);
    m_driver = new DOC_VIGen(nullptr);
    QVERIFY(!m_driver->loadLibrary());
    QVERIFY(!vi::isLoaded());
    QVERIFY(!m_driver->connect(0, 0x7F000001));
    // Not half-loaded: a complete library is then really loaded and works.
    qputenv("SYNC_VISA_LIBRARY", FAKEVISA_FILE);
    QVERIFY(m_driver->loadLibrary());
    QVERIFY(m_driver->connect(0, 0x7F000001));
}

void tst_VIGen::openStatus_data()
{
    QTest::addColumn<int>("managerStatus");
    QTest::addColumn<int>("openStatus");
    QTest::addColumn<bool>("opened");
    QTest::newRow("both succeed") << 0 << 0 << true;
    QTest::newRow("positive open status is a failure") << 0 << successTermChar << false;
    QTest::newRow("manager failure stops before viOpen") << errorTimeout << 0 << false;
}

void tst_VIGen::openStatus()
{
    QFETCH(int, managerStatus);
    QFETCH(int, openStatus);
    QFETCH(bool, opened);
    fakeVisaSetStatus("viOpenDefaultRM", managerStatus);
    fakeVisaSetStatus("viOpen", openStatus);
    QCOMPARE(m_driver->connect(0, 0x01020304), opened);
    QCOMPARE(m_driver->isConnected(), opened);
    const QStringList opens = calls().filter(QStringLiteral("viOpen"));
    QCOMPARE(opens.size(), managerStatus ? 1 : 2);
    if (!managerStatus)
        QCOMPARE(opens.last(), QStringLiteral("viOpen|100|TCPIP0::1.2.3.4::inst0::INSTR|0|0"));
    if (opened) {
        fakeVisaReset();
        m_driver->disconnect();
        QCOMPARE(calls(), (QStringList { "viClose|7", "viClose|100" }));
    }
}

void tst_VIGen::connectWhileLiveTouchesNothing()
{
    QVERIFY(m_driver->connect(0, 0x01020304));
    fakeVisaReset();
    queueReply("+1.0E+03\n");
    QVERIFY(m_driver->connect(0, 0x05060708));
    // Only the live test went out: the session to the first address stays.
    QCOMPARE(calls(), (QStringList { "viPrintf|7|FREQ?\n", "viScanf|7|%1024t" }));
}

void tst_VIGen::statusSign_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error");
    QTest::newRow("send: positive is success") << "viPrintf" << successTermChar << "";
    QTest::newRow("send: negative throws with the command")
        << "viPrintf" << errorTimeout
        << "visa.dll error, function: vi::sendCommandString error:-1073807339 command:FREQ?\n";
    QTest::newRow("receive: positive is success") << "viScanf" << successTermChar << "";
    QTest::newRow("receive: negative throws")
        << "viScanf" << errorTimeout
        << "visa.dll error, function: vi::recvString error:-1073807339";
    QTest::newRow("clear: positive is success") << "viClear" << 1 << "";
    QTest::newRow("clear: negative throws")
        << "viClear" << -1 << "visa.dll error, function: vi::clear error:-1";
}

void tst_VIGen::statusSign()
{
    QFETCH(QString, function);
    QFETCH(int, status);
    QFETCH(QString, error);
    fakeVisaSetStatus(function.toLatin1().constData(), status);
    QString thrown;
    try {
        if (function == QLatin1String("viPrintf"))
            vi::sendCommandString(QStringLiteral("FREQ?\n"));
        else if (function == QLatin1String("viScanf"))
            vi::recvString();
        else
            vi::clear();
    } catch (const std::runtime_error& e) {
        thrown = QString::fromUtf8(e.what());
    }
    QCOMPARE(thrown, error);
}

// A plain read keeps what the format's width allows; the identity decides whether the
// instrument is supported; the frequency is read as a number.
void tst_VIGen::queries_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("result");
    QTest::newRow("read: line end stays") << "" << QByteArray("+1.0E+03\n") << "+1.0E+03\n";
    QTest::newRow("read: text stops at a zero byte") << "" << QByteArray("ab\0cd", 5) << "ab";
    QTest::newRow("read: exactly 1024 bytes, no zero after them")
        << "" << QByteArray(1024, 'x') << QString(1024, QLatin1Char('x'));
    QTest::newRow("read: longer reply is cut at 1024")
        << "" << QByteArray(5000, 'y') << QString(1024, QLatin1Char('y'));
    QTest::newRow("identity: four fields, model second")
        << "*IDN?" << QByteArray("Maker,33210A,MY1234,1.03-1.01\n") << "true";
    QTest::newRow("identity: empty fields count") << "*IDN?" << QByteArray(",33210A,,\n") << "true";
    QTest::newRow("identity: three fields")
        << "*IDN?" << QByteArray("Maker,33210A,MY1234\n") << "false";
    QTest::newRow("identity: five fields")
        << "*IDN?" << QByteArray("Maker,33210A,MY1234,1.03,x\n") << "false";
    QTest::newRow("identity: other letter case")
        << "*IDN?" << QByteArray("Maker,33210a,MY1234,1.03\n") << "false";
    QTest::newRow("identity: blanks around the model")
        << "*IDN?" << QByteArray("Maker, 33210A,MY1234,1.03\n") << "false";
    QTest::newRow("identity: another model")
        << "*IDN?" << QByteArray("Maker,33220A,MY1234,1.03\n") << "false";
    QTest::newRow("identity: no reply") << "*IDN?" << QByteArray() << "false";
    QTest::newRow("frequency: instrument's float notation")
        << "FREQ?" << QByteArray("+1.00000000000000E+03\n") << "1000";
    QTest::newRow("frequency: truncated, not rounded") << "FREQ?" << QByteArray("999.9\n") << "999";
    QTest::newRow("frequency: line feeds removed before reading")
        << "FREQ?" << QByteArray("20\n00\n") << "2000";
    QTest::newRow("frequency: no number gives 0") << "FREQ?" << QByteArray("garbage\n") << "0";
    QTest::newRow("frequency: out of int range is clamped")
        << "FREQ?" << QByteArray("+9.9E+37\n") << QString::number(INT_MAX);
}

void tst_VIGen::queries()
{
    QFETCH(QString, query);
    QFETCH(QByteArray, reply);
    QFETCH(QString, result);
    QVERIFY(m_driver->connect(0, 0x7F000001));
    fakeVisaReset();
    queueReply(reply);
    QString seen;
    if (query.isEmpty())
        seen = vi::recvString();
    else if (query == QLatin1String("*IDN?"))
        seen = QLatin1String(m_driver->isSupportedDevice() ? "true" : "false");
    else
        seen = QString::number(m_driver->getFrequency());
    QCOMPARE(seen, result);
    QCOMPARE(
        printed(), query.isEmpty() ? QStringList() : QStringList { query + QLatin1Char('\n') });
    QVERIFY(calls().last().endsWith(QLatin1String("|%1024t")));
}

void tst_VIGen::notConnectedSendsNothing()
{
    m_driver->sync(1000);
    QCOMPARE(m_driver->getFrequency(), 0);
    QCOMPARE(m_driver->getIdentity(), QString());
    QVERIFY(!m_driver->isConnected());
    QVERIFY(calls().isEmpty());
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
    QCOMPARE(calls(), (QStringList { "viPrintf|7|*RST\n", "viClear|7" }));
    // A failed setup leaves the session as it was.
    fakeVisaSetStatus("viClear", 0);
    queueReply("+1.0E+03\n");
    QVERIFY(m_driver->isConnected());
}

QTEST_MAIN(tst_VIGen)
#include "tst_vigen.moc"
