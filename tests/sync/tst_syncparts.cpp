#include "../ScenarioHost.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "sync/GUI_SyncControlSearchSetting.h"
#include "sync/GUI_SyncControlSetting.h"
#include "sync/SyncCameraOrder.h"
#include "util/UTL_TextHelpers.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <memory>
#include <vector>

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButton)

namespace {

const char hubsJson[] = R"({"hubs": [
    {"ip": "10.0.0.1", "firmware": "2.1.0"},
    {"ip": "10.0.0.2", "changeAddress": {"result": "error", "message": "Refused.", "delayMs": 300}},
    {"ip": "10.0.0.3"}]})";

QStringList fieldTexts(QDialog* dialog)
{
    QStringList texts;
    for (int i = 1; i <= 4; ++i)
        texts << dialog->findChild<QLineEdit*>(QStringLiteral("ipLineEdit%1").arg(i))->text();
    return texts;
}

// Types as a user would, or pastes a text marked "paste:", so the validators have their say;
// an empty list keeps the fields.
void typeOctets(QDialog* dialog, const QStringList& octets)
{
    for (int i = 0; i < octets.size(); ++i) {
        auto* field = dialog->findChild<QLineEdit*>(QStringLiteral("ipLineEdit%1").arg(i + 1));
        field->clear();
        QString text = octets.at(i);
        if (text.startsWith(QLatin1String("paste:")))
            field->insert(text.mid(6));
        else
            QTest::keyClicks(field, text);
    }
}

QPushButton* boxButton(QDialog* dialog, QDialogButtonBox::StandardButton which)
{
    return dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->button(which);
}

QStringList tableTexts(QDialog* dialog)
{
    auto* table = dialog->findChild<QTableWidget*>(QStringLiteral("tableWidget"));
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row)
        texts << table->item(row, 0)->text();
    return texts;
}

// Cameras written as "address flag class", e.g. "10.0.0.2 1 0"; all in one trigger mode.
class CameraSet
{
public:
    CameraSet(const QStringList& rows, int triggerMode)
    {
        for (const QString& row : rows) {
            const QStringList f = row.split(QLatin1Char(' '));
            auto state = std::make_unique<HST_CameraState>();
            state->spec.ip = f.at(0);
            state->spec.exposureTimingFlag = f.at(1).toInt();
            state->spec.exposureTimingClass = f.at(2).toInt();
            state->spec.triggerMode = triggerMode;
            auto doc = std::make_unique<HST_Document>(int(m_docs.size()), state.get(), 0);
            state->primary = doc.get();
            cameras.append(doc->asCamera());
            m_states.push_back(std::move(state));
            m_docs.push_back(std::move(doc));
        }
    }

    QList<DOC_Camera*> cameras;

private:
    std::vector<std::unique_ptr<HST_CameraState>> m_states;
    std::vector<std::unique_ptr<HST_Document>> m_docs;
};

QStringList addresses(const QList<DOC_Camera*>& cameras)
{
    QStringList result;
    for (DOC_Camera* camera : cameras)
        result.append(camera->ipAddress(true));
    return result;
}

} // namespace

// The sync parts on their own against the reference host's objects: the hub address dialogs
// and the order in which cameras are synced.
class tst_SyncParts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void formsStartFromTheHost();
    void searchList_data();
    void searchList();
    void changeAddress_data();
    void changeAddress();
    void sort_data();
    void sort();
    void candidates_data();
    void candidates();

private:
    QStringList hostAddresses();
    QList<QJsonObject> linkCoreCalls(const QString& op);
    QStringList shown(const QString& call);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
    QTimer m_answerer;
    bool m_sawBusyDialog = false;
};

