#include "util/UTL_CustomAction.h"
#include "util/UTL_TextHelpers.h"

#include <QSignalSpy>
#include <QtTest>

#include <limits>

class tst_TextHelpers : public QObject
{
    Q_OBJECT

private slots:
    void isIpAddress_data();
    void isIpAddress();
    void ipToNumber_data();
    void ipToNumber();
    void isValidPathName_data();
    void isValidPathName();
    void isMediaFormat_data();
    void isMediaFormat();
    void formatByteSize_data();
    void formatByteSize();
    void firmwareTexts_data();
    void firmwareTexts();
    void parseDateTime_data();
    void parseDateTime();
    void frameConversions_data();
    void frameConversions();
    void rounding_data();
    void rounding();
    void nearestValue_data();
    void nearestValue();
    void greatestCommonDivisorToleratesZero();
    void freeBytesNeverNegative();
    void customActionPrefersMap();
};

void tst_TextHelpers::isIpAddress_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");
    QTest::newRow("dotted quad") << "192.168.0.1" << true;
    QTest::newRow("text may go on") << "192.168.0.1abc" << true;
    QTest::newRow("octets not limited to 255") << "300.300.300.300" << true;
    QTest::newRow("must start at 0") << "a192.168.0.1" << false;
    QTest::newRow("three octets") << "192.168.0" << false;
    QTest::newRow("four-digit octet") << "1921.168.0.1" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("non-ASCII digits") << QStringLiteral("\u0661.\u0662.\u0663.\u0664") << false;
    QTest::newRow("very long") << QString(100000, QLatin1Char('1')) << false;
}

void tst_TextHelpers::isIpAddress()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);
    QCOMPARE(::isIpAddress(text), expected);
}

void tst_TextHelpers::ipToNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint32>("expected");
    QTest::newRow("first octet in top byte") << "1.2.3.4" << 0x01020304u;
    QTest::newRow("empty") << "" << 0u;
    QTest::newRow("octet spills upwards") << "0.0.2.256" << 0x00000300u;
    QTest::newRow("only low 32 bits stay") << "1.2.3.4.5" << 0x02030405u;
    QTest::newRow("no number counts as 0") << "1.x.3.4" << 0x01000304u;
    QTest::newRow("empty parts kept") << "1..3" << 0x00010003u;
    QTest::newRow("non-ASCII digits are no number") << QStringLiteral("\u0661.2.3.4") << 0x00020304u;
    QTest::newRow("overlong part is no number") << "99999999999.0.0.1" << 1u;
    QTest::newRow("very long") << QString(200000, QLatin1Char('.')) << 0u;
}

void tst_TextHelpers::ipToNumber()
{
    QFETCH(QString, text);
    QFETCH(quint32, expected);
    QCOMPARE(::ipToNumber(text), expected);
    QCOMPARE(::ipToNumber(::numberToIp(expected)), expected);
}

void tst_TextHelpers::isValidPathName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");
    QTest::newRow("separators and drive pass") << "D:\\data/x.avi" << true;
    QTest::newRow("empty") << "" << true;
    for (const char* bad : {"*", "?", "|", "\t", "\n", "\"", "<", ">", "%"})
        QTest::newRow(qPrintable(QStringLiteral("refuses %1").arg(int(*bad))))
            << QStringLiteral("a%1b").arg(QLatin1String(bad)) << false;
}

void tst_TextHelpers::isValidPathName()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);
    QCOMPARE(::isValidPathName(text), expected);
}

void tst_TextHelpers::isMediaFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("moviesOnly");
    QTest::addColumn<bool>("expected");
    QTest::newRow("movie in other case") << "MOV" << true << true;
    QTest::newRow("raw refused for movies only") << "Qraw" << true << false;
    QTest::newRow("raw accepted otherwise") << "Qraw" << false << true;
    QTest::newRow("zraw accepted otherwise") << "zRAW" << false << true;
    QTest::newRow("unknown") << "Tiff" << false << false;
    QTest::newRow("prefix is not enough") << "Mp" << false << false;
    QTest::newRow("empty") << "" << false << false;
}

