#include "SyncDialogRun.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

// The sync dialog's form, driven on its real widgets inside the real plug-in file, and its wiring
// diagram as the user sees it: which labels exist where, and whether the wires drawn from their
// geometry reach them.
class tst_SyncForm : public QObject
{
    Q_OBJECT

private slots:
    void statesFollowChoices_data();
    void statesFollowChoices();
    void diagram_data();
    void diagram();

private:
    static void act(QDialog* dialog, const QString& action);
    static QString state(QDialog* dialog, const QString& query);
};

namespace {

QByteArray scenario(
    const QString& cameras, const QString& prefs = QString(), const QString& hubs = QString())
{
    return QStringLiteral("{\"syncCapableTypes\": [1, 23, 35], \"cameras\": [%1], \"prefs\": {%2}, "
                          "\"hubs\": [%3]}")
        .arg(cameras, prefs, hubs)
        .toUtf8();
}

const QString TwoCameras = QStringLiteral("{\"name\": \"A\", \"ip\": \"10.0.0.2\", \"type\": 1}, "
                                          "{\"name\": \"B\", \"ip\": \"10.0.0.1\", \"type\": 1}");
const QString Hubs = QStringLiteral(
    "{\"ip\": \"10.0.1.1\", \"syncMode\": 0, \"frequency\": 2000, \"frequencies\": [1000, 2000]}, "
    "{\"ip\": \"10.0.1.2\", \"syncMode\": 1}, {\"ip\": \"10.0.1.3\", \"state\": \"disconnected\"}");

const QString DiagramCameras = QStringLiteral(
    "{\"name\": \"A\", \"ip\": \"10.0.0.1\", \"type\": 1, \"model\": \"HX-1 type A model 2\"}, "
    "{\"name\": \"B\", \"ip\": \"10.0.0.2\", \"type\": 1}");
const QString MixedTypes = QStringLiteral("{\"name\": \"A\", \"ip\": \"10.0.0.1\", \"type\": 1}, "
                                          "{\"name\": \"B\", \"ip\": \"10.0.0.2\", \"type\": 35}, "
                                          "{\"name\": \"C\", \"ip\": \"10.0.0.3\", \"type\": 23}");
const QString ExternalPrefs = QStringLiteral("\"sync/external\": true");
const QString ChainPrefs = QStringLiteral("\"sync/external\": false");
const QString SyncingHub
    = QStringLiteral("{\"ip\": \"10.0.1.1\", \"syncMode\": 0, \"frequency\": 1000}");

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

// "name=N" sets a combo box's index; "name" clicks a button.
void tst_SyncForm::act(QDialog* dialog, const QString& action)
{
    const QStringList parts = action.split(QLatin1Char('='));
    QWidget* target = dialog->findChild<QWidget*>(parts.first());
    QVERIFY2(target, qPrintable(action));
    if (auto* combo = qobject_cast<QComboBox*>(target))
        combo->setCurrentIndex(parts.value(1).toInt());
    else if (auto* button = qobject_cast<QAbstractButton*>(target))
        button->click();
}

// "name.enabled", "name.visible", "name.checked", "name.index", "name.count", "name.text",
// "ok_button.blinking".
QString tst_SyncForm::state(QDialog* dialog, const QString& query)
{
    const QString name = query.section(QLatin1Char('.'), 0, 0);
    const QString property = query.section(QLatin1Char('.'), 1);
    QWidget* target = dialog->findChild<QWidget*>(name);
    if (!target)
        return QStringLiteral("missing");
    const auto flag = [](bool b) { return b ? QStringLiteral("true") : QStringLiteral("false"); };
    if (property == QLatin1String("blinking")) {
        // Blinking runs on a timer of the dialog, whose next tick turns the button coral.
        for (QTimer* timer : dialog->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (timer->isActive() && QTest::qWaitFor([target] {
                    return target->styleSheet().contains(QLatin1String("coral"));
                }))
                return flag(true);
        }
        return flag(false);
    }
    if (property == QLatin1String("enabled"))
        return flag(target->isEnabled());
    if (property == QLatin1String("visible"))
        return flag(target->isVisible());
    if (property == QLatin1String("checked"))
        return flag(qobject_cast<QAbstractButton*>(target)->isChecked());
    if (auto* combo = qobject_cast<QComboBox*>(target)) {
        if (property == QLatin1String("index"))
            return QString::number(combo->currentIndex());
        if (property == QLatin1String("count"))
            return QString::number(combo->count());
        return combo->currentText();
    }
    if (auto* table = qobject_cast<QTableWidget*>(target))
        return QString::number(table->rowCount());
    if (auto* label = qobject_cast<QLabel*>(target))
        return label->text();
    return qobject_cast<QAbstractButton*>(target)->text();
}

void tst_SyncForm::statesFollowChoices_data()
{
    QTest::addColumn<QByteArray>("world");
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("external without distributor")
        << scenario(TwoCameras) << QStringList { "sync_external_radio" }
        << QStringList { "masterCameras_comboBox.enabled=false", "sync_in_comboBox.enabled=true",
               "signal_generator_control_checkBox.enabled=true",
               "trigger_sig_polarity_comboBox.enabled=true", "tableWidget.visible=false",
               "search_pushButton.visible=false", "sync_chain_label.visible=false",
               "ok_button.enabled=true", "ok_button.text=Sync execute" };
    QTest::newRow("chain with N-Rack shows the hint, after its warning")
        << scenario(TwoCameras) << QStringList { "sync_chain_radio", "NRack_comboBox=1" }
        << QStringList { "masterCameras_comboBox.enabled=true", "sync_in_comboBox.enabled=false",
               "signal_generator_control_checkBox.enabled=false", "sync_chain_label.visible=true",
               "nrack_setting_label.visible=false",
               "sync_chain_label.text=※When using N-RACK synchronize the CAM1 camera "
               "with the master" };
    QTest::newRow("Link Core forces TRIG NEG and shows every hub")
        << scenario(TwoCameras, QString(), Hubs) << QStringList { "NRack_comboBox=2" }
        << QStringList { "trigger_sig_polarity_comboBox.index=1",
               "trigger_sig_polarity_comboBox.enabled=false", "tableWidget.visible=true",
               "tableWidget.rows=3", "update_pushButton.visible=true",
               "nrack_setting_label.text=Link Core settings:", "sync_chain_label.visible=false" };
    QTest::newRow("leaving Link Core frees the polarity, keeps TRIG NEG")
        << scenario(TwoCameras, QString(), Hubs)
        << QStringList { "NRack_comboBox=2", "NRack_comboBox=0" }
        << QStringList { "trigger_sig_polarity_comboBox.index=1",
               "trigger_sig_polarity_comboBox.enabled=true", "tableWidget.visible=false" };
    QTest::newRow("chain set without master candidate: empty master list")
        << scenario(QStringLiteral(
               "{\"ip\": \"10.0.0.1\", \"type\": 1, \"triggerMode\": 2, \"exposureTimingFlag\": 1, "
               "\"exposureTimingClass\": 1}, {\"ip\": \"10.0.0.2\", \"type\": 1, \"triggerMode\": "
               "2}"))
        << QStringList { "sync_chain_radio" }
        << QStringList { "masterCameras_comboBox.count=0", "masterCameras_comboBox.enabled=true",
               "ok_button.enabled=true" };
    QTest::newRow("generator not connected: its row is hidden and unchecked")
        << scenario(TwoCameras,
               QStringLiteral("\"sync/generator/ctrl\": true, "
                              "\"sync/external\": true"))
        << QStringList {}
        << QStringList { "signal_generator_control_checkBox.visible=false",
               "signal_generator_control_checkBox.checked=false",
               "frequency_comboBox.visible=false" };

    // The choices are read from the preferences at every opening.
    QTest::newRow("nothing stored: chain, no distributor, first values")
        << scenario(TwoCameras) << QStringList {}
        << QStringList { "NRack_comboBox.index=0", "sync_chain_radio.checked=true",
               "frequency_comboBox.text=1000", "sync_in_comboBox.index=0",
               "trigger_sig_polarity_comboBox.index=0", "masterCameras_comboBox.text=B(10.0.0.1)" };
    QTest::newRow("older bool distributor")
        << scenario(TwoCameras, "\"sync/nrack\": true") << QStringList {}
        << QStringList { "NRack_comboBox.index=1" };
    QTest::newRow("older text distributor")
        << scenario(TwoCameras, "\"sync/nrack\": \"false\"") << QStringList {}
        << QStringList { "NRack_comboBox.index=0" };
    QTest::newRow("distributor out of the list leaves no item") << scenario(TwoCameras,
        "\"sync/nrack\": 5") << QStringList {} << QStringList { "NRack_comboBox.index=-1" };
    QTest::newRow("stored choices")
        << scenario(TwoCameras,
               "\"sync/external\": true, \"sync/generator/frequency\": 3000, "
               "\"sync/generator/input\": 1, \"sync/triggerSignalPolarity\": 1, "
               "\"sync/masterCamera\": \"10.0.0.2\"")
        << QStringList {}
        << QStringList { "sync_external_radio.checked=true", "frequency_comboBox.text=3000",
               "sync_in_comboBox.index=1", "trigger_sig_polarity_comboBox.index=1",
               "masterCameras_comboBox.text=A(10.0.0.2)" };
    QTest::newRow("unknown master and frequency fall back to the first")
        << scenario(TwoCameras,
               "\"sync/masterCamera\": \"10.9.9.9\", \"sync/generator/frequency\": 1234")
        << QStringList {}
        << QStringList { "masterCameras_comboBox.index=0", "frequency_comboBox.index=0" };

    // "Sync execute" blinks while the form differs from what was last applied.
    QTest::newRow("unchanged form stays plain")
        << scenario(TwoCameras) << QStringList {} << QStringList { "ok_button.blinking=false" };
    QTest::newRow("a changed distributor blinks")
        << scenario(TwoCameras) << QStringList { "NRack_comboBox=1" }
        << QStringList { "ok_button.blinking=true" };
    QTest::newRow("cameras that moved away from the last sync blink")
        << scenario(QStringLiteral("{\"ip\": \"10.0.0.1\", \"type\": 1, \"syncRequired\": true}, "
                                   "{\"ip\": \"10.0.0.2\", \"type\": 1}"))
        << QStringList { "update_pushButton" } << QStringList { "ok_button.blinking=true" };
    QTest::newRow("nothing blinks while a sync is impossible")
        << scenario(TwoCameras + QStringLiteral(", {\"ip\": \"10.0.0.9\", \"dummy\": true}"))
        << QStringList { "NRack_comboBox=1" } << QStringList { "ok_button.blinking=false" };
}

void tst_SyncForm::statesFollowChoices()
{
    QFETCH(QByteArray, world);
    QFETCH(QStringList, actions);
    QFETCH(QStringList, expected);
    QStringList seen;
    const int code = runSyncDialog(world, [&](QDialog* dialog) {
        for (const QString& action : actions)
            act(dialog, action);
        for (const QString& row : expected) {
            const QString query = row.section(QLatin1Char('='), 0, 0);
            seen.append(query + QLatin1Char('=') + state(dialog, query));
        }
    });
    QCOMPARE(code, 0);
    QCOMPARE(seen, expected);
}

void tst_SyncForm::diagram_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("two cameras, external, no distributor: rows, ports and both signal boxes")
        << scenario(DiagramCameras, ExternalPrefs)
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
        << scenario(DiagramCameras, ChainPrefs)
        << QStringList { "syncLabel!", "masterLabel@50,90,50,40", "port0-0:SYNC IN|OFF",
               "port0-2:GENERAL OUT1|SYNC POS", "port1-0:SYNC IN|ON CAM POS",
               // A red loop from each output to the next input, turning at 430.
               "430,180=red", "400,165=red", "400,240=red", "382,270=green" };
    QTest::newRow("chain of mixed types: family 2 stays ON CAM POS, others ON OTHERS POS")
        << scenario(MixedTypes, ChainPrefs)
        << QStringList { "port1-0:SYNC IN|ON CAM POS", "port1-2:SYNC OUT|SYNC POS",
               "port2-0:INPUT1|ON OTHERS POS" };
    QTest::newRow("N-Rack: panel with three pictures, no back or port labels, blue bus at 290")
        << scenario(DiagramCameras, ExternalPrefs + QStringLiteral(", \"sync/nrack\": 1"))
        << QStringList { "nrackPanel@430,90,220,340", "syncLabel@560,0,120,40", "back0!",
               "port0-0!", "290,200=blue", "152,130=blue", "152,265=blue", "400,260=blue",
               "490,70=green", "620,70=red" };
    QTest::newRow("Link Core with a syncing hub: no sync box even when external")
        << scenario(
               DiagramCameras, ExternalPrefs + QStringLiteral(", \"sync/nrack\": 2"), SyncingHub)
        << QStringList { "nrackPanel@430,90,220,340", "syncLabel!", "side0#1", "eTriggerLabel#1" };
}

void tst_SyncForm::diagram()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QStringList, expected);
    QStringList seen;
    QCOMPARE(runSyncDialog(scenario,
                 [&](QDialog* dialog) {
                     QWidget* diagram = dialog->findChild<QWidget*>(QStringLiteral("diagram"));
                     QVERIFY(diagram);
                     for (const QString& query : expected)
                         seen.append(describe(diagram, query));
                 }),
        0);
    QCOMPARE(seen, expected);
}

QTEST_MAIN(tst_SyncForm)
#include "tst_syncform.moc"