void tst_SyncParts::init()
{
    m_dir.reset(new QTemporaryDir);
    m_recorder.reset(new HST_Recorder);
    QString error;
    m_host = makeScenarioHost(hubsJson, m_recorder.get(), *m_dir, error);
    QVERIFY2(m_host, qPrintable(error));
    // Every message box is answered; the busy dialog can only be watched.
    m_sawBusyDialog = false;
    m_answerer.setInterval(10);
    connect(&m_answerer, &QTimer::timeout, this, [this] {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal))
            box->button(QMessageBox::Ok)->click();
        else if (qobject_cast<QProgressDialog*>(modal))
            m_sawBusyDialog = true;
    });
    m_answerer.start();
}

void tst_SyncParts::cleanup()
{
    m_answerer.stop();
    m_answerer.disconnect();
    m_host.reset();
    m_recorder.reset();
    m_dir.reset();
}

QStringList tst_SyncParts::hostAddresses()
{
    QStringList list;
    m_host->addresses(list, true);
    return list;
}

QList<QJsonObject> tst_SyncParts::linkCoreCalls(const QString& op)
{
    QList<QJsonObject> calls;
    for (const QJsonObject& event : m_recorder->events(QStringLiteral("linkCore"))) {
        if (event.value(QStringLiteral("op")).toString() == op)
            calls.append(event);
    }
    return calls;
}

// Texts of the message boxes ("message") or reported exceptions ("reportException").
QStringList tst_SyncParts::shown(const QString& call)
{
    QStringList texts;
    for (const QJsonObject& event : m_recorder->events(call))
        texts << event.value(QStringLiteral("text")).toString();
    return texts;
}

void tst_SyncParts::formsStartFromTheHost()
{
    m_host->addSearchAddress(QStringLiteral("10.0.0.4"));
    GUI_SyncControlSearchSetting search(m_host.get(), nullptr);
    QCOMPARE(fieldTexts(&search), QStringList({ "192", "168", "0", "100" }));
    QCOMPARE(tableTexts(&search), hostAddresses());
    QCOMPARE(search.findChild<QTableWidget*>()->horizontalHeaderItem(0)->text(),
        QStringLiteral("IP address"));

    GUI_SyncControlSetting known(m_host.get(), QStringLiteral("10.0.0.1"), nullptr);
    QCOMPARE(fieldTexts(&known), QStringList({ "10", "0", "0", "1" }));
    QCOMPARE(
        known.findChild<QLabel*>(QStringLiteral("version_label"))->text(), QStringLiteral("2.1.0"));

    GUI_SyncControlSetting notAnAddress(m_host.get(), QStringLiteral("hub-1"), nullptr);
    QCOMPARE(fieldTexts(&notAnAddress), QStringList({ "", "", "", "" }));
    QCOMPARE(notAnAddress.findChild<QLabel*>(QStringLiteral("version_label"))->text(),
        QStringLiteral("0.0.0"));
}

void tst_SyncParts::searchList_data()
{
    // Actions: "a.b.c.d" typed into the fields ("paste:" before an octet pastes it), "add",
    // "select:N", "delete", and last "Ok" or "Cancel" to end the dialog.
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<int>("removed");
    QTest::addColumn<QStringList>("table");
    QTest::addColumn<QStringList>("kept");

    const QStringList start { "10.0.0.1", "10.0.0.2", "10.0.0.3" };
    QTest::newRow("address added at the end")
        << QStringList { "192.168.0.7", "add" } << QStringList { "192.168.0.7" } << 0
        << start + QStringList { "192.168.0.7" } << start + QStringList { "192.168.0.7" };
    QTest::newRow("octet above 255 cannot be typed")
        << QStringList { "10.300.0.256", "add" } << QStringList { "10.30.0.25" } << 0
        << start + QStringList { "10.30.0.25" } << start + QStringList { "10.30.0.25" };
    QTest::newRow("pasted octet above 255 stays out, so the address is refused")
        << QStringList { "10.paste:300.0.1", "add" } << QStringList() << 0 << start << start;
    QTest::newRow("letters cannot be typed")
        << QStringList { "1a.2.3.4", "add" } << QStringList { "1.2.3.4" } << 0
        << start + QStringList { "1.2.3.4" } << start + QStringList { "1.2.3.4" };
    QTest::newRow("listed address still goes to the host")
        << QStringList { "10.0.0.2", "add" } << QStringList { "10.0.0.2" } << 0 << start << start;
    QTest::newRow("empty octet refused")
        << QStringList { "10.0..9", "add" } << QStringList() << 0 << start << start;
    QTest::newRow("nothing selected only reloads")
        << QStringList { "delete" } << QStringList() << 0 << start << start;
    QTest::newRow("every selected row goes")
        << QStringList { "select:0", "select:2", "delete" } << QStringList() << 2
        << QStringList { "10.0.0.2" } << QStringList { "10.0.0.2" };
    const QStringList edits { "10.1.1.1", "add", "10.1.1.2", "add", "select:0", "delete" };
    const QStringList edited { "10.0.0.2", "10.0.0.3", "10.1.1.1", "10.1.1.2" };
    QTest::newRow("Ok keeps the edits")
        << edits + QStringList { "Ok" } << QStringList { "10.1.1.1", "10.1.1.2" } << 1 << edited
        << edited;
    QTest::newRow("Cancel leaves the list as it was")
        << edits + QStringList { "Cancel" } << QStringList { "10.1.1.1", "10.1.1.2" } << 1 << edited
        << start;
}

