#include "host/HST_Recorder.h"
#include "host/HST_ScriptRunner.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QWebFrame>
#include <QWebView>
#include <QtTest>

namespace {

// A form with one of each widget a step can set, and a button that opens a nested box, as the
// plug-in's dialogs do.
struct Form
{
    QDialog dialog;
    QLineEdit* edit = new QLineEdit(&dialog);
    QComboBox* combo = new QComboBox(&dialog);
    QCheckBox* check = new QCheckBox(QStringLiteral("Check"), &dialog);
    QRadioButton* first = new QRadioButton(QStringLiteral("First"), &dialog);
    QRadioButton* second = new QRadioButton(QStringLiteral("Second"), &dialog);
    QPushButton* nested = new QPushButton(QStringLiteral("&Ask"), &dialog);
    QPushButton* done = new QPushButton(QStringLiteral("Done"), &dialog);
    int secondClicks = 0;
    int checkClicks = 0;
    int nestedAnswer = -1;

    Form()
    {
        edit->setObjectName(QStringLiteral("name_edit"));
        combo->setObjectName(QStringLiteral("kind_combo"));
        combo->addItems({ QStringLiteral("Zero"), QStringLiteral("One"), QStringLiteral("Two") });
        check->setObjectName(QStringLiteral("check"));
        first->setObjectName(QStringLiteral("first_radio"));
        second->setObjectName(QStringLiteral("second_radio"));
        done->setObjectName(QStringLiteral("done_button"));
        auto* layout = new QVBoxLayout(&dialog);
        for (QWidget* widget : { static_cast<QWidget*>(edit), static_cast<QWidget*>(combo),
                 static_cast<QWidget*>(check), static_cast<QWidget*>(first),
                 static_cast<QWidget*>(second), static_cast<QWidget*>(nested),
                 static_cast<QWidget*>(done) })
            layout->addWidget(widget);
        QObject::connect(second, &QRadioButton::clicked, [this] { ++secondClicks; });
        QObject::connect(check, &QCheckBox::clicked, [this] { ++checkClicks; });
        QObject::connect(done, &QPushButton::clicked, &dialog, &QDialog::accept);
        QObject::connect(nested, &QPushButton::clicked, [this] {
            nestedAnswer = QMessageBox::question(
                &dialog, QString(), QStringLiteral("Sure?"), QMessageBox::Yes | QMessageBox::No);
        });
    }
};

QJsonArray steps(const QByteArray& json)
{
    QJsonArray parsed;
    QString error;
    if (!HST_ScriptRunner::parse(json, QStringLiteral("script"), parsed, error))
        qFatal("%s", qPrintable(error));
    return parsed;
}

} // namespace

class tst_ScriptRunner : public QObject
{
    Q_OBJECT

private slots:
    void stepsDriveModalForm();
    void missingTargetFailsAndClosesWindows_data();
    void missingTargetFailsAndClosesWindows();
    void busyDialogIsWaitedThrough();
    void scriptRunsInWebDialogPage();
    void refusesMalformedScript_data();
    void refusesMalformedScript();
};

void tst_ScriptRunner::stepsDriveModalForm()
{
    HST_Recorder recorder;
    HST_ScriptRunner runner(&recorder);
    runner.setSteps(steps(R"([
        {"set": ["name_edit", "Front"]},
        {"set": ["kind_combo", "Two"]},
        {"set": ["check", true]},
        {"set": ["second_radio", true]},
        {"set": ["second_radio", true]},
        {"click": "Ask"},
        {"click": "No"},
        {"wait": 100},
        {"click": "done_button"}
    ])"));
    QSignalSpy finished(&runner, &HST_ScriptRunner::finished);
    Form form;
    runner.start();
    QCOMPARE(form.dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(form.edit->text(), QStringLiteral("Front"));
    QCOMPARE(form.combo->currentIndex(), 2);
    QVERIFY(form.check->isChecked());
    QCOMPARE(form.checkClicks, 1);
    // A checked radio button is clicked again, as a user can: its slots run twice.
    QVERIFY(form.second->isChecked());
    QCOMPARE(form.secondClicks, 2);
    // The nested box opened by a step was answered by the next step.
    QCOMPARE(form.nestedAnswer, int(QMessageBox::No));
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().toBool(), true);
    QCOMPARE(recorder.events(QStringLiteral("step")).size(), 9);
}

