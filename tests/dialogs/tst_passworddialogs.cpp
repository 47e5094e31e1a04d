// The password dialogs' checks against the reference host: lengths in bytes of the local
// encoding, which message comes first, and what the callers get on OK and Cancel.
#include "../ScenarioHost.h"

#include "dialogs/GUI_ChangePasswordDialog.h"
#include "dialogs/GUI_InputPasswordDialog.h"
#include "dialogs/JS_Mediator_ChangePasswordDialog.h"
#include "dialogs/JS_Mediator_InputPasswordDialog.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTextCodec>
#include <QTimer>
#include <QtTest>

#include <memory>

class tst_PasswordDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void checkBytes_data();
    void checkBytes();
    void checkPass_data();
    void checkPass();
    void callersGetTheTextsOnlyOnOk_data();
    void callersGetTheTextsOnlyOnOk();

private:
    // "kind: text" of each message box the host showed.
    QStringList messages() const;

    QTemporaryDir m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
    QTimer m_answerer;
};

void tst_PasswordDialogs::initTestCase()
{
    // Bytes are counted in the local encoding; the rows are written for UTF-8.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void tst_PasswordDialogs::init()
{
    m_recorder.reset(new HST_Recorder);
    QString error;
    m_host = makeScenarioHost("{}", m_recorder.get(), m_dir, error);
    QVERIFY2(m_host, qPrintable(error));
    connect(&m_answerer, &QTimer::timeout, this, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    });
    m_answerer.start(10);
}

void tst_PasswordDialogs::cleanup()
{
    m_answerer.stop();
    m_answerer.disconnect();
    m_host.reset();
    m_recorder.reset();
}

QStringList tst_PasswordDialogs::messages() const
{
    QStringList texts;
    for (const QJsonObject& event : m_recorder->events(QStringLiteral("message")))
        texts << event.value(QStringLiteral("kind")).toString() + QStringLiteral(": ")
                + event.value(QStringLiteral("text")).toString();
    return texts;
}

void tst_PasswordDialogs::checkBytes_data()
{
    QTest::addColumn<QString>("pass");
    QTest::addColumn<bool>("passes");
    QTest::newRow("empty: no lower limit") << QString() << true;
    QTest::newRow("exactly 8 bytes") << QStringLiteral("abcdefgh") << true;
    QTest::newRow("9 bytes") << QStringLiteral("abcdefghi") << false;
    QTest::newRow("four two-byte characters are 8 bytes") << QStringLiteral("éééé") << true;
    QTest::newRow("three three-byte characters are 9 bytes") << QStringLiteral("日本語") << false;
    QTest::newRow("10,000 bytes") << QString(10000, QLatin1Char('x')) << false;
}

void tst_PasswordDialogs::checkBytes()
{
    QFETCH(QString, pass);
    QFETCH(bool, passes);
    JS_Mediator_InputPasswordDialog mediator(m_host.get(), QString(), 8);
    QCOMPARE(mediator.checkBytes(pass), passes);
    QCOMPARE(messages(),
        passes ? QStringList() : QStringList { "warning: Please input within 8 bytes." });
}

void tst_PasswordDialogs::checkPass_data()
{
    QTest::addColumn<QStringList>("passes"); // old, new, new again
    QTest::addColumn<QString>("message"); // "" when the check passes
    const QString oldTooLong = QStringLiteral("warning: Please Old Password input within 8 bytes.");
    const QString newTooLong = QStringLiteral("warning: Please New Password input within 8 bytes.");
    QTest::newRow("all empty") << QStringList { "", "", "" } << "";
    QTest::newRow("all at the limit") << QStringList { "abcdefgh", "éééé", "éééé" } << "";
    QTest::newRow("old one byte over") << QStringList { "abcdefghi", "a", "a" } << oldTooLong;
    QTest::newRow("old too long wins over the rest")
        << QStringList { "abcdefghi", "abcdefghi", "b" } << oldTooLong;
    QTest::newRow("first new one byte over, in a multi-byte character")
        << QStringList { "", "abcdefgé", "abcdefgé" } << newTooLong;
    QTest::newRow("second new too long") << QStringList { "", "a", "abcdefghi" } << newTooLong;
    QTest::newRow("both new too long and different: the length is told")
        << QStringList { "", "abcdefghij", "abcdefghi" } << newTooLong;
    QTest::newRow("new ones differ")
        << QStringList { "old", "ab", "ac" } << "error: New Password is different.";
    QTest::newRow("a lone surrogate is compared as it stands")
        << QStringList { "", QString(QChar(0xD800)), "?" } << "error: New Password is different.";
}

void tst_PasswordDialogs::checkPass()
{
    QFETCH(QStringList, passes);
    QFETCH(QString, message);
    JS_Mediator_ChangePasswordDialog mediator(m_host.get(), QString(), QString(), 8);
    QCOMPARE(mediator.checkPass(passes.at(0), passes.at(1), passes.at(2)), message.isEmpty());
    QCOMPARE(messages(), message.isEmpty() ? QStringList() : QStringList { message });
}

void tst_PasswordDialogs::callersGetTheTextsOnlyOnOk_data()
{
    QTest::addColumn<bool>("ok");
    QTest::newRow("OK") << true;
    QTest::newRow("Cancel") << false;
}

void tst_PasswordDialogs::callersGetTheTextsOnlyOnOk()
{
    QFETCH(bool, ok);
    {
        GUI_InputPasswordDialog dialog(m_host.get(), QStringLiteral("start"), 8, nullptr);
        auto* mediator = static_cast<JS_Mediator_InputPasswordDialog*>(dialog.mediator());
        QCOMPARE(mediator->getPassword(), QStringLiteral("start"));
        QCOMPARE(mediator->getMaxPassLen(), 8);
        QTimer::singleShot(0, mediator, [mediator, ok] {
            if (ok)
                mediator->onOk(QStringLiteral("typed"));
            else
                mediator->onCancel();
        });
        QString pass = QStringLiteral("before");
        QCOMPARE(dialog.inputPassword(pass), ok);
        QCOMPARE(pass, ok ? QStringLiteral("typed") : QString());
    }
    {
        GUI_ChangePasswordDialog dialog(
            m_host.get(), QStringLiteral("new"), QStringLiteral("old"), 8, nullptr);
        auto* mediator = static_cast<JS_Mediator_ChangePasswordDialog*>(dialog.mediator());
        QCOMPARE(mediator->getOldPassword(), QStringLiteral("old"));
        QCOMPARE(mediator->getNewPassword(), QStringLiteral("new"));
        QTimer::singleShot(0, mediator, [mediator, ok] {
            if (ok)
                mediator->onOk(QStringLiteral("o"), QStringLiteral("n"));
            else
                mediator->onCancel();
        });
        QString oldPass = QStringLiteral("x");
        QString newPass = QStringLiteral("y");
        QCOMPARE(dialog.changePassword(oldPass, newPass), ok);
        QCOMPARE(oldPass, ok ? QStringLiteral("o") : QString());
        QCOMPARE(newPass, ok ? QStringLiteral("n") : QString());
    }
}

QTEST_MAIN(tst_PasswordDialogs)
#include "tst_passworddialogs.moc"