void tst_SyncParts::searchList()
{
    QFETCH(QStringList, actions);
    QFETCH(QStringList, sent);
    QFETCH(int, removed);
    QFETCH(QStringList, table);
    QFETCH(QStringList, kept);
    GUI_SyncControlSearchSetting dialog(m_host.get(), nullptr);
    QStringList shownTable;
    QTimer::singleShot(0, &dialog, [&] {
        for (const QString& action : actions) {
            if (action == QLatin1String("Ok") || action == QLatin1String("Cancel")) {
                shownTable = tableTexts(&dialog);
                boxButton(&dialog,
                    action == QLatin1String("Ok") ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)
                    ->click();
                return;
            }
            if (action.startsWith(QLatin1String("select:")))
                dialog.findChild<QTableWidget*>()->selectRow(action.mid(7).toInt());
            else if (action == QLatin1String("add") || action == QLatin1String("delete"))
                dialog.findChild<QPushButton*>(action + QStringLiteral("Button"))->click();
            else
                typeOctets(&dialog, action.split(QLatin1Char('.')));
        }
        shownTable = tableTexts(&dialog);
        dialog.done(2);
    });
    const int result = dialog.exec();
    QCOMPARE(result,
        actions.last() == QLatin1String("Ok")           ? int(QDialog::Accepted)
            : actions.last() == QLatin1String("Cancel") ? int(QDialog::Rejected)
                                                        : 2);

    QStringList sentAddresses;
    for (const QJsonObject& call : linkCoreCalls(QStringLiteral("addSearchAddress")))
        sentAddresses << call.value(QStringLiteral("ip")).toString();
    QCOMPARE(sentAddresses, sent);
    QCOMPARE(linkCoreCalls(QStringLiteral("removeSearchAddress")).size(), removed);
    const bool refused = actions.contains(QStringLiteral("add")) && sent.isEmpty();
    QCOMPARE(shown(QStringLiteral("message")),
        refused ? QStringList { "Input IPAddress" } : QStringList());
    QCOMPARE(shownTable, table);
    QCOMPARE(hostAddresses(), kept);
}

