#include "../MessageCapture.h"

#include "web/GUI_Dialog.h"

#include <QtTest>

class tst_Dialog : public QObject
{
    Q_OBJECT

private slots:
    void escape_data();
    void escape();
    void closeButtonLogsOnce();
    void enablingPresentCloseButtonKeepsWindow();
    void pageOperationLine_data();
    void pageOperationLine();
};

void tst_Dialog::escape_data()
{
    QTest::addColumn<bool>("ignoreEscape");
    QTest::addColumn<bool>("staysOpen");
    QTest::newRow("ignoring dialog stays") << true << true;
    QTest::newRow("plain dialog closes") << false << false;
}

void tst_Dialog::escape()
{
    QFETCH(bool, ignoreEscape);
    QFETCH(bool, staysOpen);
    GUI_Dialog dialog(nullptr, Qt::WindowFlags(), ignoreEscape);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(dialog.isVisible(), staysOpen);
}

void tst_Dialog::closeButtonLogsOnce()
{
    GUI_Dialog dialog(nullptr, Qt::WindowFlags(), false);
    dialog.show();
    MessageCapture capture;
    dialog.close();
    dialog.show();
    dialog.accept(); // by code: not through a close event
    const QStringList lines = capture.texts(QtInfoMsg);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first(), QStringLiteral("[USER] \"[URL:GUI_Dialog] [ID:close] [Control:Button] "
                                           "[Operation:clicked] [Value:] \""));
}

void tst_Dialog::enablingPresentCloseButtonKeepsWindow()
{
    GUI_Dialog dialog(nullptr, Qt::Window | Qt::WindowCloseButtonHint, false);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const WId before = dialog.winId();
    emit dialog.signalEnableCloseButton();
    QCOMPARE(dialog.winId(), before);
    QVERIFY(dialog.isVisible());

    emit dialog.signalDisableCloseButton();
    QVERIFY(!(dialog.windowFlags() & Qt::WindowCloseButtonHint));
    QVERIFY(dialog.isVisible()); // changing flags hides a window; the slot shows it again
}

void tst_Dialog::pageOperationLine_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("id wins over class")
        << "x" << "y" << QVariant(1) << "[URL:qrc:/p.html] [ID:x] [Control:Button] [Operation:clicked] [Value:1] ";
    QTest::newRow("class when no id")
        << "" << "y" << QVariant() << "[URL:qrc:/p.html] [Class:y] [Control:Button] [Operation:clicked] [Value:] ";
    QTest::newRow("empty id piece kept")
        << "" << "" << QVariant(false) << "[URL:qrc:/p.html] [ID:] [Control:Button] [Operation:clicked] [Value:false] ";
}

void tst_Dialog::pageOperationLine()
{
    QFETCH(QString, id);
    QFETCH(QString, className);
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    GUI_Dialog dialog(nullptr, Qt::WindowFlags(), false);
    MessageCapture capture;
    dialog.userOperationLogWebView(QStringLiteral("qrc:/p.html"), QStringLiteral("clicked"),
                                   QStringLiteral("Button"), id, className, value);
    QCOMPARE(capture.texts(QtInfoMsg),
             QStringList{QStringLiteral("[USER] \"") + expected + QStringLiteral("\"")});
}

QTEST_MAIN(tst_Dialog)
#include "tst_dialog.moc"
