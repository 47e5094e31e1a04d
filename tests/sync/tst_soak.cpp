#include "../ProcessUsage.h"
#include "host/HST_Application.h"
#include "host/HST_MainWindow.h"
#include "host/HST_Recorder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QPixmapCache>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

// Opening the sync dialog, changing choices and leaving it, many times over: the plug-in lives
// in the host's process for a whole recording session, so nothing may pile up.
class tst_Soak : public QObject
{
    Q_OBJECT

private slots:
    void dialogCycles();
};

namespace {

// Answers "No" to the question on leaving, and OK to anything else.
void answerBoxes()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    QAbstractButton* button = box->button(QMessageBox::No);
    if (!button)
        button = box->buttons().value(0);
    button->click();
}

} // namespace

void tst_Soak::dialogCycles()
{
    const int cycles = qEnvironmentVariableIntValue("SYNC_SOAK_CYCLES") > 0
                           ? qEnvironmentVariableIntValue("SYNC_SOAK_CYCLES")
                           : 500;
    QTemporaryDir dir;
    HST_Options options;
    options.scenarioJson = "{\"syncCapableTypes\": [1], \"cameras\": ["
                           "{\"ip\": \"10.0.0.1\", \"type\": 1}, {\"ip\": \"10.0.0.2\", \"type\": 1},"
                           "{\"ip\": \"10.0.0.3\", \"type\": 1}], \"hubs\": [{\"ip\": \"10.0.1.1\"}]}";
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = dir.filePath(QStringLiteral("prefs.ini"));
    HST_Application application(options);
    QCOMPARE(application.start(), 0);
    // Styles cache what they draw in Qt's pixmap cache, keyed anew for each new dialog and kept
    // up to the cache's limit (emptying it before each reading still left about 3 KB a cycle).
    // That memory is Qt's, bounded, and not the plug-in's; with the cache off, what grows is ours.
    QPixmapCache::setCacheLimit(0);
    // Quiet: every cycle writes dozens of trace lines.
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});

    QTimer boxes;
    boxes.setInterval(1);
    connect(&boxes, &QTimer::timeout, &answerBoxes);
    boxes.start();

    int done = 0;
    ProcessUsage::Usage after50;
    QTimer driver;
    driver.setInterval(1);
    connect(&driver, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog->objectName() != QLatin1String("GUI_SyncControl"))
            return;
        auto* distributor = dialog->findChild<QComboBox*>(QStringLiteral("NRack_comboBox"));
        distributor->setCurrentIndex((done % 2) + 1);
        dialog->findChild<QRadioButton*>(done % 3 ? QStringLiteral("sync_external_radio")
                                                  : QStringLiteral("sync_chain_radio"))
            ->click();
        dialog->findChild<QAbstractButton*>(QStringLiteral("cancel_button"))->click();
    });
    driver.start();

    for (done = 0; done < cycles; ++done) {
        QVERIFY(application.mainWindow()->press(QStringLiteral("synccontrol")));
        // The host's record of the run is the harness's, not the plug-in's.
        application.recorder()->clear();
        if (done == 49)
            after50 = ProcessUsage::current();
    }
    driver.stop();
    boxes.stop();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const ProcessUsage::Usage last = ProcessUsage::current();
    qInstallMessageHandler(previous);

    const double growth = ProcessUsage::growth(after50, last);
    qInfo("soak: %d dialog cycles; RSS after 50: %lld kB, after %d: %lld kB (%+.1f %%); "
          "threads %d -> %d; open files %d -> %d",
          cycles, after50.rssKb, cycles, last.rssKb, growth * 100, after50.threads, last.threads,
          after50.files, last.files);
    if (cycles >= 100 && ProcessUsage::memoryGrowthMeaningful)
        QVERIFY2(growth < 0.05, "memory grows with each opening of the dialog");
    QVERIFY(last.threads <= after50.threads);
    QVERIFY(last.files <= after50.files);
}

QTEST_MAIN(tst_Soak)
#include "tst_soak.moc"
