#include "generator/VIGenThread.h"
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "util/APP_Exception.h"
#include "util/GUI_MarqueeProgressDialog.h"
#include "util/UTL_BackgroundTask.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <atomic>
#include <functional>
#include <stdexcept>

namespace {

// Runs the worker under a marquee bar; a bar that never ends its exec() is hidden after ten
// seconds so that the test fails instead of hanging.
bool runGuarded(GUI_MarqueeProgressDialog& dialog, VIGenThread* thread)
{
    bool rescued = false;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [&] { rescued = true; dialog.hide(); });
    guard.start(10000);
    thread->setProgressDialog(&dialog);
    dialog.run(thread);
    return !rescued;
}

// Presses OK on every message box the host shows while it lives.
class BoxCloser
{
public:
    BoxCloser()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                box->button(QMessageBox::Ok)->click();
        });
        m_timer.start(10);
    }

private:
    QTimer m_timer;
};

} // namespace

class tst_ProgressDialogs : public QObject
{
    Q_OBJECT

private slots:
    void escape_data();
    void escape();
    void marqueeCancelButton_data();
    void marqueeCancelButton();
    void workerEndingBeforeExecEndsIt();
    void guiThreadRunsWhileWorkerWaits();
    void backgroundTask_data();
    void backgroundTask();
};

void tst_ProgressDialogs::escape_data()
{
    QTest::addColumn<bool>("ignoreEscape");
    QTest::addColumn<bool>("visibleAfter");
    QTest::newRow("ignored") << true << true;
    QTest::newRow("closes like QDialog") << false << false;
}

void tst_ProgressDialogs::escape()
{
    QFETCH(bool, ignoreEscape);
    QFETCH(bool, visibleAfter);
    GUI_ProgressDialog dialog(QStringLiteral("l"), QStringLiteral("Cancel"), 0, 0, nullptr,
                              Qt::WindowFlags(), ignoreEscape);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(dialog.isVisible(), visibleAfter);
}

void tst_ProgressDialogs::marqueeCancelButton_data()
{
    QTest::addColumn<QString>("cancelText");
    QTest::addColumn<bool>("modal");
    QTest::addColumn<int>("buttons");
    QTest::newRow("empty text: no button, Escape does nothing") << "" << false << 0;
    QTest::newRow("with text: one button, application modal") << "Stop" << true << 1;
}

void tst_ProgressDialogs::marqueeCancelButton()
{
    QFETCH(QString, cancelText);
    QFETCH(bool, modal);
    QFETCH(int, buttons);
    GUI_MarqueeProgressDialog dialog(nullptr, QStringLiteral("Searching..."), cancelText, modal);
    QCOMPARE(dialog.findChildren<QAbstractButton*>().size(), buttons);
    QCOMPARE(int(dialog.windowFlags() & (Qt::Tool | Qt::FramelessWindowHint)), 2059);
    QCOMPARE(dialog.windowModality(), modal ? Qt::ApplicationModal : Qt::NonModal);
    QCOMPARE(dialog.maximum(), 0);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
}

void tst_ProgressDialogs::workerEndingBeforeExecEndsIt()
{
    // The worker is done before exec() starts; its reset waits in the queue. Many times over:
    // a thread let go of while it still finishes gets cancelled mid-teardown, which aborts.
    for (int i = 0; i < 200; ++i) {
        GUI_MarqueeProgressDialog dialog(nullptr, QString(), QString(), false);
        auto* thread = new VIGenThread([] { return false; });
        QVERIFY(runGuarded(dialog, thread));
        QVERIFY(thread->isFinished());
        QVERIFY(!thread->result());
        QVERIFY(!dialog.isVisible());
        delete thread;
    }
}

void tst_ProgressDialogs::guiThreadRunsWhileWorkerWaits()
{
    GUI_MarqueeProgressDialog dialog(nullptr, QString(), QString(), false);
    QSemaphore released;
    std::atomic<bool> onWorker{false};
    QThread* gui = QThread::currentThread();
    auto* thread = new VIGenThread([&] {
        onWorker = QThread::currentThread() != gui;
        // Only the GUI thread's timer can let the worker go on.
        return released.tryAcquire(1, 10000);
    });
    QTimer::singleShot(50, [&] { released.release(); });
    QVERIFY(runGuarded(dialog, thread));
    QVERIFY(onWorker);
    QVERIFY(thread->result());
    // Nothing of the worker outlives run().
    QVERIFY(thread->isFinished());
    delete thread;
}

void tst_ProgressDialogs::backgroundTask_data()
{
    QTest::addColumn<int>("failure");
    QTest::addColumn<bool>("completed");
    QTest::addColumn<QString>("reportedType");
    QTest::addColumn<QString>("reportedText");
    QTest::newRow("success reports nothing") << 0 << true << "" << "";
    QTest::newRow("APP_Exception reaches the user with its text and code")
        << 1 << false << "APP_Exception" << "Reflecting failed";
    QTest::newRow("other exception still reported") << 2 << false << "std::exception" << "";
}

void tst_ProgressDialogs::backgroundTask()
{
    QFETCH(int, failure);
    QFETCH(bool, completed);
    QFETCH(QString, reportedType);
    QFETCH(QString, reportedText);
    QTemporaryDir dir;
    HST_Recorder recorder;
    HST_Host host(HST_Scenario(), &recorder, dir.filePath(QStringLiteral("p.ini")));
    BoxCloser closer;

    std::atomic<bool> offGuiThread{false};
    QThread* gui = QThread::currentThread();
    const bool result = UTL_BackgroundTask::run(&host, QStringLiteral("Saving..."), [=, &offGuiThread] {
        offGuiThread = QThread::currentThread() != gui;
        if (failure == 1)
            throw APP_Exception(QStringLiteral("Reflecting failed"), 7);
        if (failure == 2)
            throw std::runtime_error("plain");
    });
    QCOMPARE(result, completed);
    QVERIFY(offGuiThread);
    const QList<QJsonObject> busy = recorder.events(QStringLiteral("busy"));
    QCOMPARE(busy.size(), 1);
    QCOMPARE(busy.first().value(QStringLiteral("text")).toString(), QStringLiteral("Saving..."));
    const QList<QJsonObject> reports = recorder.events(QStringLiteral("reportException"));
    QCOMPARE(reports.size(), reportedType.isEmpty() ? 0 : 1);
    if (!reportedType.isEmpty()) {
        QCOMPARE(reports.first().value(QStringLiteral("type")).toString(), reportedType);
        if (!reportedText.isEmpty()) {
            QCOMPARE(reports.first().value(QStringLiteral("text")).toString(), reportedText);
            QCOMPARE(reports.first().value(QStringLiteral("errorCode")).toInt(), 7);
        }
    }
}

QTEST_MAIN(tst_ProgressDialogs)
#include "tst_progressDialogs.moc"