void tst_TextHelpers::isMediaFormat()
{
    QFETCH(QString, format);
    QFETCH(bool, moviesOnly);
    QFETCH(bool, expected);
    QCOMPARE(::isMediaFormat(format, moviesOnly), expected);
}

void tst_TextHelpers::formatByteSize_data()
{
    QTest::addColumn<quint64>("bytes");
    QTest::addColumn<QString>("expected");
    const quint64 k = 1024;
    QTest::newRow("zero is kilobytes") << quint64(0) << "0.00KB";
    QTest::newRow("below one kilobyte") << quint64(100) << "0.10KB";
    QTest::newRow("one and a half") << quint64(1536) << "1.50KB";
    QTest::newRow("just below a megabyte rounds up in KB") << k * k - 1 << "1024.00KB";
    QTest::newRow("one megabyte") << k * k << "1.00MB";
    QTest::newRow("one gigabyte") << k * k * k << "1.00GB";
    QTest::newRow("one terabyte") << k * k * k * k << "1.00TB";
    QTest::newRow("no unit above TB") << std::numeric_limits<quint64>::max() << "16777216.00TB";
}

void tst_TextHelpers::formatByteSize()
{
    QFETCH(quint64, bytes);
    QFETCH(QString, expected);
    QCOMPARE(::formatByteSize(bytes), expected);
}

void tst_TextHelpers::firmwareTexts_data()
{
    QTest::addColumn<quint32>("date");
    QTest::addColumn<qint32>("time");
    QTest::addColumn<QString>("dateText");
    QTest::addColumn<QString>("timeText");
    QTest::newRow("BCD date and time") << 0x150630u << 0x123456 << "2015/6/30" << "12:34:56";
    QTest::newRow("both zero give nothing") << 0u << 0 << "" << "";
    QTest::newRow("time alone is still shown") << 0u << 0x000102 << "" << "00:01:02";
    QTest::newRow("year padded to three digits") << 0x000101u << 0 << "2000/1/1" << "00:00:00";
    QTest::newRow("above 0xFFFFFF a build number") << 0x01000042u << 0 << "066" << "00:00:00";
    QTest::newRow("build number keeps low 16 bits") << 0xFFFFFFFFu << 0 << "65535" << "00:00:00";
    QTest::newRow("negative time uses its bits") << 1u << -1 << "2000/0/1" << "ff:ff:ff";
}

void tst_TextHelpers::firmwareTexts()
{
    QFETCH(quint32, date);
    QFETCH(qint32, time);
    QFETCH(QString, dateText);
    QFETCH(QString, timeText);
    QCOMPARE(::firmwareDateText(date), dateText);
    QCOMPARE(::firmwareTimeText(date, time), timeText);
}

void tst_TextHelpers::parseDateTime_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QDateTime>("expected");
    QTest::newRow("five characters have no seconds")
        << "2024/3/9" << "07:05" << QDateTime(QDate(2024, 3, 9), QTime(7, 5));
    QTest::newRow("with seconds")
        << "2024/12/31" << "23:59:58" << QDateTime(QDate(2024, 12, 31), QTime(23, 59, 58));
    QTest::newRow("seconds missing in long form") << "2024/3/9" << "7:05:1x" << QDateTime();
    QTest::newRow("empty") << "" << "" << QDateTime();
    QTest::newRow("wrong date order") << "9/3/2024" << "07:05" << QDateTime();
}

void tst_TextHelpers::parseDateTime()
{
    QFETCH(QString, date);
    QFETCH(QString, time);
    QFETCH(QDateTime, expected);
    const QDateTime result = ::parseDateTime(date, time);
    QCOMPARE(result.isValid(), expected.isValid());
    if (expected.isValid())
        QCOMPARE(result, expected);
}

