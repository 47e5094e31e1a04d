#include "../MessageCapture.h"

#include "util/APP_Exception.h"
#include "util/DOC_ReadFileException.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Exception.h"
#include "util/UserOperationLog.h"

#include <QtTest>

#include <stdexcept>

// The lines support reads in the log: function trace, user operations and exceptions.
class tst_Logging : public QObject
{
    Q_OBJECT

private slots:
    void parameterText_data();
    void parameterText();
    void leaveLineOnException();
    void userOperationLine();
    void exceptionLines_data();
    void exceptionLines();
};

void tst_Logging::parameterText_data()
{
    QTest::addColumn<QString>("parameters");
    QTest::addColumn<QString>("logged");

    QTest::newRow("blanks only come out empty") << QStringLiteral("   ") << QStringLiteral("\"\"");
    QTest::newRow("trailing blank trimmed") << FunctionLogGuard::parameter(
        QStringLiteral("text"), QStringLiteral("Do you want to execute?"))
                                            << QStringLiteral("\"[text:Do you want to execute?]\"");
    QTest::newRow("bool reads true") << FunctionLogGuard::parameter(QStringLiteral("on"), true)
                                     << QStringLiteral("\"[on:true]\"");
    QTest::newRow("no document shown as Invalid") << FunctionLogGuard::parameter(
        QStringLiteral("docKey"), -1) << QStringLiteral("\"[docKey:Invalid]\"");
    QTest::newRow("replacement is plain text") << FunctionLogGuard::parameter(
        QStringLiteral("docKey"), -12) << QStringLiteral("\"[docKey:Invalid2]\"");
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
        (QStringList { QStringLiteral("[ENTER] \"GUI_X::f\" ") + logged,
            QStringLiteral("[LEAVE] \"GUI_X::f\"") }));
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
        QStringLiteral("GUI_SyncControlSearchSetting::okClicked"), QStringLiteral("Button"),
        QStringLiteral("clicked"), QString());
    UserOperationLog::writeError(QStringLiteral("bad address"));
    QCOMPARE(capture.texts(QtInfoMsg),
        QStringList {
            QStringLiteral("[USER] \"[URL:GUI_SyncControlSearchSetting] "
                           "[ID:GUI_SyncControlSearchSetting::okClicked] [Control:Button] "
                           "[Operation:clicked] [Value:] \"") });
    QCOMPARE(capture.texts(QtCriticalMsg),
        QStringList { QStringLiteral("[USER][ERROR] \"bad address\"") });
}

void tst_Logging::exceptionLines_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QStringList>("logged");

    QTest::newRow("a derived one is logged once under the base's name, copies never")
        << 0 << "x" << QStringList { "\"APP_Exception:[message:x] [errorCode:0] \"" };
    QTest::newRow("a file exception adds its path")
        << 1 << "File read failed."
        << QStringList { "\"APP_Exception:[message:File read failed.] [errorCode:1] \"",
               "\"DOC_FileException:[message:File read failed.] [path:/tmp/a.xml] "
               "[errorCode:1] \"" };
    QTest::newRow("what() is UTF-8")
        << 2 << QStringLiteral("Kamera \u00fcber 10 \u2103") << QStringList();
}

void tst_Logging::exceptionLines()
{
    QFETCH(int, kind);
    QFETCH(QString, what);
    QFETCH(QStringList, logged);
    MessageCapture capture;
    QByteArray caught;
    try {
        if (kind == 0) {
            try {
                throw UTL_Exception(QStringLiteral("x"), 0);
            } catch (const APP_Exception& e) {
                const APP_Exception copy = e;
                throw copy;
            }
        }
        if (kind == 1)
            throw DOC_ReadFileException(QStringLiteral("/tmp/a.xml"));
        throw APP_Exception(what, 3);
    } catch (const APP_Exception& e) {
        caught = e.what();
    }
    QCOMPARE(caught, what.toUtf8());
    if (!logged.isEmpty())
        QCOMPARE(capture.texts(QtCriticalMsg), logged);
}

QTEST_GUILESS_MAIN(tst_Logging)
#include "tst_logging.moc"