void tst_ScriptRunner::missingTargetFailsAndClosesWindows_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("failure");

    QTest::newRow("no such button")
        << QByteArray(R"([{"set": ["check", true]}, {"click": "Nope"}])")
        << "script step 2 {\"click\":\"Nope\"}";
    QTest::newRow("combo text not offered")
        << QByteArray(R"([{"set": ["kind_combo", "Nine"]}])") << "script step 1";
    QTest::newRow("disabled button is not clicked")
        << QByteArray(R"([{"click": "Done"}])") << "script step 1";
}

void tst_ScriptRunner::missingTargetFailsAndClosesWindows()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, failure);
    HST_Recorder recorder;
    HST_ScriptRunner runner(&recorder);
    runner.setSteps(steps(script));
    runner.setStepTimeout(300);
    Form form;
    form.done->setEnabled(false);
    runner.start();
    // The failed runner rejects the dialog, so that whoever opened it gets control back.
    QCOMPARE(form.dialog.exec(), int(QDialog::Rejected));
    QVERIFY(runner.hasFailed());
    QVERIFY2(runner.failure().startsWith(failure), qPrintable(runner.failure()));
    QVERIFY(runner.failure().contains(QLatin1String("found nothing to act on")));
    QCOMPARE(recorder.events(QStringLiteral("scriptError")).size(), 1);
    runner.stop();
}

void tst_ScriptRunner::busyDialogIsWaitedThrough()
{
    HST_Recorder recorder;
    HST_ScriptRunner runner(&recorder);
    runner.setSteps(steps(R"([{"click": "Done"}])"));
    runner.setStepTimeout(200);
    Form form;
    // A busy dialog over the form for longer than a step may wait: not a failure.
    QTimer::singleShot(0, [] {
        QProgressDialog busy(QStringLiteral("Working"), QString(), 0, 0);
        busy.setWindowModality(Qt::ApplicationModal);
        busy.setMinimumDuration(0);
        busy.show();
        QEventLoop loop;
        QTimer::singleShot(700, &loop, &QEventLoop::quit);
        loop.exec();
    });
    runner.start();
    QCOMPARE(form.dialog.exec(), int(QDialog::Accepted));
    QVERIFY2(!runner.hasFailed(), qPrintable(runner.failure()));
}

void tst_ScriptRunner::scriptRunsInWebDialogPage()
{
    HST_Recorder recorder;
    HST_ScriptRunner runner(&recorder);
    runner.setSteps(steps(R"steps([{"js": "document.getElementById('n').value = 'Rear'; 6 * 7"},
                             {"js": "document.getElementById('ok').click()"}])steps"));
    runner.setStepTimeout(5000);
    QDialog dialog;
    auto* view = new QWebView(&dialog);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(view);
    QString submitted;
    // The page reports back through its title, as a page would through its mediator.
    connect(view, &QWebView::titleChanged, &dialog, [&](const QString& title) {
        submitted = title;
        dialog.accept();
    });
    view->setHtml(QStringLiteral("<input id='n'><button id='ok' "
                                 "onclick=\"document.title = document.getElementById('n').value\">"
                                 "OK</button>"));
    runner.start();
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY2(!runner.hasFailed(), qPrintable(runner.failure()));
    QCOMPARE(submitted, QStringLiteral("Rear"));
    const QList<QJsonObject> results = recorder.events(QStringLiteral("js"));
    QCOMPARE(results.size(), 2);
    QCOMPARE(results.first().value("result").toInt(), 42);
}

void tst_ScriptRunner::refusesMalformedScript_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem");
    QTest::newRow("not JSON") << QByteArray("[{") << "script: not JSON";
    QTest::newRow("not a list") << QByteArray("{}") << "script: expected a list of steps";
    QTest::newRow("unknown step") << QByteArray(R"([{"wait": 1}, {"press": "x"}])")
                                  << "script: step 2: unknown step \"press\"";
    QTest::newRow("two keys in a step") << QByteArray(R"([{"click": "a", "wait": 1}])")
                                        << "script: step 1: expected an object with one key";
    QTest::newRow("set without value")
        << QByteArray(R"([{"set": ["name_edit"]}])") << "script: step 1: bad value for \"set\"";
    QTest::newRow("negative wait")
        << QByteArray(R"([{"wait": -5}])") << "script: step 1: bad value for \"wait\"";
}

void tst_ScriptRunner::refusesMalformedScript()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, problem);
    QJsonArray parsed;
    QString error;
    QVERIFY(!HST_ScriptRunner::parse(json, QStringLiteral("script"), parsed, error));
    QVERIFY2(error.startsWith(problem), qPrintable(error));
}

QTEST_MAIN(tst_ScriptRunner)
#include "tst_scriptrunner.moc"
