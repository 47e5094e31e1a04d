#include "SyncDialogRun.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QtTest>

// The wiring diagram as the user sees it: which labels exist where, and whether the wires
// drawn from their geometry reach them.
class tst_Diagram : public QObject
{
    Q_OBJECT

private slots:
    void diagram_data();
    void diagram();
};

namespace {

QByteArray world(const QString& cameras, const QString& prefs, const QString& hubs = QString())
{
    return QStringLiteral("{\"syncCapableTypes\": [1, 23, 35], \"cameras\": [%1], "
                          "\"prefs\": {%2}, \"hubs\": [%3]}")
        .arg(cameras, prefs, hubs)
        .toUtf8();
}

const QString TwoCameras = QStringLiteral(
    "{\"name\": \"A\", \"ip\": \"10.0.0.1\", \"type\": 1, \"model\": \"HX-1 type A model 2\"}, "
    "{\"name\": \"B\", \"ip\": \"10.0.0.2\", \"type\": 1}");
const QString MixedTypes = QStringLiteral("{\"name\": \"A\", \"ip\": \"10.0.0.1\", \"type\": 1}, "
                                          "{\"name\": \"B\", \"ip\": \"10.0.0.2\", \"type\": 35}, "
                                          "{\"name\": \"C\", \"ip\": \"10.0.0.3\", \"type\": 23}");
const QString ExternalPrefs = QStringLiteral("\"sync/external\": true");
const QString ChainPrefs = QStringLiteral("\"sync/external\": false");
const QString SyncingHub
    = QStringLiteral("{\"ip\": \"10.0.1.1\", \"syncMode\": 0, \"frequency\": 1000}");

QWidget* diagramOf(QDialog* dialog)
{
    return dialog->findChild<QWidget*>(QStringLiteral("diagram"));
}

// "name@x,y,w,h", "name:text", "name!" (absent), "name#N" (how many), "@minHeight=N", and
// "x,y=colour" for a pixel of the rendered diagram.
QString describe(QWidget* diagram, const QString& query)
{
    if (query.at(0).isDigit()) {
        const QStringList xy = query.section(QLatin1Char('='), 0, 0).split(QLatin1Char(','));
        const QColor c = diagram->grab().toImage().pixelColor(xy.at(0).toInt(), xy.at(1).toInt());
        const QString colour = c == QColor(Qt::green) ? QStringLiteral("green")
            : c == QColor(Qt::red)                    ? QStringLiteral("red")
            : c == QColor(Qt::blue)                   ? QStringLiteral("blue")
                                                      : QStringLiteral("other");
        return query.section(QLatin1Char('='), 0, 0) + QLatin1Char('=') + colour;
    }
    if (query.startsWith(QLatin1String("@minHeight")))
        return QStringLiteral("@minHeight=%1").arg(diagram->minimumHeight());
    if (query.contains(QLatin1Char('#'))) {
        const QString name = query.section(QLatin1Char('#'), 0, 0);
        return name + QLatin1Char('#')
            + QString::number(
                diagram->findChildren<QWidget*>(name, Qt::FindDirectChildrenOnly).size());
    }
    const bool absent = query.endsWith(QLatin1Char('!'));
    const QString name = query.section(QRegularExpression(QStringLiteral("[@:!]")), 0, 0);
    QWidget* child = nullptr;
    for (QObject* object : diagram->children()) {
        if (object->objectName() == name) {
            child = qobject_cast<QWidget*>(object);
            break;
        }
    }
    if (absent)
        return child ? name + QStringLiteral(" exists") : name + QLatin1Char('!');
    if (!child)
        return name + QStringLiteral(" missing");
    if (query.contains(QLatin1Char(':')))
        return name + QLatin1Char(':') + qobject_cast<QLabel*>(child)->text().replace('\n', '|');
    const QRect g = child->geometry();
    return QStringLiteral("%1@%2,%3,%4,%5")
        .arg(name)
        .arg(g.x())
        .arg(g.y())
        .arg(g.width())
        .arg(g.height());
}

} // namespace

void tst_Diagram::diagram_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("two cameras, external, no distributor: rows, ports and both signal boxes")
        << world(TwoCameras, ExternalPrefs)
        << QStringList { "eTriggerLabel@430,0,120,40", "syncLabel@560,0,120,40",
               "side0@50,90,100,80", "side1@50,225,100,80", "back0@150,90,100,80",
               "port0-0@250,90,130,30", "port0-1@250,120,130,30", "port0-2!",
               "port0-0:SYNC IN|ON CAM POS", "port1-1:TRIG TTL IN|TRIG POS", "masterLabel!",
               "nrackPanel!", "@minHeight=390",
               // Green and red buses at the centre of their boxes, arrows stopping at
               // the ports' right edge (x 380).
               "490,60=green", "490,200=green", "382,135=green", "382,270=green", "620,60=red",
               "620,105=red", "382,105=red", "382,240=red" };
    QTest::newRow("chain: master badge, OFF on its input, no sync box")
        << world(TwoCameras, ChainPrefs)
        << QStringList { "syncLabel!", "masterLabel@50,90,50,40", "port0-0:SYNC IN|OFF",
               "port0-2:GENERAL OUT1|SYNC POS", "port1-0:SYNC IN|ON CAM POS",
               // A red loop from each output to the next input, turning at 430.
               "430,180=red", "400,165=red", "400,240=red", "382,270=green" };
    QTest::newRow("chain of mixed types: family 2 stays ON CAM POS, others ON OTHERS POS")
        << world(MixedTypes, ChainPrefs)
        << QStringList { "port1-0:SYNC IN|ON CAM POS", "port1-2:SYNC OUT|SYNC POS",
               "port2-0:INPUT1|ON OTHERS POS" };
    QTest::newRow("N-Rack: panel with three pictures, no back or port labels, blue bus at 290")
        << world(TwoCameras, ExternalPrefs + QStringLiteral(", \"sync/nrack\": 1"))
        << QStringList { "nrackPanel@430,90,220,340", "syncLabel@560,0,120,40", "back0!",
               "port0-0!", "290,200=blue", "152,130=blue", "152,265=blue", "400,260=blue",
               "490,70=green", "620,70=red" };
    QTest::newRow("Link Core with a syncing hub: no sync box even when external")
        << world(TwoCameras, ExternalPrefs + QStringLiteral(", \"sync/nrack\": 2"), SyncingHub)
        << QStringList { "nrackPanel@430,90,220,340", "syncLabel!", "side0#1", "eTriggerLabel#1" };
}

void tst_Diagram::diagram()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QStringList, expected);
    QStringList seen;
    QCOMPARE(runSyncDialog(scenario,
                 [&](QDialog* dialog) {
                     QWidget* diagram = diagramOf(dialog);
                     QVERIFY(diagram);
                     for (const QString& query : expected)
                         seen.append(describe(diagram, query));
                 }),
        0);
    QCOMPARE(seen, expected);
}

QTEST_MAIN(tst_Diagram)
#include "tst_diagram.moc"
