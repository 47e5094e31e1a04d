#include "../ScenarioHost.h"
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "plugin/DOC_LinkCore.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const char hubsJson[] = R"({"hubs": [
    {"ip": "10.0.0.1"},
    {"ip": "10.0.0.2", "connectsOn": "connect"},
    {"ip": "10.0.0.3", "connectsOn": "never"},
    {"ip": "10.0.0.4", "state": "disconnected"},
    {"ip": "10.0.0.5", "connectsOn": "connect"}]})";

} // namespace

// The hub manager as the plug-in sees it, through APP_LinkCoreManager and DOC_LinkCore.
class tst_HubList : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void connectAllBringsUpWhatTheScenarioSays_data();
    void connectAllBringsUpWhatTheScenarioSays();
    void frequencyPendingUntilApplied_data();
    void frequencyPendingUntilApplied();

private:
    QStringList addresses();
    QStringList connectedHubs();

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
};

void tst_HubList::init()
{
    m_dir.reset(new QTemporaryDir);
    m_recorder.reset(new HST_Recorder);
    QString error;
    m_host = makeScenarioHost(hubsJson, m_recorder.get(), *m_dir, error);
    QVERIFY2(m_host, qPrintable(error));
}

void tst_HubList::cleanup()
{
    m_host.reset();
    m_recorder.reset();
    m_dir.reset();
}

QStringList tst_HubList::addresses()
{
    QStringList list;
    m_host->addresses(list, true);
    return list;
}

QStringList tst_HubList::connectedHubs()
{
    QStringList list;
    for (const QString& ip : addresses()) {
        if (m_host->device(ip)->isConnected())
            list << ip;
    }
    return list;
}

void tst_HubList::connectAllBringsUpWhatTheScenarioSays_data()
{
    QTest::addColumn<QStringList>("edits");
    QTest::addColumn<QStringList>("cameUp");

    QTest::newRow("hubs due on connect come up, never and state disconnected stay down")
        << QStringList() << QStringList { "10.0.0.2", "10.0.0.5" };
    QTest::newRow("a hub off the search list is not searched")
        << QStringList { "-10.0.0.5" } << QStringList { "10.0.0.2" };
    QTest::newRow("an added address without a hub stays down")
        << QStringList { "+10.9.9.9" } << QStringList { "10.0.0.2", "10.0.0.5" };
}

void tst_HubList::connectAllBringsUpWhatTheScenarioSays()
{
    QFETCH(QStringList, edits);
    QFETCH(QStringList, cameUp);
    QCOMPARE(connectedHubs(), QStringList { "10.0.0.1" });
    for (const QString& edit : edits) {
        if (edit.startsWith(QLatin1Char('+')))
            m_host->addSearchAddress(edit.mid(1));
        else
            m_host->removeSearchAddress(edit.mid(1));
    }
    m_host->commitSearchList();

    m_host->connectAll(3, true);
    QCOMPARE(connectedHubs(), QStringList { "10.0.0.1" } + cameUp);
    const QList<QJsonObject> calls = m_recorder->events(QStringLiteral("linkCore"));
    QCOMPARE(calls.last().value(QStringLiteral("op")).toString(), QStringLiteral("connectAll"));
    QCOMPARE(calls.last().value(QStringLiteral("connected")).toArray(),
        QJsonArray::fromStringList(cameUp));
    // A second search finds nothing new.
    m_host->connectAll(3, true);
    QVERIFY(m_recorder->events(QStringLiteral("linkCore"))
                .last()
                .value("connected")
                .toArray()
                .isEmpty());
}

void tst_HubList::frequencyPendingUntilApplied_data()
{
    QTest::addColumn<int>("chosen");

    QTest::newRow("another frequency") << 5000;
    QTest::newRow("the applied frequency chosen again") << 1000;
}

void tst_HubList::frequencyPendingUntilApplied()
{
    QFETCH(int, chosen);
    DOC_LinkCore* hub = m_host->device(QStringLiteral("10.0.0.1"));
    QVERIFY(!m_host->hasUnappliedChanges());
    hub->setFrequency(chosen);
    QVERIFY(m_host->hasUnappliedChanges());
    QCOMPARE(hub->frequency(), chosen);
    m_host->applyChanges();
    QVERIFY(!m_host->hasUnappliedChanges());
    QCOMPARE(hub->frequency(), chosen);
}

QTEST_MAIN(tst_HubList)
#include "tst_hublist.moc"
