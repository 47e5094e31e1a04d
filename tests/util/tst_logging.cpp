#include "../MessageCapture.h"

#include "util/FunctionLogGuard.h"
#include "util/UserOperationLog.h"

#include <QtTest>

#include <stdexcept>

class tst_Logging : public QObject
{
    Q_OBJECT

private slots:
    void parameterText_data();
    void parameterText();
    void leaveLineOnException();
    void userOperationLine();
};

void tst_Logging::parameterText_data()
{
    QTest::addColumn<QString>("parameters");
    QTest::addColumn<QString>("logged");

    QTest::newRow("blanks only come out empty") << QStringLiteral("   ") << QStringLiteral("\"\"");
    QTest::newRow("trailing blank trimmed")
        << FunctionLogGuard::parameter(QStringLiteral("text"), QStringLiteral("Do you want to execute?"))
        << QStringLiteral("\"[text:Do you want to execute?]\"");
    QTest::newRow("bool reads true")
        << FunctionLogGuard::parameter(QStringLiteral("on"), true) << QStringLiteral("\"[on:true]\"");
    QTest::newRow("no document shown as Invalid")
        << FunctionLogGuard::parameter(QStringLiteral("docKey"), -1)
        << QStringLiteral("\"[docKey:Invalid]\"");
    QTest::newRow("replacement is plain text")
        << FunctionLogGuard::parameter(QStringLiteral("docKey"), -12)
        << QStringLiteral("\"[docKey:Invalid2]\"");
}

void tst_Logging::parameterText()
{
    QFETCH(QString, parameters);
    QFETCH(QString, logged);
    MessageCapture capture;
    {
        SYNC_TRACE(QStringLiteral("GUI_X::f"), parameters);
    }
    QCOMPARE(capture.texts(QtInfoMsg),
             (QStringList{QStringLiteral("[ENTER] \"GUI_X::f\" ") + logged,
                          QStringLiteral("[LEAVE] \"GUI_X::f\"")}));
}

void tst_Logging::leaveLineOnException()
{
    MessageCapture capture;
    try {
        SYNC_TRACE(QStringLiteral("GUI_X::g"), QString());
        throw std::runtime_error("boom");
    } catch (const std::exception&) {
    }
    QCOMPARE(capture.texts(QtInfoMsg).last(), QStringLiteral("[LEAVE] \"GUI_X::g\""));
}

void tst_Logging::userOperationLine()
{
    MessageCapture capture;
    logUserOperation(QStringLiteral("GUI_SyncControlSearchSetting"),
                     QStringLiteral("GUI_SyncControlSearchSetting::okClicked"),
                     QStringLiteral("Button"), QStringLiteral("clicked"), QString());
    UserOperationLog::writeError(QStringLiteral("bad address"));
    QCOMPARE(capture.texts(QtInfoMsg),
             QStringList{QStringLiteral(
                 "[USER] \"[URL:GUI_SyncControlSearchSetting] "
                 "[ID:GUI_SyncControlSearchSetting::okClicked] [Control:Button] "
                 "[Operation:clicked] [Value:] \"")});
    QCOMPARE(capture.texts(QtCriticalMsg),
             QStringList{QStringLiteral("[USER][ERROR] \"bad address\"")});
}

QTEST_GUILESS_MAIN(tst_Logging)
#include "tst_logging.moc"
