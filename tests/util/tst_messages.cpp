#include "host/HST_Host.h"
#include "host/HST_Preferences.h"
#include "host/HST_Recorder.h"
#include "util/UTL_Messages.h"

#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

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

} // namespace

class tst_Messages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void yesNoCancel_data();
    void yesNoCancel();

private:
    QTemporaryDir* m_dir = nullptr;
    HST_Recorder* m_recorder = nullptr;
    HST_Host* m_host = nullptr;
};

void tst_Messages::init()
{
    m_dir = new QTemporaryDir;
    m_recorder = new HST_Recorder;
    m_host = new HST_Host(HST_Scenario(), m_recorder, m_dir->filePath(QStringLiteral("p.ini")));
}

void tst_Messages::cleanup()
{
    delete m_host;
    delete m_recorder;
    delete m_dir;
}

void tst_Messages::yesNoCancel_data()
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

void tst_Messages::yesNoCancel()
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

QTEST_MAIN(tst_Messages)
#include "tst_messages.moc"
