#include "../MessageCapture.h"

#include "generator/VIGenThread.h"
#include "host/HST_Host.h"
#include "host/HST_Preferences.h"
#include "host/HST_Recorder.h"
#include "util/APP_Exception.h"
#include "util/DOC_ReadFileException.h"
#include "util/FunctionLogGuard.h"
#include "util/GUI_MarqueeProgressDialog.h"
#include "util/UTL_BackgroundTask.h"
#include "util/UTL_Exception.h"
#include "util/UTL_Messages.h"
#include "util/UserOperationLog.h"

#include <QAbstractButton>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>

// The plug-in's utilities: the lines support reads in the log (function trace, user operations,
// exceptions), and the host-facing dialogs (the Yes/No/Cancel box, the running bars and the
// busy-dialog task) against the reference host.
using ButtonTexts = QMap<int, QString>;

namespace {

QString resourceText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll())
                                                            : QString();
}

// Acts on the message box as soon as it is the active modal window.
void whenBoxShows(const std::function<void(QMessageBox*)>& act)
{
    auto* timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, act] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            timer->stop();
            timer->deleteLater();
            act(box);
        }
    });
    timer->start();
}

// Runs the worker under a marquee bar; a bar that never ends its exec() is hidden after ten
// seconds so that the test fails instead of hanging.
bool runGuarded(GUI_MarqueeProgressDialog& dialog, VIGenThread* thread)
{
    bool rescued = false;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [&] {
        rescued = true;
        dialog.hide();
    });
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

class tst_Util : public QObject
{
    Q_OBJECT

private slots:
    void parameterText_data();
    void parameterText();
    void leaveLineOnException();
    void userOperationLine();
    void exceptionLines_data();
    void exceptionLines();
    void init();
    void cleanup();
    void yesNoCancel_data();
    void yesNoCancel();
    void escape_data();
    void escape();
    void worker_data();
    void worker();
    void backgroundTask_data();
    void backgroundTask();

private:
    QTemporaryDir* m_dir = nullptr;
    HST_Recorder* m_recorder = nullptr;
    HST_Host* m_host = nullptr;
};

void tst_Util::parameterText_data()
{
    QTest::addColumn<QString>("parameters");
    QTest::addColumn<QString>("logged");

    QTest::newRow("blanks only come out empty") << QStringLiteral("   ") << QStringLiteral("\"\"");
    QTest::newRow("trailing blank trimmed") << FunctionLogGuard::parameter(
        QStringLiteral("text"), QStringLiteral("Do you want to execute?"))
                                            << QStringLiteral("\"[text:Do you want to execute?]\"");
    QTest::newRow("no document shown as Invalid") << FunctionLogGuard::parameter(
        QStringLiteral("docKey"), -1) << QStringLiteral("\"[docKey:Invalid]\"");
}

void tst_Util::parameterText()
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

void tst_Util::leaveLineOnException()
{
    MessageCapture capture;
    try {
        SYNC_TRACE(QStringLiteral("GUI_X::g"), QString());
        throw std::runtime_error("boom");
    } catch (const std::exception&) {
    }
    QCOMPARE(capture.texts(QtInfoMsg).last(), QStringLiteral("[LEAVE] \"GUI_X::g\""));
}

void tst_Util::userOperationLine()
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

void tst_Util::exceptionLines_data()
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

void tst_Util::exceptionLines()
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

void tst_Util::init()
{
    m_dir = new QTemporaryDir;
    m_recorder = new HST_Recorder;
    m_host = new HST_Host(HST_Scenario(), m_recorder, m_dir->filePath(QStringLiteral("p.ini")));
}

void tst_Util::cleanup()
{
    delete m_host;
    delete m_recorder;
    delete m_dir;
}

