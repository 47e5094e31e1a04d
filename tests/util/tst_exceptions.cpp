#include "../MessageCapture.h"

#include "util/APP_ConcurrentException.h"
#include "util/DOC_ReadFileException.h"
#include "util/UTL_Exception.h"

#include <QtConcurrent>
#include <QtTest>

#include <memory>

class tst_Exceptions : public QObject
{
    Q_OBJECT

private slots:
    void constructionLogsOnceCopiesNever();
    void fileExceptionLogsTwoLines();
    void nonAsciiMessageIsUtf8();
    void handlersCatchByFamily();
    void concurrentExceptionCrossesFuture();
    void concurrentExceptionIsNotAnAppException();
};

void tst_Exceptions::constructionLogsOnceCopiesNever()
{
    MessageCapture capture;
    try {
        try {
            throw UTL_Exception(QStringLiteral("x"), 0);
        } catch (const APP_Exception& e) {
            const APP_Exception copy = e;
            throw copy;
        }
    } catch (const APP_Exception& e) {
        QCOMPARE(QString::fromUtf8(e.what()), QStringLiteral("x"));
    }
    // The base writes the line, under its own name, for a derived class too.
    QCOMPARE(capture.texts(QtCriticalMsg),
             QStringList{QStringLiteral("\"APP_Exception:[message:x] [errorCode:0] \"")});
}

void tst_Exceptions::fileExceptionLogsTwoLines()
{
    MessageCapture capture;
    const DOC_ReadFileException e(QStringLiteral("/tmp/a.xml"));
    QCOMPARE(QString::fromUtf8(e.what()), QStringLiteral("File read failed."));
    QCOMPARE(e.errorCode(), 1);
    QCOMPARE(capture.texts(QtCriticalMsg),
             (QStringList{
                 QStringLiteral("\"APP_Exception:[message:File read failed.] [errorCode:1] \""),
                 QStringLiteral("\"DOC_FileException:[message:File read failed.] "
                                "[path:/tmp/a.xml] [errorCode:1] \"")}));
}

void tst_Exceptions::nonAsciiMessageIsUtf8()
{
    MessageCapture capture;
    const QString message = QStringLiteral("Kamera \u00fcber 10 \u2103");
    const APP_Exception e(message, 3);
    QCOMPARE(QByteArray(e.what()), message.toUtf8());
}

void tst_Exceptions::handlersCatchByFamily()
{
    MessageCapture capture;
    bool caughtAsDoc = false;
    try {
        throw DOC_ReadFileException(QStringLiteral("p"));
    } catch (const DOC_Exception&) {
        caughtAsDoc = true;
    }
    QVERIFY(caughtAsDoc);

    bool caughtAsApp = false;
    try {
        throw UTL_Exception(QStringLiteral("u"), 2);
    } catch (const DOC_Exception&) {
        QFAIL("a utility failure is not a document failure");
    } catch (const APP_Exception& e) {
        caughtAsApp = e.errorCode() == 2;
    }
    QVERIFY(caughtAsApp);
}

void tst_Exceptions::concurrentExceptionCrossesFuture()
{
    MessageCapture capture;
    QFuture<void> future = QtConcurrent::run([] {
        try {
            throw APP_Exception(QStringLiteral("hub refused"), 7);
        } catch (const APP_Exception& e) {
            throw APP_ConcurrentException(e);
        }
    });
    try {
        future.waitForFinished();
        QFAIL("the task's exception must come out of the future");
    } catch (const APP_ConcurrentException& e) {
        QCOMPARE(QString::fromUtf8(e.exception().what()), QStringLiteral("hub refused"));
        QCOMPARE(e.exception().errorCode(), 7);
    }

    // clone() and raise() keep text and code.
    const APP_ConcurrentException original(APP_Exception(QStringLiteral("t"), 4));
    std::unique_ptr<APP_ConcurrentException> clone(original.clone());
    try {
        clone->raise();
    } catch (const APP_ConcurrentException& e) {
        QCOMPARE(QString::fromUtf8(e.exception().what()), QStringLiteral("t"));
        QCOMPARE(e.exception().errorCode(), 4);
    }
}

void tst_Exceptions::concurrentExceptionIsNotAnAppException()
{
    MessageCapture capture;
    bool caughtAsStd = false;
    try {
        throw APP_ConcurrentException(APP_Exception(QStringLiteral("inner"), 0));
    } catch (const APP_Exception&) {
        QFAIL("a carried exception must be unwrapped, not caught as the inner type");
    } catch (const std::exception& e) {
        caughtAsStd = !QString::fromUtf8(e.what()).contains(QStringLiteral("inner"));
    }
    QVERIFY(caughtAsStd);
}

QTEST_GUILESS_MAIN(tst_Exceptions)
#include "tst_exceptions.moc"
