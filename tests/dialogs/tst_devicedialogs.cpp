// The device dialogs' mediators and the camera name list against the reference host.
#include "../ScenarioHost.h"

#include "dialogs/GUI_CameraNetworkSettingDialog.h"
#include "dialogs/JS_Mediator_AddDeviceDialog.h"
#include "dialogs/JS_Mediator_AutoCameraName.h"
#include "dialogs/JS_Mediator_CameraNetworkSettingDialog.h"
#include "dialogs/JS_Mediator_EditDeviceDialog.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <memory>

class tst_DeviceDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void dummyAddress_data();
    void dummyAddress();
    void addOk_data();
    void addOk();
    void editSettings_data();
    void editSettings();
    void editOk_data();
    void editOk();
    void searchSettings();
    void searchDialogCancelRejectsOnce();
    void nameList_data();
    void nameList();
    void nameListAvailability_data();
    void nameListAvailability();

private:
    bool start(const QByteArray& json);
    QStringList events(const QString& call, const QString& field) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
    QTimer m_answerer;
};

void tst_DeviceDialogs::init()
{
    m_dir.reset(new QTemporaryDir);
    m_recorder.reset(new HST_Recorder);
    connect(&m_answerer, &QTimer::timeout, this, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    });
    m_answerer.start(10);
}

void tst_DeviceDialogs::cleanup()
{
    m_answerer.stop();
    m_answerer.disconnect();
    m_host.reset();
    m_recorder.reset();
    m_dir.reset();
}

bool tst_DeviceDialogs::start(const QByteArray& json)
{
    QString error;
    m_host = makeScenarioHost(json, m_recorder.get(), *m_dir, error);
    if (!m_host)
        qWarning("%s", qPrintable(error));
    return m_host != nullptr;
}

QStringList tst_DeviceDialogs::events(const QString& call, const QString& field) const
{
    QStringList values;
    for (const QJsonObject& event : m_recorder->events(call))
        values << event.value(field).toVariant().toString();
    return values;
}

void tst_DeviceDialogs::dummyAddress_data()
{
    QTest::addColumn<QByteArray>("cameras");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no dummy camera") << QByteArray(R"([{"ip": "10.0.0.1"}])") << "999.999.999.1";
    QTest::newRow("the gap between two dummies")
        << QByteArray(R"([{"ip": "999.999.999.1", "dummy": true}, {"ip": "10.0.0.2"},
                          {"ip": "999.999.999.3", "dummy": true}])")
        << "999.999.999.2";
    QJsonArray all;
    for (int n = 1; n <= 255; ++n)
        all.append(
            QJsonObject { { "ip", QStringLiteral("999.999.999.%1").arg(n) }, { "dummy", true } });
    QTest::newRow("all taken: the first") << QJsonDocument(all).toJson() << "999.999.999.1";
}

void tst_DeviceDialogs::dummyAddress()
{
    QFETCH(QByteArray, cameras);
    QVERIFY(start(R"({"defaultCameraName": "New", "prefs": {"cameraconnection/AddIPDefault":
        "10.9.9.9"}, "cameras": )"
        + cameras + "}"));
    JS_Mediator_AddDeviceDialog mediator(m_host.get(), QStringLiteral("adddevice"), true);
    const QJsonObject settings
        = QJsonDocument::fromJson(mediator.getAddDeviceDialogSettings().toUtf8()).object();
    QTEST(settings.value("DefaultDummyIPAddress").toString(), "expected");
    QCOMPARE(settings.value("DefaultCameraName").toString(), QStringLiteral("New"));
    QCOMPARE(settings.value("DefaultIPAddress").toString(), QStringLiteral("10.9.9.9"));
}

void tst_DeviceDialogs::addOk_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ip");
    QTest::addColumn<bool>("dummy");
    QTest::addColumn<QStringList>("added"); // addresses of the addDevice records
    QTest::addColumn<QStringList>("reported");
    QTest::newRow("a device") << "Cam B"
                              << "10.0.0.2" << false << QStringList { "10.0.0.2" } << QStringList();
    QTest::newRow("a dummy") << "Dummy"
                             << "999.999.999.2" << true << QStringList { "999.999.999.2" }
                             << QStringList();
    QTest::newRow("name with a slash dropped")
        << "a/b"
        << "10.0.0.2" << false << QStringList() << QStringList();
    QTest::newRow("no address dropped") << "Cam"
                                        << "10.0.0" << false << QStringList() << QStringList();
    QTest::newRow("address in use refused by the host")
        << "Cam"
        << "10.0.0.1" << false << QStringList()
        << QStringList { "A device with the address 10.0.0.1 exists." };
}

