#include "SyncDialogRun.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

// The sync dialog's form, driven on its real widgets inside the real plug-in file.
class tst_SyncForm : public QObject
{
    Q_OBJECT

private slots:
    void statesFollowChoices_data();
    void statesFollowChoices();

private:
    static void act(QDialog* dialog, const QString& action);
    static QString state(QDialog* dialog, const QString& query);
};

namespace {

QByteArray scenario(
    const QString& cameras, const QString& prefs = QString(), const QString& hubs = QString())
{
    return QStringLiteral("{\"syncCapableTypes\": [1, 35], \"cameras\": [%1], \"prefs\": {%2}, "
                          "\"hubs\": [%3]}")
        .arg(cameras, prefs, hubs)
        .toUtf8();
}

const QString TwoCameras = QStringLiteral("{\"name\": \"A\", \"ip\": \"10.0.0.2\", \"type\": 1}, "
                                          "{\"name\": \"B\", \"ip\": \"10.0.0.1\", \"type\": 1}");
const QString Hubs = QStringLiteral(
    "{\"ip\": \"10.0.1.1\", \"syncMode\": 0, \"frequency\": 2000, \"frequencies\": [1000, 2000]}, "
    "{\"ip\": \"10.0.1.2\", \"syncMode\": 1}, {\"ip\": \"10.0.1.3\", \"state\": \"disconnected\"}");

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
    QTest::newRow("a dummy camera keeps Sync execute off")
        << scenario(TwoCameras + QStringLiteral(", {\"ip\": \"10.0.0.9\", \"dummy\": true}"))
        << QStringList { "sync_external_radio" } << QStringList { "ok_button.enabled=false" };
    QTest::newRow("mixed exposure in a start-system mode keeps Sync execute off")
        << scenario(QStringLiteral("{\"ip\": \"10.0.0.1\", \"type\": 1, \"triggerMode\": 0, "
                                   "\"exposureTimingFlag\": 1}, "
                                   "{\"ip\": \"10.0.0.2\", \"type\": 1, \"triggerMode\": 0}"))
        << QStringList {} << QStringList { "ok_button.enabled=false" };
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

QTEST_MAIN(tst_SyncForm)
#include "tst_syncform.moc"
