#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "plugin/DOC_Interface.h"
#include "util/UTL_DocumentOrder.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_DocumentOrder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void order_data();
    void order();

private:
    QTemporaryDir m_dir;
    HST_Recorder* m_recorder = nullptr;
    HST_Host* m_host = nullptr;
    QMap<QString, int> m_keys;
};

void tst_DocumentOrder::initTestCase()
{
    // The C locale has no collation, numeric or other; the host runs in a real one.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    HST_Scenario scenario;
    QString error;
    QVERIFY2(HST_Scenario::fromJson(R"({"cameras": [
                 {"name": "cam9", "ip": "192.168.0.11"},
                 {"name": "cam10", "ip": "192.168.0.12"},
                 {"name": "Cam1", "ip": "192.168.0.13"}]})",
                                    QStringLiteral("test"), scenario, error),
             qPrintable(error));
    m_recorder = new HST_Recorder;
    m_host = new HST_Host(scenario, m_recorder, m_dir.filePath(QStringLiteral("p.ini")));
    APP_DocumentList* documents = m_host;
    QList<int> keys;
    documents->orderedKeys(keys);
    QCOMPARE(keys.size(), 3);
    for (int key : keys) {
        QString name;
        m_keys.insert(documents->documentByKey(key)->sortName(name), key);
    }
}

void tst_DocumentOrder::cleanupTestCase()
{
    delete m_host;
    delete m_recorder;
}

void tst_DocumentOrder::order_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<bool>("keepGivenOrder");
    QTest::addColumn<QStringList>("expected");
    const QStringList mixed{"cam10", "Cam1", "cam9"};
    QTest::newRow("names ascending, numbers by value")
        << 1 << mixed << false << QStringList{"Cam1", "cam9", "cam10"};
    QTest::newRow("names descending") << 2 << mixed << false << QStringList{"cam10", "cam9", "Cam1"};
    QTest::newRow("equal dates keep the given order") << 3 << mixed << false << mixed;
    QTest::newRow("host order, given subset")
        << 5 << QStringList{"Cam1", "cam9"} << false << QStringList{"cam9", "Cam1"};
    QTest::newRow("host order not wanted") << 5 << mixed << true << mixed;
    QTest::newRow("unknown kind leaves keys") << 9 << mixed << false << mixed;
}

void tst_DocumentOrder::order()
{
    QFETCH(int, kind);
    QFETCH(QStringList, given);
    QFETCH(bool, keepGivenOrder);
    QFETCH(QStringList, expected);
    QList<int> keys;
    for (const QString& name : given)
        keys.append(m_keys.value(name));
    QStringList result;
    for (int key : sortDocumentKeys(m_host, kind, keys, keepGivenOrder))
        result.append(m_keys.key(key));
    QCOMPARE(result, expected);
}

QTEST_MAIN(tst_DocumentOrder)
#include "tst_documentOrder.moc"