void tst_DeviceDialogs::addOk()
{
    QFETCH(QString, name);
    QFETCH(QString, ip);
    QFETCH(bool, dummy);
    QVERIFY(start(R"({"cameras": [{"ip": "10.0.0.1"}]})"));
    JS_Mediator_AddDeviceDialog mediator(m_host.get(), QStringLiteral("adddevice"), false);
    QSignalSpy accepted(&mediator, &JS_Mediator_Dialog::accept);
    mediator.ok(name, ip, dummy);
    QCOMPARE(accepted.size(), 1);
    QTEST(events(QStringLiteral("addDevice"), QStringLiteral("ip")), "added");
    QTEST(events(QStringLiteral("reportException"), QStringLiteral("text")), "reported");
    QFETCH(QStringList, added);
    if (added.isEmpty())
        return;
    DOC_Interface* document = m_host->document(2);
    QVERIFY(document);
    QCOMPARE(document->isConnected(), false);
    QCOMPARE(document->asCamera()->isDummy(), dummy);
    QCOMPARE(document->asCamera()->cameraName(true), name);
}

void tst_DeviceDialogs::editSettings_data()
{
    QTest::addColumn<QByteArray>("camera");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("expected");
    QTest::newRow("everything the camera tells")
        << QByteArray(R"({"name": "Cam", "ip": "10.0.0.7", "subnetmask": "255.255.0.0",
               "gateway": "10.0.0.254", "etherType": 2, "model": "M",
               "firmware": ["1.2", "b3", "c4"], "functions": [112, 167]})")
        << 1
        << R"({"CameraName":"Cam","DefaultGateway":"10.0.0.254","DeviceSerialNumber":"00000100000",)"
           R"("EtherType":2,"FWVer":"1.2 - b3 - c4","HeadName":"Cam",)"
           R"("HeadSerialNumber":"00000200000","IPAddress":"10.0.0.7","IsDummy":false,)"
           R"("IsSupportWifi":true,"ModelName":"M","Subnetmask":"255.255.0.0","isMemoryMode":false})";
    QTest::newRow("serial numbers only where the camera tells them")
        << QByteArray(R"({"name": "Cam", "ip": "10.0.0.7", "model": "M", "firmware": ["1.0", ""]})")
        << 1
        << R"({"CameraName":"Cam","DefaultGateway":"","DeviceSerialNumber":"","EtherType":0,)"
           R"("FWVer":"1.0","HeadName":"Cam","HeadSerialNumber":"","IPAddress":"10.0.0.7",)"
           R"("IsDummy":false,"IsSupportWifi":false,"ModelName":"M","Subnetmask":"255.255.255.0",)"
           R"("isMemoryMode":false})";
    QTest::newRow("a device that has gone") << QByteArray("{}") << 5 << "";
}

void tst_DeviceDialogs::editSettings()
{
    QFETCH(QByteArray, camera);
    QFETCH(int, key);
    QVERIFY(start(R"({"cameras": [)" + camera + "]}"));
    JS_Mediator_EditDeviceDialog mediator(m_host.get(), QStringLiteral("editdevice"), key);
    QTEST(mediator.getEditDeviceDialogSettings(), "expected");
}

void tst_DeviceDialogs::editOk_data()
{
    QTest::addColumn<QStringList>("entered"); // name, address, subnet mask, gateway
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<bool>("networkChanged");
    QTest::addColumn<QString>("nameAfter");
    QTest::newRow("name only") << QStringList { "Renamed", "10.0.0.1", "255.255.255.0", "" } << true
                               << false << "Renamed";
    QTest::newRow("new gateway") << QStringList { "Cam", "10.0.0.1", "255.255.255.0", "10.0.0.9" }
                                 << true << true << "Cam";
    QTest::newRow("no address: refused, the dialog stays")
        << QStringList { "Renamed", "10.0.0", "255.255.255.0", "" } << false << false << "Cam";
}

void tst_DeviceDialogs::editOk()
{
    QFETCH(QStringList, entered);
    QVERIFY(start(R"({"cameras": [{"name": "Cam", "ip": "10.0.0.1"}]})"));
    JS_Mediator_EditDeviceDialog mediator(m_host.get(), QStringLiteral("editdevice"), 1);
    QSignalSpy accepts(&mediator, &JS_Mediator_Dialog::accept);
    mediator.ok(entered.at(0), entered.at(1), entered.at(2), entered.at(3));
    QFETCH(bool, accepted);
    QCOMPARE(accepts.size() == 1, accepted);
    QTEST(mediator.networkChanged(), "networkChanged");
    QString name;
    QTEST(m_host->document(1)->deviceName(name), "nameAfter");
    QCOMPARE(
        events(QStringLiteral("reportException"), QStringLiteral("text")).size(), accepted ? 0 : 1);
}

void tst_DeviceDialogs::searchSettings()
{
    QVERIFY(start(R"({"faults": {"getPrefVariant": {"text": "gone", "steps": [0]}}})"));
    JS_Mediator_CameraNetworkSettingDialog mediator(
        m_host.get(), QStringLiteral("cameranetworksetting"));
    QCOMPARE(mediator.getCameraSearchIPAddress(), QStringLiteral("192.168.0.0"));
    mediator.setCameraSearchWay(2);
    mediator.setCameraSearchIPAddress(QStringLiteral("10.1.0.0"));
    mediator.cancel();
    QCOMPARE(mediator.getCameraSearchWay(), 2);
    QCOMPARE(mediator.getCameraSearchIPAddress(), QStringLiteral("10.1.0.0"));
}