void tst_Util::yesNoCancel_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<ButtonTexts>("texts");
    QTest::addColumn<int>("press"); // 0 closes the window
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("yes");
    QTest::addColumn<QString>("cancel");
    QTest::addColumn<QString>("style");

    QTest::newRow("no texts: host's Cancel, native style")
        << "light" << ButtonTexts() << int(QMessageBox::No) << "No"
        << "&Yes"
        << "Cancel"
        << "://ui-native-light.css";
    QTest::newRow("Yes replaced: message box style, theme name case-blind")
        << "DARK" << ButtonTexts { { QMessageBox::Yes, "Save all" } } << int(QMessageBox::Yes)
        << "Yes"
        << "Save all"
        << "Cancel"
        << "://ui-messageBox-dark.css";
    QTest::newRow("Cancel entry wins") << "light" << ButtonTexts { { QMessageBox::Cancel, "Back" } }
                                       << int(QMessageBox::Cancel) << "Cancel"
                                       << "&Yes"
                                       << "Back"
                                       << "://ui-messageBox-light.css";
    QTest::newRow("unknown theme is light, window closed counts as Cancel")
        << "blue" << ButtonTexts() << 0 << "Cancel"
        << "&Yes"
        << "Cancel"
        << "://ui-native-light.css";
}

void tst_Util::yesNoCancel()
{
    QFETCH(QString, theme);
    QFETCH(ButtonTexts, texts);
    QFETCH(int, press);
    QFETCH(QString, answer);
    QFETCH(QString, yes);
    QFETCH(QString, cancel);
    QFETCH(QString, style);
    m_host->setPrefString(QStringLiteral("env/style"), theme);

    QString seenYes, seenNo, seenCancel, seenStyle;
    int depthWhileShown = -1;
    whenBoxShows([&](QMessageBox* box) {
        seenYes = box->button(QMessageBox::Yes)->text();
        seenNo = box->button(QMessageBox::No)->text();
        seenCancel = box->button(QMessageBox::Cancel)->text();
        seenStyle = box->styleSheet();
        depthWhileShown = m_host->modalDepth();
        if (press)
            box->button(QMessageBox::StandardButton(press))->click();
        else
            box->close();
    });
    m_recorder->clear();
    const int result
        = UTL_Messages::confirmYesNoCancel(QStringLiteral("Erase?"), m_host, nullptr, texts);
    QCOMPARE(result, press ? press : int(QMessageBox::Cancel));
    QCOMPARE(seenYes, yes);
    QCOMPARE(seenNo, QStringLiteral("&No"));
    QCOMPARE(seenCancel, cancel);
    QVERIFY(!resourceText(style).isEmpty());
    QCOMPARE(seenStyle, resourceText(style));
    QCOMPARE(depthWhileShown, 1);
    QCOMPARE(m_host->modalDepth(), 0);

    QStringList logged;
    for (const QJsonObject& event : m_recorder->events(QStringLiteral("log")))
        logged.append(event.value(QStringLiteral("text")).toString());
    QVERIFY2(logged.contains(QStringLiteral("\"[Erase?][result:") + answer + QStringLiteral("]\"")),
        qPrintable(logged.join(QLatin1Char('\n'))));
}

void tst_Util::escape_data()
{
    QTest::addColumn<bool>("marquee");
    QTest::addColumn<bool>("ignoreEscape");
    QTest::addColumn<QString>("cancelText");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<bool>("visibleAfter");
    QTest::newRow("bar that ignores Escape stays") << false << true << "Cancel" << 1 << true;
    QTest::newRow("running bar without cancel text: no button, stays")
        << true << true << "" << 0 << true;
    QTest::newRow("running bar with cancel text: one button, still stays")
        << true << true << "Stop" << 1 << true;
}

void tst_Util::escape()
{
    QFETCH(bool, marquee);
    QFETCH(bool, ignoreEscape);
    QFETCH(QString, cancelText);
    QFETCH(int, buttons);
    QFETCH(bool, visibleAfter);
    std::unique_ptr<GUI_ProgressDialog> dialog;
    if (marquee)
        dialog.reset(new GUI_MarqueeProgressDialog(
            nullptr, QStringLiteral("Searching..."), cancelText, !cancelText.isEmpty()));
    else
        dialog.reset(new GUI_ProgressDialog(
            QStringLiteral("l"), cancelText, 0, 0, nullptr, Qt::WindowFlags(), ignoreEscape));
    QCOMPARE(dialog->findChildren<QAbstractButton*>().size(), buttons);
    dialog->show();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    QCOMPARE(dialog->isVisible(), visibleAfter);
}

