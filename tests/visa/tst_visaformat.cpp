// Resource strings and formatted I/O, without a network: the parts of viOpen, viPrintf and
// viScanf that decide what goes on the wire and what lands in the caller's buffer.
#include "FormatIo.h"
#include "ResourceName.h"

#include <QtTest>

#include <cstdarg>
#include <cstring>
#include <string>

namespace {
ViStatus formatted(std::string& out, const char* fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    const ViStatus status = FormatIo::format(fmt, args, out);
    va_end(args);
    return status;
}

ViStatus scanned(const std::string& input, const char* fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    const ViStatus status = FormatIo::scan(fmt, args, input);
    va_end(args);
    return status;
}
} // namespace

class tst_VisaFormat : public QObject
{
    Q_OBJECT

private slots:
    void resourceNames_data();
    void resourceNames();
    void printfFormats_data();
    void printfFormats();
    void scanNeverWritesPastWidth_data();
    void scanNeverWritesPastWidth();
    void scanWord();
    void scanRefusesUnsupportedConversions();
};

void tst_VisaFormat::resourceNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("device");
    using Result = ResourceName::Result;
    const auto row = [](const char* name, const char* text, Result result, const char* host = "",
                         const char* device = "") {
        QTest::newRow(name) << text << int(result) << host << device;
    };
    row("the plug-in's form", "TCPIP0::192.168.0.5::inst0::INSTR", Result::Ok, "192.168.0.5",
        "inst0");
    row("no board, device defaults to inst0", "TCPIP::host.lan::INSTR", Result::Ok, "host.lan",
        "inst0");
    row("gateway device name with comma", "TCPIP0::10.0.0.1::gpib0,10::INSTR", Result::Ok,
        "10.0.0.1", "gpib0,10");
    row("keywords in any case", "tcpip1::h::inst2::instr", Result::Ok, "h", "inst2");
    row("bracketed IPv6 keeps its colons", "TCPIP0::[::1]::INSTR", Result::Ok, "::1", "inst0");
    row("raw socket is not VXI-11", "TCPIP0::h::5025::SOCKET", Result::Unsupported);
    row("HiSLIP is not VXI-11", "TCPIP0::h::hislip0::INSTR", Result::Unsupported);
    row("other interface", "GPIB0::10::INSTR", Result::Unsupported);
    row("empty", "", Result::Invalid);
    row("empty host", "TCPIP0::::INSTR", Result::Invalid);
    row("class missing", "TCPIP0::h", Result::Invalid);
    row("too many parts", "TCPIP0::h::inst0::x::INSTR", Result::Invalid);
    row("board not a number", "TCPIPx::h::INSTR", Result::Invalid);
    row("blank inside the host", "TCPIP0::a b::INSTR", Result::Invalid);
}

void tst_VisaFormat::resourceNames()
{
    QFETCH(QString, text);
    QFETCH(int, result);
    ResourceName name;
    QCOMPARE(int(ResourceName::parse(text.toStdString(), name)), result);
    if (result == int(ResourceName::Result::Ok)) {
        QFETCH(QString, host);
        QFETCH(QString, device);
        QCOMPARE(QString::fromStdString(name.host()), host);
        QCOMPARE(QString::fromStdString(name.device()), device);
    }
}

void tst_VisaFormat::printfFormats_data()
{
    // Every format is given "OUTP ON" and -7000, and takes what it names of them.
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("plain text") << QByteArray("DISP:TEXT \"Tarvix4 Setting Start\"\n")
                                << int(VI_SUCCESS)
                                << QByteArray("DISP:TEXT \"Tarvix4 Setting Start\"\n");
    QTest::newRow("%s, %d and %%")
        << QByteArray("%s;FREQ %d;FUNC:PULS:DCYC 100%%\n") << int(VI_SUCCESS)
        << QByteArray("OUTP ON;FREQ -7000;FUNC:PULS:DCYC 100%\n");
    QTest::newRow("lone percent at the end")
        << QByteArray("FREQ %") << int(VI_ERROR_INV_FMT) << QByteArray();
    QTest::newRow("float conversion")
        << QByteArray("FREQ %f") << int(VI_ERROR_NSUP_FMT) << QByteArray();
    QTest::newRow("width on %s") << QByteArray("%5s") << int(VI_ERROR_NSUP_FMT) << QByteArray();
}

