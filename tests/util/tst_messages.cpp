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
    void labelsAndStyle_data();
    void labelsAndStyle();
    void answers_data();
    void answers();
    void buttonNames();

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

void tst_Messages::labelsAndStyle_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<ButtonTexts>("texts");
    QTest::addColumn<QString>("yes");
    QTest::addColumn<QString>("cancel");
    QTest::addColumn<QString>("style");

    QTest::newRow("no texts: host's Cancel, native style")
        << "light" << ButtonTexts() << "&Yes" << "Cancel" << "://ui-native-light.css";
    QTest::newRow("Yes replaced: message box style, theme name case-blind")
        << "DARK" << ButtonTexts{{QMessageBox::Yes, "Save all"}} << "Save all" << "Cancel"
        << "://ui-messageBox-dark.css";
    QTest::newRow("Cancel entry wins")
        << "light" << ButtonTexts{{QMessageBox::Cancel, "Back"}} << "&Yes" << "Back"
        << "://ui-messageBox-light.css";
    QTest::newRow("unknown theme is light")
        << "blue" << ButtonTexts() << "&Yes" << "Cancel" << "://ui-native-light.css";
}

void tst_Messages::labelsAndStyle()
{
    QFETCH(QString, theme);
    QFETCH(ButtonTexts, texts);
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
        box->button(QMessageBox::No)->click();
    });
    const int answer = UTL_Messages::confirmYesNoCancel(QStringLiteral("Go on?"), m_host, nullptr,
                                                        texts);
    QCOMPARE(answer, int(QMessageBox::No));
    QCOMPARE(seenYes, yes);
    QCOMPARE(seenNo, QStringLiteral("&No"));
    QCOMPARE(seenCancel, cancel);
    QVERIFY(!resourceText(style).isEmpty());
    QCOMPARE(seenStyle, resourceText(style));
    QCOMPARE(depthWhileShown, 1);
    QCOMPARE(m_host->modalDepth(), 0);
}

void tst_Messages::answers_data()
{
    QTest::addColumn<int>("press");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QString>("name");
    QTest::newRow("yes") << int(QMessageBox::Yes) << int(QMessageBox::Yes) << "Yes";
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << int(QMessageBox::Cancel) << "Cancel";
    QTest::newRow("window closed counts as cancel") << 0 << int(QMessageBox::Cancel) << "Cancel";
}

void tst_Messages::answers()
{
    QFETCH(int, press);
    QFETCH(int, expected);
    QFETCH(QString, name);
    whenBoxShows([press](QMessageBox* box) {
        if (press)
            box->button(QMessageBox::StandardButton(press))->click();
        else
            box->close();
    });
    m_recorder->clear();
    const int answer = UTL_Messages::confirmYesNoCancel(QStringLiteral("Erase?"), m_host, nullptr,
                                                        {});
    QCOMPARE(answer, expected);
    QStringList logged;
    for (const QJsonObject& event : m_recorder->events(QStringLiteral("log")))
        logged.append(event.value(QStringLiteral("text")).toString());
    QVERIFY2(logged.contains(QStringLiteral("\"[Erase?][result:") + name + QStringLiteral("]\"")),
             qPrintable(logged.join(QLatin1Char('\n'))));
    QVERIFY(logged.contains(
        QStringLiteral("[ENTER] \"UTL_Messages::confirmYesNoCancel\" \"[text:Erase?]\"")));
}

void tst_Messages::buttonNames()
{
    QCOMPARE(UTL_Messages::buttonName(QMessageBox::Ok), QStringLiteral("Ok"));
    QCOMPARE(UTL_Messages::buttonName(QMessageBox::Save), QStringLiteral("Save"));
    QCOMPARE(UTL_Messages::buttonName(QMessageBox::Abort), QString());
}

QTEST_MAIN(tst_Messages)
#include "tst_messages.moc"