void tst_Util::worker_data()
{
    QTest::addColumn<bool>("waitsForGui");
    QTest::addColumn<int>("repeat");
    // The worker is done before exec() starts; its reset waits in the queue. Many times over:
    // a thread let go of while it still finishes gets cancelled mid-teardown, which aborts.
    QTest::newRow("worker ending before exec ends it") << false << 200;
    // Only the GUI thread's timer can let the worker go on, so the bar must keep it running.
    QTest::newRow("GUI thread runs while the worker waits") << true << 1;
}

void tst_Util::worker()
{
    QFETCH(bool, waitsForGui);
    QFETCH(int, repeat);
    QThread* gui = QThread::currentThread();
    for (int i = 0; i < repeat; ++i) {
        GUI_MarqueeProgressDialog dialog(nullptr, QString(), QString(), false);
        QSemaphore released;
        std::atomic<bool> onWorker { false };
        auto* thread = new VIGenThread([&] {
            onWorker = QThread::currentThread() != gui;
            return waitsForGui && released.tryAcquire(1, 10000);
        });
        if (waitsForGui)
            QTimer::singleShot(0, [&] { released.release(); });
        QVERIFY(runGuarded(dialog, thread));
        QVERIFY(onWorker);
        QCOMPARE(thread->result(), waitsForGui);
        // Nothing of the worker outlives run().
        QVERIFY(thread->isFinished());
        QVERIFY(!dialog.isVisible());
        delete thread;
    }
}

void tst_Util::backgroundTask_data()
{
    QTest::addColumn<int>("failure");
    QTest::addColumn<bool>("completed");
    QTest::addColumn<QString>("reportedType");
    QTest::addColumn<QString>("reportedText");
    QTest::newRow("success reports nothing") << 0 << true << ""
                                             << "";
    QTest::newRow("APP_Exception reaches the user with its text and code")
        << 1 << false << "APP_Exception"
        << "Reflecting failed";
    QTest::newRow("other exception still reported") << 2 << false << "std::exception"
                                                    << "";
}

void tst_Util::backgroundTask()
{
    QFETCH(int, failure);
    QFETCH(bool, completed);
    QFETCH(QString, reportedType);
    QFETCH(QString, reportedText);
    BoxCloser closer;

    std::atomic<bool> offGuiThread { false };
    QThread* gui = QThread::currentThread();
    const bool result
        = UTL_BackgroundTask::run(m_host, QStringLiteral("Saving..."), [=, &offGuiThread] {
              offGuiThread = QThread::currentThread() != gui;
              if (failure == 1)
                  throw APP_Exception(QStringLiteral("Reflecting failed"), 7);
              if (failure == 2)
                  throw std::runtime_error("plain");
          });
    QCOMPARE(result, completed);
    QVERIFY(offGuiThread);
    const QList<QJsonObject> busy = m_recorder->events(QStringLiteral("busy"));
    QCOMPARE(busy.size(), 1);
    QCOMPARE(busy.first().value(QStringLiteral("text")).toString(), QStringLiteral("Saving..."));
    const QList<QJsonObject> reports = m_recorder->events(QStringLiteral("reportException"));
    QCOMPARE(reports.size(), reportedType.isEmpty() ? 0 : 1);
    if (!reportedType.isEmpty()) {
        QCOMPARE(reports.first().value(QStringLiteral("type")).toString(), reportedType);
        if (!reportedText.isEmpty()) {
            QCOMPARE(reports.first().value(QStringLiteral("text")).toString(), reportedText);
            QCOMPARE(reports.first().value(QStringLiteral("errorCode")).toInt(), 7);
        }
    }
}

QTEST_MAIN(tst_Util)
#include "tst_util.moc"
