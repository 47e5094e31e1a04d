#include "../MessageCapture.h"

#include "web/GUI_Dialog.h"

#include <QtTest>

class tst_Dialog : public QObject
{
    Q_OBJECT

private slots:
    void closeButtonLogsOnce();
    void enablingPresentCloseButtonKeepsWindow();
};

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
    QCOMPARE(lines.first(),
        QStringLiteral("[USER] \"[URL:GUI_Dialog] [ID:close] [Control:Button] "
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

QTEST_MAIN(tst_Dialog)
#include "tst_dialog.moc"
