#include "../MessageCapture.h"
#include "FakeVisa.h"

#include "generator/vi.h"

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

QByteArray variantFile(const QString& missing)
{
    return QStringLiteral(FAKEVISA_DIR "/libfakevisa_no_%1.so").arg(missing).toLocal8Bit();
}

} // namespace

class tst_Vi : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void refusesLibraryMissingOneEntryPoint_data();
    void refusesLibraryMissingOneEntryPoint();
    void secondLoadLoadsNothing();
    void libraryFileFromEnvironment();
    void openStatus_data();
    void openStatus();
    void closeWithoutOpenOnlyWarns();
    void negativeStatusThrows_data();
    void negativeStatusThrows();
    void replyLength_data();
    void replyLength();
};

void tst_Vi::init()
{
    fakeVisaReset();
    QVERIFY(vi::load(FAKEVISA_FILE));
}

void tst_Vi::cleanup()
{
    vi::unload();
}

void tst_Vi::refusesLibraryMissingOneEntryPoint_data()
{
    QTest::addColumn<QString>("missing");
    for (const char* name : {"viOpenDefaultRM", "viOpen", "viPrintf", "viScanf", "viClose", "viClear"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_Vi::refusesLibraryMissingOneEntryPoint()
{
    QFETCH(QString, missing);
    vi::unload();
    QVERIFY(!vi::load(variantFile(missing).constData()));
    QVERIFY(!vi::isLoaded());
    // Not half-loaded: a complete library is then really loaded and works.
    QVERIFY(vi::load(FAKEVISA_FILE));
    QVERIFY(vi::open(QStringLiteral("x")));
}

void tst_Vi::secondLoadLoadsNothing()
{
    QVERIFY(vi::load("/nonexistent/libnothing.so"));
    vi::unload();
    QVERIFY(!vi::isLoaded());
    QVERIFY(!vi::load("/nonexistent/libnothing.so"));
    QVERIFY(!vi::isLoaded());
}

void tst_Vi::libraryFileFromEnvironment()
{
    qputenv("SYNC_VISA_LIBRARY", "/opt/x/libmine.so");
    QCOMPARE(vi::libraryFileName(), QByteArray("/opt/x/libmine.so"));
    qunsetenv("SYNC_VISA_LIBRARY");
    QVERIFY(vi::libraryFileName().endsWith("libvxivisa.so"));
}

void tst_Vi::openStatus_data()
{
    QTest::addColumn<int>("managerStatus");
    QTest::addColumn<int>("openStatus");
    QTest::addColumn<bool>("opened");
    QTest::addColumn<QStringList>("warnings");
    QTest::newRow("both succeed") << 0 << 0 << true << QStringList();
    QTest::newRow("positive open status is a failure")
        << 0 << successTermChar << false
        << QStringList{"\"visa.dll error, function: vi::open vifunc: viOpen error: 1073676293 "
                       "constr: TCPIP0::1.2.3.4::inst0::INSTR\""};
    QTest::newRow("manager failure stops before viOpen")
        << errorTimeout << 0 << false
        << QStringList{"\"visa.dll error, function: vi::open vifunc: viOpenDefaultRM "
                       "error: -1073807339\""};
}

void tst_Vi::openStatus()
{
    QFETCH(int, managerStatus);
    QFETCH(int, openStatus);
    QFETCH(bool, opened);
    QFETCH(QStringList, warnings);
    fakeVisaSetStatus("viOpenDefaultRM", managerStatus);
    fakeVisaSetStatus("viOpen", openStatus);
    MessageCapture capture;
    QCOMPARE(vi::open(QStringLiteral("TCPIP0::1.2.3.4::inst0::INSTR")), opened);
    QCOMPARE(capture.texts(QtWarningMsg), warnings);
    const QStringList expectedCalls =
        managerStatus == 0 ? QStringList{"viOpenDefaultRM",
                                         "viOpen|100|TCPIP0::1.2.3.4::inst0::INSTR|0|0"}
                           : QStringList{"viOpenDefaultRM"};
    QCOMPARE(calls(), expectedCalls);
    QCOMPARE(vi::lastStatus(), managerStatus != 0 ? managerStatus : openStatus);
}

void tst_Vi::closeWithoutOpenOnlyWarns()
{
    fakeVisaSetStatus("viClose", errorTimeout);
    MessageCapture capture;
    vi::close();
    QCOMPARE(calls().size(), 2);
    QVERIFY(calls().at(1).startsWith(QLatin1String("viClose|")));
    QCOMPARE(capture.texts(QtWarningMsg),
             (QStringList{"\"visa.dll error, function: vi::close vifunc: viClose (1) error: "
                          "-1073807339\"",
                          "\"visa.dll error, function: vi::close vifunc: viClose (2) error: "
                          "-1073807339\""}));
    // After an open, the two sessions it gave are the ones closed, and they stay set.
    fakeVisaReset();
    QVERIFY(vi::open(QStringLiteral("r")));
    vi::close();
    vi::close();
    QCOMPARE(calls().mid(2),
             (QStringList{"viClose|7", "viClose|100", "viClose|7", "viClose|100"}));
}

void tst_Vi::negativeStatusThrows_data()
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
        << "viScanf" << errorTimeout << "visa.dll error, function: vi::recvString error:-1073807339";
    QTest::newRow("clear: positive is success") << "viClear" << 1 << "";
    QTest::newRow("clear: negative throws")
        << "viClear" << -1 << "visa.dll error, function: vi::clear error:-1";
}

void tst_Vi::negativeStatusThrows()
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
    QCOMPARE(vi::lastStatus(), status);
}

void tst_Vi::replyLength_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("expected");
    QTest::newRow("line end stays") << QByteArray("+1.0E+03\n") << "+1.0E+03\n";
    QTest::newRow("empty reply") << QByteArray() << "";
    QTest::newRow("text stops at a zero byte") << QByteArray("ab\0cd", 5) << "ab";
    QTest::newRow("exactly 1024 bytes, no zero after them")
        << QByteArray(1024, 'x') << QString(1024, QLatin1Char('x'));
    QTest::newRow("longer reply is cut at 1024")
        << QByteArray(5000, 'y') << QString(1024, QLatin1Char('y'));
}

void tst_Vi::replyLength()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, expected);
    fakeVisaQueueReply(reply.constData(), reply.size());
    QCOMPARE(vi::recvString(), expected);
    QCOMPARE(calls().size(), 1);
    QVERIFY(calls().first().endsWith(QLatin1String("|%1024t")));
}

QTEST_GUILESS_MAIN(tst_Vi)
#include "tst_vi.moc"
