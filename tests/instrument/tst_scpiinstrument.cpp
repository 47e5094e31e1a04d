// The simulated generator's SCPI side, without a network: what the driver's commands do to
// the instrument's state, and how it answers and complains.
#include "CommandLog.h"
#include "ScpiInstrument.h"

#include <QtTest>

namespace {
ScpiInstrument::Identity identity()
{
    return { "Simulated Instruments Inc.", "33210A", "SIM0000001", "1.03" };
}
} // namespace

class tst_ScpiInstrument : public QObject
{
    Q_OBJECT

private slots:
    void setupSequenceConfiguresPulse();
    void queries_data();
    void queries();
    void errors_data();
    void errors();
    void numberFormat_data();
    void numberFormat();
    void everyUnitIsLogged();
};

void tst_ScpiInstrument::setupSequenceConfiguresPulse()
{
    ScpiInstrument instrument(identity(), nullptr);
    instrument.execute("OUTP ON\nFREQ 123\n");
    for (const char* command : { "*RST\n", "DISP ON\n", "DISP:TEXT \"Tarvix4 Setting Start\"\n",
             "FUNC:SHAP PULS\n", "FREQ 7000\n", "VOLT:LOW 0\n", "VOLT:HIGH 5\n",
             "FUNC:PULS:DCYC 50\n", "OUTP ON\n", "DISP:TEXT \"Tarvix4 Setting End\"\n" })
        QCOMPARE(instrument.execute(command), std::string());
    QCOMPARE(instrument.execute("FUNC?;FREQ?;VOLT:LOW?;VOLT:HIGH?\n"),
        std::string("PULS;+7.00000000000000E+03;+0.00000000000000E+00;+5.00000000000000E+00\n"));
    QCOMPARE(instrument.execute("FUNC:PULS:DCYC?;OUTP?;DISP?;DISP:TEXT?\n"),
        std::string("+5.00000000000000E+01;1;1;\"Tarvix4 Setting End\"\n"));
    QCOMPARE(instrument.execute("SYST:ERR?\n"), std::string("+0,\"No error\"\n"));
}

void tst_ScpiInstrument::queries_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("reply");
    QTest::newRow("identity has four fields")
        << ""
        << "*IDN?\n"
        << "Simulated Instruments Inc.,33210A,SIM0000001,1.03\n";
    QTest::newRow("frequency after power-on") << ""
                                              << "FREQ?\n"
                                              << "+1.00000000000000E+03\n";
    QTest::newRow("long forms and a unit suffix") << "SOURce:FREQuency 2.5KHz\n"
                                                  << "frequency?\n"
                                                  << "+2.50000000000000E+03\n";
    QTest::newRow("lower case and a leading colon") << ":freq 1500\n"
                                                    << "FREQ?\n"
                                                    << "+1.50000000000000E+03\n";
    QTest::newRow("*RST restores the defaults") << "FREQ 9000;OUTP ON\n*RST\n"
                                                << "FREQ?;OUTP?\n"
                                                << "+1.00000000000000E+03;0\n";
    QTest::newRow("';' inside quotes stays in the text") << "DISP:TEXT \"a;b\"\n"
                                                         << "DISP:TEXT?\n"
                                                         << "\"a;b\"\n";
    QTest::newRow("a bad setting keeps the old value") << "FREQ 20MHZ\n"
                                                       << "FREQ?\n"
                                                       << "+1.00000000000000E+03\n";
    QTest::newRow("no query, no reply") << ""
                                        << "OUTP ON\n"
                                        << "";
}

void tst_ScpiInstrument::queries()
{
    QFETCH(QString, before);
    QFETCH(QString, query);
    QFETCH(QString, reply);
    ScpiInstrument instrument(identity(), nullptr);
    instrument.execute(before.toStdString());
    QCOMPARE(QString::fromStdString(instrument.execute(query.toStdString())), reply);
}

void tst_ScpiInstrument::errors_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown header") << "FOO 1\n"
                                    << "-113,\"Undefined header\"";
    QTest::newRow("short form misspelt") << "FRE 1000\n"
                                         << "-113,\"Undefined header\"";
    QTest::newRow("missing parameter") << "FREQ\n"
                                       << "-109,\"Missing parameter\"";
    QTest::newRow("not a number") << "FREQ abc\n"
                                  << "-224,\"Illegal parameter value\"";
    QTest::newRow("frequency beyond the sine limit") << "FREQ 20MHZ\n"
                                                     << "-222,\"Data out of range\"";
    QTest::newRow("high below low") << "VOLT:LOW 0\nVOLT:HIGH -1\n"
                                    << "-221,\"Settings conflict\"";
    QTest::newRow("unquoted display text") << "DISP:TEXT hello\n"
                                           << "-151,\"Invalid string data\"";
}

void tst_ScpiInstrument::errors()
{
    QFETCH(QString, command);
    QFETCH(QString, error);
    ScpiInstrument instrument(identity(), nullptr);
    instrument.execute(command.toStdString());
    QCOMPARE(QString::fromStdString(instrument.execute("SYST:ERR?\n")), error + "\n");
    QCOMPARE(instrument.execute("SYST:ERR?\n"), std::string("+0,\"No error\"\n"));
    instrument.execute(command.toStdString());
    instrument.execute("*CLS\n");
    QCOMPARE(instrument.execute("SYST:ERR?\n"), std::string("+0,\"No error\"\n"));
}

void tst_ScpiInstrument::numberFormat_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("kilohertz") << 1000.0 << "+1.00000000000000E+03";
    QTest::newRow("sub-hertz") << 0.0005 << "+5.00000000000000E-04";
    QTest::newRow("negative") << -2.5 << "-2.50000000000000E+00";
    QTest::newRow("zero has a sign") << 0.0 << "+0.00000000000000E+00";
}

void tst_ScpiInstrument::numberFormat()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(QString::fromStdString(ScpiInstrument::formatNumber(value)), text);
}

void tst_ScpiInstrument::everyUnitIsLogged()
{
    QTemporaryDir dir;
    const QString path = dir.filePath("commands.log");
    {
        CommandLog log(path.toStdString());
        ScpiInstrument instrument(identity(), &log);
        instrument.execute("*RST\nDISP:TEXT \"x;y\"; FREQ?\n");
        instrument.logEvent("<device clear>");
        instrument.execute("BOGUS\n");
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()),
        QStringLiteral("*RST\nDISP:TEXT \"x;y\"\nFREQ?\n<device clear>\nBOGUS\n"));
}

QTEST_APPLESS_MAIN(tst_ScpiInstrument)
#include "tst_scpiinstrument.moc"
