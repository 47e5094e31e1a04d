// The generator connect dialog end to end: the plug-in's page in a real web view, the reference
// host (its page resources, message boxes and script steps), our VISA library and the simulated
// instrument. Inside a private network namespace.
#include "../NetNamespace.h"

#include "generator/DOC_VIGen.h"
#include "generator/GUI_SyncSignalGeneratorConnect.h"
#include "host/HST_Application.h"
#include "host/HST_GeneratorSimulator.h"
#include "host/HST_Host.h"
#include "host/HST_Preferences.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "host/HST_ScriptRunner.h"
#include "web/GUI_WebView.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {

const QString addressKey = QStringLiteral("sync/generator/address");
const QString couldNotConnect = QStringLiteral("Could not connect with signal generator");

QJsonObject js(const QString& code)
{
    return { { QStringLiteral("js"), code } };
}

QJsonObject pressOk(const QString& text)
{
    return js(QStringLiteral("$('#signal_generator_address_textbox').val('%1');"
                             " $('#signal_generator_ok').click(); 'pressed'")
                  .arg(text));
}

} // namespace

class tst_ConnectDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void okButton_data();
    void okButton();
    void syncDialogButtonPutsOldAddressBack();

private:
    QTemporaryDir m_dir;
};

void tst_ConnectDialog::initTestCase()
{
    REQUIRE_PRIVATE_NETWORK();
    if (HST_GeneratorSimulator::executable().isEmpty())
        QSKIP("the simulator was not built");
    qputenv("SYNC_VISA_LIBRARY", VXIVISA_FILE);
    // Short, so that the silent instrument is quick; every bound scales with it.
    qputenv("SYNC_VISA_TIMEOUT_MS", "400");
}

void tst_ConnectDialog::okButton_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<bool>("traffic");

    QTest::newRow("supported instrument is accepted and stays connected")
        << "127.0.0.1" << QString() << true;
    QTest::newRow("empty text closes at once without traffic") << QString() << QString() << false;
    QTest::newRow("text that is no address keeps it open without traffic")
        << "signal" << couldNotConnect << false;
    QTest::newRow("unreachable address keeps it open") << "127.0.0.2" << couldNotConnect << false;
}

void tst_ConnectDialog::okButton()
{
    QFETCH(QString, text);
    QFETCH(QString, warning);
    QFETCH(bool, traffic);

    const QString commandLog = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()));
    HST_GeneratorSimulator simulator;
    QString problem;
    QVERIFY2(simulator.start({ { "listen", "127.0.0.1" }, { "log", commandLog } }, problem),
        qPrintable(problem));

    HST_Recorder recorder;
    HST_Host host(HST_Scenario(), &recorder, m_dir.filePath(QStringLiteral("prefs.ini")));
    host.setPrefString(addressKey, QStringLiteral("old"));
    DOC_VIGen driver(&host);
    QVERIFY(driver.loadLibrary());

    QJsonArray steps { pressOk(text) };
    if (!warning.isEmpty()) {
        steps.append(QJsonObject { { "click", "OK" } });
        steps.append(js(QStringLiteral("$('#signal_generator_cancel').click()")));
    }
    HST_ScriptRunner runner(&recorder);
    runner.setSteps(steps);
    runner.setStepTimeout(15000);
    int result = -1;
    {
        GUI_SyncSignalGeneratorConnect dialog(&host, nullptr, &driver);
        // The steps act on the page, so they start once it is complete.
        connect(dialog.webView(), &QWebView::loadFinished, &runner, [&runner] { runner.start(); });
        QTimer::singleShot(60000, &dialog, [&dialog] { dialog.done(-2); });
        result = dialog.exec();
    }
    QTRY_VERIFY(runner.isFinished());
    QVERIFY2(!runner.hasFailed(), qPrintable(runner.failure()));

    QCOMPARE(result, warning.isEmpty() ? 1 : 0);
    QStringList warnings;
    for (const QJsonObject& message : recorder.events(QStringLiteral("message")))
        warnings << message.value(QStringLiteral("text")).toString();
    QCOMPARE(warnings, warning.isEmpty() ? QStringList() : QStringList { warning });
    // The page writes what was tried; putting the old value back is the caller's part.
    QString stored;
    QCOMPARE(host.getPrefString(stored, addressKey, QVariant()), text);

    QFile log(commandLog);
    const bool sent = log.open(QIODevice::ReadOnly) && log.size() > 0;
    QCOMPARE(sent, traffic);
    const bool accepted = warning.isEmpty() && !text.isEmpty();
    QCOMPARE(driver.isConnected(), accepted);
    driver.disconnect();
}

// The same through the reference host's run of the plug-in file and the sync dialog's button:
// the scenario key starts the simulator, and the old address returns when the dialog is
// cancelled.
void tst_ConnectDialog::syncDialogButtonPutsOldAddressBack()
{
    HST_Options options;
    options.scenarioJson = R"({"generator": {}, "cameras": [{}, {}],
                               "prefs": {"sync/generator/address": "old"}})";
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir.filePath(QStringLiteral("host.ini"));
    options.press = QStringLiteral("synccontrol");
    options.quit = true;
    // The js step doesn't wait for the page's load: generous, for sanitizer builds under load.
    options.steps = QJsonArray { QJsonObject { { "click", "connect_signal_generator_button" } },
        QJsonObject { { "wait", 5000 } }, pressOk("127.0.0.5"), QJsonObject { { "click", "OK" } },
        js(QStringLiteral("$('#signal_generator_cancel').click()")),
        QJsonObject { { "click", "Sync quit" } } };
    HST_Application application(options);
    QCOMPARE(application.run(), 0);

    QStringList warnings;
    for (const QJsonObject& message : application.recorder()->events(QStringLiteral("message")))
        warnings << message.value(QStringLiteral("text")).toString();
    QCOMPARE(warnings, QStringList { couldNotConnect });
    QSettings stored(options.prefsFile, QSettings::IniFormat);
    QCOMPARE(stored.value(addressKey).toString(), QStringLiteral("old"));
}

int main(int argc, char** argv)
{
    NetNamespace::enterPrivateNetwork(argc, argv);
    QApplication app(argc, argv);
    tst_ConnectDialog test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_connectDialog.moc"