void tst_SyncParts::changeAddress_data()
{
    QTest::addColumn<QString>("hub");
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<QDialogButtonBox::StandardButton>("button");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QStringList>("expected");

    const QStringList start { "10.0.0.1", "10.0.0.2", "10.0.0.3" };
    QTest::newRow("new address written")
        << "10.0.0.1" << QStringList { "10", "0", "0", "9" } << QDialogButtonBox::Ok << "10.0.0.9"
        << QString() << QStringList { "10.0.0.9", "10.0.0.2", "10.0.0.3" };
    QTest::newRow("unchanged address still sent")
        << "10.0.0.1" << QStringList() << QDialogButtonBox::Ok << "10.0.0.1" << QString() << start;
    QTest::newRow("slow refusal reported, nothing changes")
        << "10.0.0.2" << QStringList { "10", "0", "0", "9" } << QDialogButtonBox::Ok << "10.0.0.9"
        << "Refused." << start;
    QTest::newRow("address in use reported")
        << "10.0.0.1" << QStringList { "10", "0", "0", "3" } << QDialogButtonBox::Ok << "10.0.0.3"
        << "The address 10.0.0.3 is already in use." << start;
    QTest::newRow("empty octet refused, nothing sent")
        << "10.0.0.1" << QStringList { "10", "0", "", "9" } << QDialogButtonBox::Ok << QString()
        << "Input IPAddress" << start;
    QTest::newRow("Cancel sends nothing")
        << "10.0.0.1" << QStringList { "10", "0", "0", "9" } << QDialogButtonBox::Cancel
        << QString() << QString() << start;
}

void tst_SyncParts::changeAddress()
{
    QFETCH(QString, hub);
    QFETCH(QStringList, typed);
    QFETCH(QDialogButtonBox::StandardButton, button);
    QFETCH(QString, sent);
    QFETCH(QString, error);
    QFETCH(QStringList, expected);
    GUI_SyncControlSetting dialog(m_host.get(), hub, nullptr);
    QTimer::singleShot(0, &dialog, [&] {
        typeOctets(&dialog, typed);
        boxButton(&dialog, button)->click();
    });
    // The click has ended the dialog before the slot runs, so the result is the button's.
    QCOMPARE(
        dialog.exec(), int(button == QDialogButtonBox::Ok ? QDialog::Accepted : QDialog::Rejected));

    const QList<QJsonObject> calls = linkCoreCalls(QStringLiteral("changeAddress"));
    QCOMPARE(calls.size(), sent.isEmpty() ? 0 : 1);
    QCOMPARE(m_recorder->events(QStringLiteral("busy")).size(), calls.size());
    if (!sent.isEmpty()) {
        QCOMPARE(calls.first().value(QStringLiteral("old")).toString(), hub);
        QCOMPARE(calls.first().value(QStringLiteral("new")).toString(), sent);
        QCOMPARE(m_recorder->events(QStringLiteral("busy")).first().value("text").toString(),
            QStringLiteral("Reflecting"));
    }
    const bool refusedByHost = !sent.isEmpty() && !error.isEmpty();
    QCOMPARE(shown(QStringLiteral("reportException")),
        refusedByHost ? QStringList { error } : QStringList());
    QCOMPARE(shown(QStringLiteral("message")),
        sent.isEmpty() && !error.isEmpty() ? QStringList { error } : QStringList());
    if (QTest::currentDataTag() == QByteArray("slow refusal reported, nothing changes"))
        QVERIFY(m_sawBusyDialog);
    QCOMPARE(hostAddresses(), expected);
}

