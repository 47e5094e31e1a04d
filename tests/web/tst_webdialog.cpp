// The web dialog frame with a real page under the offscreen platform: the mediator as the
// page's global object, what the page gets back, the host's page helpers, and the fence
// around qrc:.
#include "../MessageCapture.h"

#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "web/GUI_Dialog.h"
#include "web/GUI_WebView.h"
#include "web/GUI_WebViewDialog.h"
#include "web/JS_Mediator_Dialog.h"

#include <QTemporaryDir>
#include <QWebFrame>
#include <QWebPage>
#include <QtTest>

#include <memory>

// The reference host with a test's knobs: translation marks what it translated, and mdiWidget
// gives what the test sets.
class WebTestHost : public HST_Host
{
public:
    WebTestHost(HST_Recorder* recorder, const QString& prefsPath)
        : HST_Host(HST_Scenario(), recorder, prefsPath)
    {
    }

    QObject* mdi = nullptr;

    QObject* mdiWidget() override { return mdi; }

    QString translate(const QString& sourceText, int reserved = 0) override
    {
        return QStringLiteral("T(") + HST_Host::translate(sourceText, reserved) + QLatin1Char(')');
    }
};

class tst_WebDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pageGetsPlainValues_data();
    void pageGetsPlainValues();
    void publishedAgainAfterReload();
    void localizeAndOperationLogSeeElements();
    void leavingQrcIsRefused_data();
    void leavingQrcIsRefused();
    void closeButtonMeansCancel();
    void objectElementEmbedsHostWidget_data();
    void objectElementEmbedsHostWidget();
    void plainDialogCloseButtonLogsOnce();
    void enablingPresentCloseButtonKeepsWindow();

private:
    QVariant run(const QString& script);
    QStringList logLines() const;

    QTemporaryDir m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<WebTestHost> m_host;
    std::unique_ptr<GUI_WebViewDialog> m_dialog;
    JS_Mediator_Dialog* m_mediator = nullptr;
};

void tst_WebDialog::init()
{
    m_recorder.reset(new HST_Recorder);
    m_host.reset(new WebTestHost(m_recorder.get(), m_dir.filePath(QStringLiteral("p.ini"))));
    m_mediator = new JS_Mediator_Dialog(m_host.get(), QStringLiteral("test_dialog"));
    m_dialog.reset(new GUI_WebViewDialog(m_host.get(), QStringLiteral("Bridge"),
        QStringLiteral("qrc:/webtest/bridge.html"), m_mediator, nullptr));
    QSignalSpy loaded(m_dialog->webView(), &QWebView::loadFinished);
    QVERIFY(loaded.wait(10000) && loaded.first().first().toBool());
}

void tst_WebDialog::cleanup()
{
    m_dialog.reset();
    m_host.reset();
    m_recorder.reset();
}

QVariant tst_WebDialog::run(const QString& script)
{
    return m_dialog->webView()->page()->mainFrame()->evaluateJavaScript(script);
}

QStringList tst_WebDialog::logLines() const
{
    QStringList lines;
    for (const QJsonObject& event : m_recorder->events(QStringLiteral("log")))
        lines << event.value(QStringLiteral("text")).toString();
    return lines;
}

void tst_WebDialog::pageGetsPlainValues_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("expected");
    QTest::newRow("int preference is a number") << "test_dialog.getPrefInt('t/int', 0)"
                                                << "number:7";
    QTest::newRow("bool preference is a boolean") << "test_dialog.getPrefBool('t/bool', false)"
                                                  << "boolean:true";
    QTest::newRow("string preference without default is a string")
        << "test_dialog.getPrefString('t/text')"
        << "string:abc";
    QTest::newRow("host default fills an invalid default")
        << "test_dialog.getPrefString(PREF_KEY_ENV_STYLE)"
        << "string:light";
    QTest::newRow("unset height is -1") << "test_dialog.getHeight()"
                                        << "number:-1";
    QTest::newRow("translation comes back as text") << "test_dialog.translate('Open %1', 'file')"
                                                    << "string:T(Open T(file))";
    QTest::newRow("a page resource loads as its text")
        << "test_dialog.load('const_pref.js').indexOf('sync/generator/address') >= 0"
        << "boolean:true";
    QTest::newRow("an unknown resource loads as empty text") << "test_dialog.load('no/such.js')"
                                                             << "string:";
}

void tst_WebDialog::pageGetsPlainValues()
{
    QFETCH(QString, expression);
    QFETCH(QString, expected);
    m_host->setPrefInt(QStringLiteral("t/int"), 7);
    m_host->setPrefBool(QStringLiteral("t/bool"), true);
    m_host->setPrefString(QStringLiteral("t/text"), QStringLiteral("abc"));
    QCOMPARE(run(QStringLiteral("(function(v){return typeof v + ':' + v;})(%1)").arg(expression))
                 .toString(),
        expected);
}