void tst_TextHelpers::frameConversions_data()
{
    QTest::addColumn<double>("milliseconds");
    QTest::addColumn<quint32>("rate");
    QTest::addColumn<quint32>("frames");
    QTest::newRow("half a frame rounds up") << 0.5 << 1000u << 1u;
    QTest::newRow("below half rounds down") << 0.49 << 1000u << 0u;
    QTest::newRow("rate 0 gives 1") << 123.0 << 0u << 1u;
    QTest::newRow("negative clamps to 0") << -5000.0 << 1000u << 0u;
    QTest::newRow("huge clamps to max") << 1e300 << 1000u << std::numeric_limits<quint32>::max();
    QTest::newRow("NaN gives 0") << std::numeric_limits<double>::quiet_NaN() << 1000u << 0u;
}

void tst_TextHelpers::frameConversions()
{
    QFETCH(double, milliseconds);
    QFETCH(quint32, rate);
    QFETCH(quint32, frames);
    QCOMPARE(::millisecondsToFrames(milliseconds, rate), frames);
    QCOMPARE(::framesToMilliseconds(frames, 0), 1.0);
}

void tst_TextHelpers::rounding_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<quint32>("digits");
    QTest::addColumn<double>("toDigits");
    QTest::addColumn<double>("fraction");
    QTest::newRow("digits count one more than places") << 2.345678 << 3u << 2.35 << 2.35;
    QTest::newRow("digits 0 acts as 1") << 2.5 << 0u << 3.0 << 3.0;
    QTest::newRow("below zero: whole rounds away, fraction half up") << -1.25 << 2u << -1.3 << -1.2;
    QTest::newRow("already round") << 7.0 << 5u << 7.0 << 7.0;
}

void tst_TextHelpers::rounding()
{
    QFETCH(double, value);
    QFETCH(quint32, digits);
    QFETCH(double, toDigits);
    QFETCH(double, fraction);
    QCOMPARE(::roundToDigits(value, digits), toDigits);
    QCOMPARE(::roundFraction(value, digits), fraction);
}

void tst_TextHelpers::nearestValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QList<double>>("list");
    QTest::addColumn<double>("expected");
    QTest::newRow("tie goes to the later entry") << 2.0 << QList<double>{1.0, 3.0} << 3.0;
    QTest::newRow("closest wins") << 2.9 << QList<double>{1.0, 3.0, 5.0} << 3.0;
    QTest::newRow("distances compared at four places") << 1.00004 << QList<double>{1.0, 1.00008}
                                                       << 1.0001;
    QTest::newRow("result has four places") << 0.0 << QList<double>{1.234567} << 1.2346;
    QTest::newRow("empty list gives 0") << 5.0 << QList<double>{} << 0.0;
}

void tst_TextHelpers::nearestValue()
{
    QFETCH(double, value);
    QFETCH(QList<double>, list);
    QFETCH(double, expected);
    QCOMPARE(::nearestValue(value, list), expected);
}

void tst_TextHelpers::greatestCommonDivisorToleratesZero()
{
    QCOMPARE(::greatestCommonDivisor(12, 18), 6);
    QCOMPARE(::greatestCommonDivisor(7, 0), 7);
}

void tst_TextHelpers::freeBytesNeverNegative()
{
    QVERIFY(::freeBytes(QStringLiteral("/")) > 0);
    QVERIFY(::freeBytes(QStringLiteral("no-slash")) > 0);
    QCOMPARE(::freeBytes(QStringLiteral("Q:/surely/not/mounted")), qint64(0));
}

void tst_TextHelpers::customActionPrefersMap()
{
    UTL_CustomAction action;
    QSignalSpy single(&action, &UTL_CustomAction::signalTriggered);
    QSignalSpy map(&action, &UTL_CustomAction::signalTriggeredMap);
    action.setValue(42);
    action.slotTriggered();
    QCOMPARE(single.size(), 1);
    QCOMPARE(single.at(0).at(0).value<QVariant>(), QVariant(42));
    action.setValues({{QStringLiteral("k"), 1}});
    action.slotTriggered();
    QCOMPARE(single.size(), 1);
    QCOMPARE(map.size(), 1);
}

QTEST_GUILESS_MAIN(tst_TextHelpers)
#include "tst_textHelpers.moc"