void tst_DeviceDialogs::searchDialogCancelRejectsOnce()
{
    QVERIFY(start("{}"));
    GUI_CameraNetworkSettingDialog dialog(m_host.get(), nullptr);
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QSignalSpy told(dialog.mediator(), &JS_Mediator_Dialog::rejected);
    dialog.show();
    dialog.cancel();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(rejected.size(), 1);
    QCOMPARE(told.size(), 1);
}

void tst_DeviceDialogs::nameList_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("onlyCategoryWarnings");
    QTest::newRow("categories merged, duplicates dropped, default first")
        << QByteArray("Lab,Alpha,Beta\n,Gamma,Delta\n0Zero,Z\nLab,Alpha,Zeta\n")
        << R"([{"category":"","label":"Gamma"},{"category":"","label":"Delta"},)"
           R"({"category":"0Zero","label":"Z"},{"category":"Lab","label":"Alpha"},)"
           R"({"category":"Lab","label":"Beta"},{"category":"Lab","label":"Zeta"}])"
        << 0;
    QTest::newRow("Japanese names in Shift-JIS")
        << QByteArray("\x83\x4a\x83\x81\x83\x89,\x93\x8c\x8b\x9e\r\n")
        << QString::fromUtf8(R"([{"category":"カメラ","label":"東京"}])") << 0;
    QTest::newRow("Japanese names in UTF-8")
        << QString::fromUtf8(",東京,大阪\n").toUtf8()
        << QString::fromUtf8(R"([{"category":"","label":"東京"},{"category":"","label":"大阪"}])")
        << 0;
    QTest::newRow("invalid in both encodings reads as UTF-8")
        << QByteArray("\x80\xff,ok\n") << QString::fromUtf8(R"([{"category":"��","label":"ok"}])")
        << 0;
    QTest::newRow("forbidden characters and dots dropped")
        << QByteArray("Lab, /:* ,..,.,a/b,  ,c\n")
        << R"([{"category":"Lab","label":"ab"},{"category":"Lab","label":"c"}])" << 0;
    QTest::newRow("marks in a category escaped as JSON writes them")
        << QByteArray("\"q\\\tc\x01,a\n") << R"([{"category":"\"q\\\tc\u0001","label":"a"}])" << 0;
    QTest::newRow("a line of 100,000 characters")
        << "Lab," + QByteArray(100000, 'x')
        << R"([{"category":"Lab","label":")" + QString(1024, 'x') + R"("}])" << 0;
    QTest::newRow("lines without a name skipped with a warning")
        << QByteArray("OnlyCategory\n\nLab,a\n") << R"([{"category":"Lab","label":"a"}])" << 2;
}

void tst_DeviceDialogs::nameList()
{
    QFETCH(QByteArray, bytes);
    const QString path = m_dir->filePath(QStringLiteral("names.csv"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    QVERIFY(start(R"({"prefs": {"usercustom/cameraNameFilePath": ")" + path.toUtf8() + "\"}}"));
    JS_Mediator_AutoCameraName mediator(m_host.get(), QStringLiteral("adddeviceAutoCameraName"));
    QTEST(mediator.autoCompleteCameraList(), "expected");
    QTEST(events(QStringLiteral("log"), QStringLiteral("text"))
              .filter(QStringLiteral("[only category]"))
              .size(),
        "onlyCategoryWarnings");
}

void tst_DeviceDialogs::nameListAvailability_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("present");
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QString>("list");
    QTest::newRow("there") << true << true << true << R"([{"category":"","label":"a"}])";
    QTest::newRow("feature off") << false << true << false << R"([{"category":"","label":"a"}])";
    QTest::newRow("no file") << true << false << false << "[]";
}

void tst_DeviceDialogs::nameListAvailability()
{
    QFETCH(bool, enabled);
    QFETCH(bool, present);
    const QString path = m_dir->filePath(QStringLiteral("names.csv"));
    if (present) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(",a\n");
    }
    QVERIFY(start(QStringLiteral(R"({"cameraNameList": %1,
        "prefs": {"usercustom/cameraNameFilePath": "%2"}})")
                      .arg(enabled ? "true" : "false", path)
                      .toUtf8()));
    JS_Mediator_AutoCameraName mediator(m_host.get(), QStringLiteral("adddeviceAutoCameraName"));
    QTEST(mediator.existsAutoCompleteFile(), "exists");
    QTEST(mediator.autoCompleteCameraList(), "list");
    QFETCH(bool, exists);
    QCOMPARE(events(QStringLiteral("log"), QStringLiteral("text")).filter("found file.").size(),
        exists ? 1 : 0);
}

QTEST_MAIN(tst_DeviceDialogs)
#include "tst_devicedialogs.moc"
