// The mediator core against the reference host: what reaches the host, what a page gets back,
// and that no host failure escapes a page-callable method.
#include "WebTestHost.h"

#include "web/JS_Mediator.h"

#include <QtTest>

#include <functional>
#include <memory>

class tst_Mediator : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void hostFailureIsReported_data();
    void hostFailureIsReported();
    void loadOfUnknownResourceWarns();

private:
    QList<QJsonObject> events(const QString& call) const { return m_recorder->events(call); }
    QStringList logLines() const;

    QTemporaryDir m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<WebTestHost> m_host;
    std::unique_ptr<JS_Mediator> m_mediator;
};

void tst_Mediator::init()
{
    m_recorder.reset(new HST_Recorder);
    m_host.reset(new WebTestHost(m_recorder.get(), m_dir.filePath(QStringLiteral("p.ini"))));
    m_mediator.reset(new JS_Mediator(m_host.get(), QStringLiteral("test_mediator")));
    m_recorder->clear();
}

void tst_Mediator::cleanup()
{
    m_mediator.reset();
    m_host.reset();
    m_recorder.reset();
}

QStringList tst_Mediator::logLines() const
{
    QStringList lines;
    for (const QJsonObject& event : events(QStringLiteral("log")))
        lines << event.value(QStringLiteral("text")).toString();
    return lines;
}

using Call = std::function<QVariant(JS_Mediator*)>;
Q_DECLARE_METATYPE(Call)

void tst_Mediator::hostFailureIsReported_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<Call>("call");
    QTest::addColumn<QVariant>("neutral");
    QTest::addColumn<int>("updates");

    // Plain forwarders: without a handler the throw would unwind into the script engine.
    QTest::newRow("getPrefString gives empty text") << "getPrefString" << Call([](JS_Mediator* m) {
        return QVariant(m->getPrefString(QStringLiteral("k")));
    }) << QVariant(QString()) << 0;
    QTest::newRow("confirm gives false")
        << "confirm" << Call([](JS_Mediator* m) { return QVariant(m->confirm("?")); })
        << QVariant(false) << 0;
    // A guarded setter still ends with its update.
    QTest::newRow("setPrefString still updates") << "setPrefString" << Call([](JS_Mediator* m) {
        m->setPrefString(QStringLiteral("sync/generator/address"), QStringLiteral("1.2.3.4"));
        return QVariant();
    }) << QVariant() << 1;
}

void tst_Mediator::hostFailureIsReported()
{
    QFETCH(QString, operation);
    QFETCH(Call, call);
    QFETCH(QVariant, neutral);
    QFETCH(int, updates);

    m_host->failing = operation;
    QVariant result;
    try {
        result = call(m_mediator.get());
    } catch (...) {
        QFAIL("an exception left the mediator");
    }
    QCOMPARE(result, neutral);
    const auto reports = events(QStringLiteral("reportException"));
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.first().value(QStringLiteral("text")).toString(), operation + " failed");
    QCOMPARE(events(QStringLiteral("updateUI")).size(), updates);
    if (updates) {
        const QStringList lines = logLines();
        QVERIFY(!lines.filter(QStringLiteral("[LEAVE]")).isEmpty());
        // The update comes before the line that says the operation left.
        const auto all = m_recorder->events();
        int updateAt = -1, leaveAt = -1;
        for (int i = 0; i < all.size(); ++i) {
            if (all[i].value(QStringLiteral("call")) == QLatin1String("updateUI"))
                updateAt = i;
            if (all[i].value(QStringLiteral("text")).toString().contains(QLatin1String("[LEAVE]")))
                leaveAt = i;
        }
        QVERIFY(updateAt < leaveAt);
    }
}

void tst_Mediator::loadOfUnknownResourceWarns()
{
    QCOMPARE(m_mediator->load(QStringLiteral("no/such.js")), QString());
    bool warned = false;
    for (const QJsonObject& event : events(QStringLiteral("log")))
        warned |= event.value(QStringLiteral("level")) == QLatin1String("warning")
            && event.value(QStringLiteral("text")).toString().contains("not found");
    QVERIFY(warned);
    QVERIFY(m_mediator->load(QStringLiteral("const_pref.js")).contains("sync/generator/address"));
}

QTEST_MAIN(tst_Mediator)
#include "tst_mediator.moc"