void tst_SyncParts::sort_data()
{
    QTest::addColumn<QStringList>("cameras");
    QTest::addColumn<QString>("master");
    QTest::addColumn<bool>("external");
    QTest::addColumn<int>("flagFirst");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("external: addresses compare unsigned, master keeps its place")
        << QStringList { "192.168.0.1 0 0", "10.0.0.2 0 0", "10.0.0.1 0 0" } << "192.168.0.1"
        << true << 1 << QStringList { "10.0.0.1", "10.0.0.2", "192.168.0.1" };
    QTest::newRow("chain unmixed ignores flag first: class 1 before plain")
        << QStringList { "10.0.0.1 0 0", "10.0.0.2 0 1", "10.0.0.3 0 0", "10.0.0.4 0 1" }
        << "0.0.0.0" << false << 1
        << QStringList { "10.0.0.2", "10.0.0.4", "10.0.0.1", "10.0.0.3" };
    QTest::newRow("chain mixed, flag first: flag 1, then class 1, then the rest")
        << QStringList { "10.0.0.1 0 1", "10.0.0.2 0 0", "10.0.0.3 1 0", "10.0.0.4 2 0" }
        << "0.0.0.0" << false << 1
        << QStringList { "10.0.0.3", "10.0.0.1", "10.0.0.2", "10.0.0.4" };
    QTest::newRow("chain mixed without flag first keeps order A")
        << QStringList { "10.0.0.1 0 1", "10.0.0.2 1 0", "10.0.0.3 0 0" } << "0.0.0.0" << false << 0
        << QStringList { "10.0.0.1", "10.0.0.3", "10.0.0.2" };
    QTest::newRow("chain: master first whatever its rank")
        << QStringList { "10.0.0.1 0 1", "10.0.0.2 0 0", "10.0.0.9 1 0" } << "10.0.0.9" << false
        << 0 << QStringList { "10.0.0.9", "10.0.0.1", "10.0.0.2" };
    QTest::newRow("chain: unknown master leaves the sort") << QStringList { "10.0.0.2 0 0",
        "10.0.0.1 0 0" } << "10.9.9.9" << false << 0 << QStringList { "10.0.0.1", "10.0.0.2" };
}

void tst_SyncParts::sort()
{
    QFETCH(QStringList, cameras);
    QFETCH(QString, master);
    QFETCH(bool, external);
    QFETCH(int, flagFirst);
    QFETCH(QStringList, expected);
    CameraSet set(cameras, 1);
    sortCameras(set.cameras, ipToNumber(master), external, flagFirst);
    QCOMPARE(addresses(set.cameras), expected);
}

void tst_SyncParts::candidates_data()
{
    QTest::addColumn<QStringList>("cameras");
    QTest::addColumn<int>("triggerMode");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("unmixed: class 1 cameras") << QStringList { "10.0.0.1 0 0", "10.0.0.2 0 1",
        "10.0.0.3 0 1" } << 0 << QStringList { "10.0.0.2", "10.0.0.3" };
    QTest::newRow("unmixed without class 1: the plain ones") << QStringList { "10.0.0.1 0 0",
        "10.0.0.2 0 0" } << 0 << QStringList { "10.0.0.1", "10.0.0.2" };
    QTest::newRow("all flagged: the flagged ones") << QStringList { "10.0.0.1 1 0", "10.0.0.2 1 0" }
                                                   << 0 << QStringList { "10.0.0.1", "10.0.0.2" };
    QTest::newRow("class 1 everywhere is not mixed") << QStringList { "10.0.0.1 0 1",
        "10.0.0.2 0 1" } << 1 << QStringList { "10.0.0.1", "10.0.0.2" };
    QTest::newRow("mixed, flag first: the flagged ones") << QStringList { "10.0.0.1 0 1",
        "10.0.0.2 1 0", "10.0.0.3 0 0" } << 1 << QStringList { "10.0.0.2" };
    QTest::newRow("mixed, flag first, flag only on class 1: none")
        << QStringList { "10.0.0.1 1 1", "10.0.0.2 0 0" } << 2 << QStringList {};
    QTest::newRow("mixed, no flag first: class 1") << QStringList { "10.0.0.1 0 1", "10.0.0.2 1 0",
        "10.0.0.3 0 0" } << 3 << QStringList { "10.0.0.1" };
    QTest::newRow("mixed, no flag first, no class 1: the plain ones")
        << QStringList { "10.0.0.1 0 0", "10.0.0.2 1 0" } << 0 << QStringList { "10.0.0.1" };
}

void tst_SyncParts::candidates()
{
    QFETCH(QStringList, cameras);
    QFETCH(int, triggerMode);
    QFETCH(QStringList, expected);
    CameraSet set(cameras, triggerMode);
    QCOMPARE(addresses(masterCandidates(set.cameras)), expected);
}

QTEST_MAIN(tst_SyncParts)
#include "tst_syncparts.moc"
