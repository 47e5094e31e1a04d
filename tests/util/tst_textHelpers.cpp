#include "util/UTL_TextHelpers.h"

#include <QtTest>

// The address helpers behind the address dialogs, the camera order and the generator's resource
// name.
class tst_TextHelpers : public QObject
{
    Q_OBJECT

private slots:
    void isIpAddress_data();
    void isIpAddress();
    void ipToNumber_data();
    void ipToNumber();
};

void tst_TextHelpers::isIpAddress_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");
    QTest::newRow("dotted quad") << "192.168.0.1" << true;
    QTest::newRow("text may go on") << "192.168.0.1abc" << true;
    QTest::newRow("octets not limited to 255") << "300.300.300.300" << true;
    QTest::newRow("must start at 0") << "a192.168.0.1" << false;
    QTest::newRow("empty field of the address form") << "10.0..9" << false;
    QTest::newRow("four-digit octet") << "1921.168.0.1" << false;
    QTest::newRow("non-ASCII digits") << QStringLiteral("\u0661.\u0662.\u0663.\u0664") << false;
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
    QTest::newRow("first octet in top byte, so cameras sort unsigned")
        << "192.168.0.1" << 0xC0A80001u;
    QTest::newRow("empty") << "" << 0u;
    QTest::newRow("octet spills upwards") << "0.0.2.256" << 0x00000300u;
    QTest::newRow("only low 32 bits stay") << "1.2.3.4.5" << 0x02030405u;
    QTest::newRow("no number counts as 0") << "1.x.3.4" << 0x01000304u;
    QTest::newRow("overlong part is no number") << "99999999999.0.0.1" << 1u;
}

void tst_TextHelpers::ipToNumber()
{
    QFETCH(QString, text);
    QFETCH(quint32, expected);
    QCOMPARE(::ipToNumber(text), expected);
    QCOMPARE(::ipToNumber(::numberToIp(expected)), expected);
}

QTEST_GUILESS_MAIN(tst_TextHelpers)
#include "tst_textHelpers.moc"