void tst_WebDialog::publishedAgainAfterReload()
{
    QVERIFY(run(QStringLiteral("freshWindow = false; 1")).isValid());
    QSignalSpy loaded(m_dialog->webView(), &QWebView::loadFinished);
    m_dialog->webView()->reload();
    QVERIFY(loaded.wait(10000));
    QCOMPARE(run(QStringLiteral("freshWindow")).toBool(), true);
    QCOMPARE(run(QStringLiteral("typeof test_dialog.getPrefString")).toString(),
        QStringLiteral("function"));
    QCOMPARE(run(QStringLiteral("test_dialog.getWidth()")).toInt(), -1);
}

void tst_WebDialog::localizeAndOperationLogSeeElements()
{
    run(QStringLiteral("tarvix4func.localize(test_dialog)"));
    QCOMPARE(run(QStringLiteral("$('#lbl').text() + '|' + $('#btn').val()")).toString(),
        QStringLiteral("T(Address)|T(OK)"));

    run(QStringLiteral("tarvix4func.enableUserOperationLog(test_dialog);"
                       "$('#btn').click(); $('#txt').val('1.2.3.4').change()"));
    const QStringList user = logLines().filter(QStringLiteral("[USER]"));
    QCOMPARE(user.size(), 2);
    QVERIFY2(user[0].contains("[ID:btn]") && user[0].contains("clicked"), qPrintable(user[0]));
    QVERIFY2(
        user[1].contains("[ID:txt]") && user[1].contains("[Value:1.2.3.4]"), qPrintable(user[1]));
    QVERIFY(user[0].contains("qrc:/webtest/bridge.html"));
}

void tst_WebDialog::leavingQrcIsRefused_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("logged");
    QTest::newRow("assigning the location") << "window.location.href = 'http://127.0.0.1:47101/x'"
                                            << "navigation refused";
    QTest::newRow("following a link") << "document.getElementById('away').click()"
                                      << "navigation refused";
    // A high port: WebKit itself blocks well-known ones such as 9 before any request is made.
    QTest::newRow("loading a script")
        << "var s = document.createElement('script'); s.src = 'http://127.0.0.1:47101/s.js';"
           " document.body.appendChild(s)"
        << "request refused";
    QTest::newRow("a request by script")
        << "var x = new XMLHttpRequest(); x.open('GET', 'http://127.0.0.1:47101/x'); x.send()"
        << "request refused";
    QTest::newRow("a file of the machine") << "window.location.href = 'file:///etc/hostname'"
                                           << "navigation refused";
}

void tst_WebDialog::leavingQrcIsRefused()
{
    QFETCH(QString, script);
    QFETCH(QString, logged);
    run(script);
    QTRY_VERIFY_WITH_TIMEOUT(!logLines().filter(logged).isEmpty(), 5000);
    QCOMPARE(m_dialog->webView()->url().toString(), QStringLiteral("qrc:/webtest/bridge.html"));
    QCOMPARE(run(QStringLiteral("freshWindow")).toBool(), true);
}

void tst_WebDialog::closeButtonMeansCancel()
{
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("T(Bridge)"));
    QSignalSpy rejected(m_mediator, &JS_Mediator_Dialog::rejected);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(m_dialog->isVisible());
    m_dialog->close();
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(rejected.size(), 1);

    // Announced once when made, ended once when gone.
    m_dialog.reset();
    const auto modal = m_recorder->events(QStringLiteral("modal"));
    QCOMPARE(modal.size(), 2);
    QCOMPARE(modal.last().value(QStringLiteral("op")).toString(), QStringLiteral("end"));
}

void tst_WebDialog::objectElementEmbedsHostWidget_data()
{
    QTest::addColumn<QString>("classid");
    QTest::addColumn<bool>("embedded");
    QTest::newRow("mdi is the host's MDI widget") << "mdi" << true;
    QTest::newRow("a plug-in the host lacks stays empty") << "histogram" << false;
    QTest::newRow("an unknown class stays empty") << "nothing" << false;
}

void tst_WebDialog::objectElementEmbedsHostWidget()
{
    QFETCH(QString, classid);
    QFETCH(bool, embedded);
    QPointer<QWidget> mdi = new QWidget;
    m_host->mdi = mdi;
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    run(QStringLiteral("var o = document.createElement('object');"
                       " o.type = 'application/x-qt-plugin'; o.setAttribute('classid', '%1');"
                       " o.width = 40; o.height = 40; document.body.appendChild(o);"
                       " o.offsetWidth")
            .arg(classid));
    // Reading offsetWidth lays the page out, which makes the plug-in object there and then;
    // embedding makes the widget a child of the view.
    QCOMPARE(mdi && mdi->parent() != nullptr, embedded);
    m_dialog.reset();
    delete mdi;
}

// The base dialog under every plug-in window.
void tst_WebDialog::plainDialogCloseButtonLogsOnce()
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

void tst_WebDialog::enablingPresentCloseButtonKeepsWindow()
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

QTEST_MAIN(tst_WebDialog)
#include "tst_webdialog.moc"