void tst_VisaFormat::printfFormats()
{
    QFETCH(QByteArray, format);
    QFETCH(int, status);
    QFETCH(QByteArray, expected);
    std::string out;
    QCOMPARE(int(formatted(out, format.constData(), "OUTP ON", -7000)), status);
    if (status == VI_SUCCESS)
        QCOMPARE(QByteArray::fromStdString(out), expected);
}

void tst_VisaFormat::scanNeverWritesPastWidth_data()
{
    QTest::addColumn<int>("replySize");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("copied");
    QTest::addColumn<bool>("terminated");
    QTest::newRow("short reply gets its zero") << 22 << 1024 << 22 << true;
    QTest::newRow("one less than the buffer: zero fits") << 1023 << 1024 << 1023 << true;
    QTest::newRow("exactly the buffer: no zero") << 1024 << 1024 << 1024 << false;
    QTest::newRow("longer than the buffer: cut, no zero") << 5000 << 1024 << 1024 << false;
    QTest::newRow("empty reply") << 0 << 1024 << 0 << true;
    QTest::newRow("small width") << 10 << 4 << 4 << false;
}

void tst_VisaFormat::scanNeverWritesPastWidth()
{
    QFETCH(int, replySize);
    QFETCH(int, width);
    QFETCH(int, copied);
    QFETCH(bool, terminated);
    const std::string reply(size_t(replySize), 'x');
    // The caller's buffer is exactly width bytes; guards on both sides catch any overrun.
    std::vector<char> memory(size_t(width) + 64, '#');
    char* buffer = memory.data() + 32;
    const QByteArray format = "%" + QByteArray::number(width) + "t";
    QCOMPARE(scanned(reply, format.constData(), buffer), VI_SUCCESS);
    QCOMPARE(int(std::count(buffer, buffer + copied, 'x')), copied);
    if (terminated)
        QCOMPARE(buffer[copied], '\0');
    else
        QCOMPARE(buffer[width - 1], 'x');
    for (int i = 0; i < 32; ++i) {
        QCOMPARE(memory[size_t(i)], '#');
        QCOMPARE(buffer[width + i], '#');
    }
}

void tst_VisaFormat::scanWord()
{
    char word[8];
    std::memset(word, '#', sizeof word);
    QCOMPARE(scanned("  +1.0E+03 rest\n", "%8s", word), VI_SUCCESS);
    QCOMPARE(QByteArray(word, 8), QByteArray("+1.0E+03"));
    char two[16];
    char three[16];
    QCOMPARE(scanned("a,b\n", "%s", two), VI_SUCCESS);
    QCOMPARE(QByteArray(two), QByteArray("a,b"));
    QCOMPARE(scanned("one two\n", "%15s %15s", two, three), VI_SUCCESS);
    QCOMPARE(QByteArray(two), QByteArray("one"));
    QCOMPARE(QByteArray(three), QByteArray("two"));
}

void tst_VisaFormat::scanRefusesUnsupportedConversions()
{
    bool needsInput = true;
    QCOMPARE(FormatIo::validateScan("%d", needsInput), VI_ERROR_NSUP_FMT);
    QCOMPARE(FormatIo::validateScan("%0t", needsInput), VI_ERROR_INV_FMT);
    QCOMPARE(FormatIo::validateScan("%%", needsInput), VI_SUCCESS);
    QVERIFY(!needsInput); // nothing to read: no traffic
    QCOMPARE(FormatIo::validateScan("%1024t", needsInput), VI_SUCCESS);
    QVERIFY(needsInput);
}

QTEST_APPLESS_MAIN(tst_VisaFormat)
#include "tst_visaformat.moc"
