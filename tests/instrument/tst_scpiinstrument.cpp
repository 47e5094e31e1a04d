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
    void queries_data();
    void queries();
    void everyUnitIsLogged();
};

void tst_ScpiInstrument::queries_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("reply");
    const auto row = [](const char* name, const char* before, const char* query,
                         const char* reply) { QTest::newRow(name) << before << query << reply; };
    row("the driver's setup sequence, without an error",
        "OUTP ON\nFREQ 123\n*RST\nDISP ON\nDISP:TEXT \"Tarvix4 Setting Start\"\nFUNC:SHAP PULS\n"
        "FREQ 7000\nVOLT:LOW 0\nVOLT:HIGH 5\nFUNC:PULS:DCYC 50\nOUTP ON\n"
        "DISP:TEXT \"Tarvix4 Setting End\"\n",
        "FUNC?;FREQ?;VOLT:LOW?;VOLT:HIGH?;FUNC:PULS:DCYC?;OUTP?;DISP?;DISP:TEXT?;SYST:ERR?\n",
        "PULS;+7.00000000000000E+03;+0.00000000000000E+00;+5.00000000000000E+00;"
        "+5.00000000000000E+01;1;1;\"Tarvix4 Setting End\";+0,\"No error\"\n");
    row("identity has four fields", "", "*IDN?\n",
        "Simulated Instruments Inc.,33210A,SIM0000001,1.03\n");
    row("frequency after power-on", "", "FREQ?\n", "+1.00000000000000E+03\n");
    row("numbers: sub-hertz, negative", "FREQ 0.0005;VOLT:HIGH 0;VOLT:LOW -2.5\n",
        "FREQ?;VOLT:LOW?\n", "+5.00000000000000E-04;-2.50000000000000E+00\n");
    row("long forms and a unit suffix", "SOURce:FREQuency 2.5KHz\n", "frequency?\n",
        "+2.50000000000000E+03\n");
    row("lower case and a leading colon", ":freq 1500\n", "FREQ?\n", "+1.50000000000000E+03\n");
    row("*RST restores the defaults", "FREQ 9000;OUTP ON\n*RST\n", "FREQ?;OUTP?\n",
        "+1.00000000000000E+03;0\n");
    row("';' inside quotes stays in the text", "DISP:TEXT \"a;b\"\n", "DISP:TEXT?\n", "\"a;b\"\n");
    row("no query, no reply", "", "OUTP ON\n", "");
    // Each error comes once, then the queue is empty.
    const char* twice = "SYST:ERR?;SYST:ERR?\n";
    row("unknown header", "FOO 1\n", twice, "-113,\"Undefined header\";+0,\"No error\"\n");
    row("short form misspelt", "FRE 1000\n", twice, "-113,\"Undefined header\";+0,\"No error\"\n");
    row("missing parameter", "FREQ\n", twice, "-109,\"Missing parameter\";+0,\"No error\"\n");
    row("not a number", "FREQ abc\n", twice, "-224,\"Illegal parameter value\";+0,\"No error\"\n");
    row("a bad setting keeps the old value", "FREQ 20MHZ\n", "SYST:ERR?;FREQ?\n",
        "-222,\"Data out of range\";+1.00000000000000E+03\n");
    row("high below low", "VOLT:LOW 0\nVOLT:HIGH -1\n", twice,
        "-221,\"Settings conflict\";+0,\"No error\"\n");
    row("unquoted display text", "DISP:TEXT hello\n", twice,
        "-151,\"Invalid string data\";+0,\"No error\"\n");
    row("*CLS empties the queue", "FOO 1\nFREQ\n*CLS\n", "SYST:ERR?\n", "+0,\"No error\"\n");
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
