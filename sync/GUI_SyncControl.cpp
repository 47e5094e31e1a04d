#include "sync/GUI_SyncControl.h"

#include "ui_GUI_SyncControl.h"

#include "generator/DOC_VIGen.h"
#include "generator/GUI_SyncSignalGeneratorConnect.h"
#include "plugin/APP_CameraTypeRecord.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/DOC_LinkCore.h"
#include "plugin/SharedKeys.h"
#include "sync/GUI_SyncControlCombobox.h"
#include "sync/GUI_SyncControlSearchSetting.h"
#include "sync/GUI_SyncControlSetting.h"
#include "sync/GUI_SyncProgress.h"
#include "sync/SyncCameraOrder.h"
#include "sync/SyncHubTable.h"
#include "sync/SyncWiringDiagramWidget.h"
#include "util/APP_Exception.h"
#include "util/DOC_Exception.h"
#include "util/FunctionLogGuard.h"
#include "util/ScopeExit.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "util/UTL_TextHelpers.h"
#include "util/UserOperationLog.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMutexLocker>
#include <QTimer>

#include <algorithm>

namespace {

QString indexParameter(int index)
{
    return FunctionLogGuard::parameter(QStringLiteral("index"), index);
}

// The exit half of the frame that the slots and init share: the leave line, written from
// inside the callable so that it carries the callable's name, then a guiUpdate. It runs in a
// destructor, so what guiUpdate throws ends here, reported.
auto exitFrame(GUI_SyncControl* dialog, APP_Host* host, const QString& function)
{
    return ScopeExit([dialog, host, function]() {
        UTL_Barrier::sealed(host, "GUI_SyncControl::guiUpdate", [&] {
            FunctionLogGuard::writeLeave(function + QStringLiteral("::<lambda_1>::operator ()"));
            dialog->guiUpdate();
        });
    });
}

} // namespace

template <typename Body>
void GUI_SyncControl::slotFrame(const QString& function, const QString& parameters, Body body)
{
    FunctionLogGuard::writeEnter(function, FunctionLogGuard::normalized(parameters));
    const auto exit = exitFrame(this, m_host, function);
    UTL_Barrier::reported(m_host, body);
}

GUI_SyncControl::GUI_SyncControl(APP_Host* host, QWidget* parent)
    : GUI_Dialog(parent, Qt::WindowFlags(), true)
    , m_ui(std::make_unique<Ui_GUI_SyncControl>())
    , m_host(host)
    , m_generator(std::make_unique<DOC_VIGen>(host))
{
    m_ui->setupUi(this);
    setMinimumSize(size());
    setMaximumSize(size());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setWindowTitle(UTL_Messages::translate(m_host, QStringLiteral("p_synccontrol")));
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);

    m_blinkTimer = new QTimer(this);
    m_blinkTimer->setInterval(1000);
    connect(m_blinkTimer, &QTimer::timeout, this, &GUI_SyncControl::on_blink);

    // The scroll area owns the diagram; each guiUpdate hands it a new one.
    setDiagram(std::make_unique<SyncWiringDiagramWidget>());

    m_hubTable = new SyncHubTable(host, m_ui->tableWidget, this);
    connect(
        m_hubTable, &SyncHubTable::editClicked, this, &GUI_SyncControl::onEditPushButtonClicked);
    connect(m_hubTable, &SyncHubTable::frequencyChanged, this, &GUI_SyncControl::onComboboxChanged);
}

GUI_SyncControl::~GUI_SyncControl()
{
    UTL_Barrier::sealed(m_host, "GUI_SyncControl::~GUI_SyncControl", [this] {
        static_cast<APP_LinkCoreManager*>(m_host)->shutdown();
        const bool connected = m_generatorAvailable && m_generator->isConnected();
        m_host->setPrefBool(PREF_KEY_SYNCCONTROL_GENERATOR_TRYCONNECT, connected);
    });
    UTL_Barrier::sealed(
        m_host, "GUI_SyncControl::~GUI_SyncControl", [this] { m_generator->disconnect(); });
    UTL_Barrier::sealed(
        m_host, "GUI_SyncControl::~GUI_SyncControl", [this] { m_hubTable->clear(); });
}

void GUI_SyncControl::setDiagram(std::unique_ptr<SyncWiringDiagramWidget> diagram)
{
    SyncWiringDiagramWidget* widget = diagram.release();
    connect(widget, &SyncWiringDiagramWidget::drawEevent, this, &GUI_SyncControl::paintDiagram);
    // Takes the new diagram and deletes the one it held.
    m_ui->syncScrollArea->setWidget(widget);
    m_diagram = widget;
}

int GUI_SyncControl::exec()
{
    init();
    UTL_Messages::setNativeStyle(m_host, this);
    m_ui->ok_button->setText(UTL_Messages::translate(m_host, QStringLiteral("Sync execute")));
    m_ui->cancel_button->setText(UTL_Messages::translate(m_host, QStringLiteral("Sync quit")));
    m_ui->signal_generator_control_checkBox->setText(
        UTL_Messages::translate(m_host, QStringLiteral("Signal generator control")));
    m_ui->trigger_sig_polarity_label->setText(
        UTL_Messages::translate(m_host, QStringLiteral("Trigger Signal Polarity :")));
    m_ui->connect_signal_generator_button->setText(
        UTL_Messages::translate(m_host, QStringLiteral("Connect with signal generator")));
    m_ui->frequency_label->setText(UTL_Messages::translate(m_host, QStringLiteral("Frequency :")));
    return QDialog::exec();
}

void GUI_SyncControl::init()
{
    const QString function = QStringLiteral("GUI_SyncControl::init");
    FunctionLogGuard::writeEnter(function, QString());
    const auto exit = exitFrame(this, m_host, function);

    // Each run starts from a clean form: what an earlier run disabled is enabled again.
    m_cameras.clear();
    m_initializing = true;
    m_syncPossible = true;
    m_ui->ok_button->setEnabled(true);
    stopBlinking();

    APP_DocumentList* documents = m_host;
    for (const int key : documents->documentKeys(0)) {
        DOC_Interface* doc = documents->document(key, true);
        if (!doc)
            continue;
        DOC_Camera* camera = doc->asCamera();
        if (camera && !m_cameras.contains(camera))
            m_cameras.append(camera);
    }
    sortByAddress(m_cameras);

    checkSyncConditions();

    // Three independent parts: a failure in one is reported and leaves the others to run,
    // and the form comes alive (m_initializing cleared) whatever happened.
    UTL_Barrier::reported(m_host, [this] {
        m_ui->NRack_comboBox->setFocus(Qt::OtherFocusReason);
        guiInit();
    });
    UTL_Barrier::reported(m_host, [this] {
        const bool tryConnect
            = m_host->getPrefBool(PREF_KEY_SYNCCONTROL_GENERATOR_TRYCONNECT, false);
        m_generatorAvailable = m_generator->loadLibrary();
        if (tryConnect && m_generatorAvailable && isIpAddress(m_generatorAddress)) {
            m_generator->connect(0, ipToNumber(m_generatorAddress));
            if (m_generator->isConnected() && !m_generator->isSupportedDevice())
                m_generator->disconnect();
        }
    });
    m_initializing = false;
    UTL_Barrier::reported(m_host, [this] { startHubManager(); });
}

void GUI_SyncControl::checkSyncConditions()
{
    const auto refuse = [this](const char* text) {
        throw APP_Exception(UTL_Messages::translate(m_host, QString::fromUtf8(text)), 0);
    };

    if (m_cameras.size() < 2)
        refuse("Because there is only one camera, synchronization is not necessary.");

    // These steps see every document's camera, not only the distinct ones; dummies are skipped.
    APP_DocumentList* documents = m_host;
    QList<DOC_Camera*> documentCameras;
    for (const int key : documents->documentKeys(0)) {
        DOC_Interface* doc = documents->document(key, true);
        DOC_Camera* camera = doc ? doc->asCamera() : nullptr;
        if (camera && !camera->isDummy())
            documentCameras.append(camera);
    }

    for (DOC_Camera* camera : qAsConst(documentCameras)) {
        if (camera->lowLightMode() == 1)
            refuse(
                "Synchronization setting is impossible due to the presence of low light camera.");
    }
    for (DOC_Camera* camera : qAsConst(documentCameras)) {
        if (camera->dualSlopeShutter() != 0)
            refuse("Synchronization setting can not be done because there is a dual slope shutter "
                   "camera.");
    }

    QList<APP_CameraTypeRecord*> records;
    m_host->syncCapableTypes(records);
    for (DOC_Camera* camera : qAsConst(m_cameras)) {
        if (camera->isDummy())
            continue;
        const int type = camera->cameraType();
        const bool capable = std::any_of(
            records.cbegin(), records.cend(), [type](const APP_CameraTypeRecord* record) {
                return record && record->cameraType == type;
            });
        if (!capable)
            refuse("The selected camera does not support sync setting");
    }

    m_triggerMode = m_cameras.first()->triggerMode();
    for (int i = 1; i < m_cameras.size(); ++i) {
        if (m_cameras.at(i)->triggerMode() != m_triggerMode)
            refuse("Sync setting is possible only when all cameras are in the same trigger mode.");
    }

    if (mixedExposureTiming(m_cameras) && !allowsMixedExposure(m_triggerMode)) {
        m_host->showWarning(
            UTL_Messages::translate(m_host,
                QStringLiteral("Since the cameras with different exposure timings are mixed, the "
                               "trigger mode of "
                               "the start system can not be used. Consider using manual mode.")),
            nullptr);
        m_syncPossible = false;
    }

    for (DOC_Camera* camera : qAsConst(documentCameras)) {
        if (camera->automaticExposureControl() == 1)
            refuse("Synchronization setting is impossible because there is a camera with "
                   "automatic exposure control.");
    }

    m_timingFlagFirst = timingFlagFirst(m_triggerMode) ? 1 : 0;
}

void GUI_SyncControl::guiInit()
{
    const QString function = QStringLiteral("GUI_SyncControl::guiInit");
    FunctionLogGuard::writeEnter(function, QString());
    const auto exit = exitFrame(this, m_host, function);
    Ui_GUI_SyncControl& ui = *m_ui;
    const auto tr = [this](const char* text) {
        return UTL_Messages::translate(m_host, QString::fromUtf8(text));
    };
    // Each control is filled on its own: a host call that fails costs that control its stored
    // value, reported, and leaves the rest of the form whole.
    const auto section = [this](const auto& fill) { UTL_Barrier::reported(m_host, fill); };
    m_guiInitializing = true;
    const ScopeExit initialized([this] { m_guiInitializing = false; });

    ui.NRack_comboBox->clear();
    ui.NRack_label->setText(tr("Signal distributor"));
    ui.NRack_comboBox->addItem(tr("Do Not Use"), 0);
    ui.NRack_comboBox->addItem(tr("Use N-RACK"), 1);
    ui.NRack_comboBox->addItem(tr("Use Link Core"), 2);
    section([&] {
        // An older version stored a bool, or its text.
        const QVariant stored = m_host->getPrefVariant(PREF_KEY_SYNCCONTROL_NRACK, 0);
        const bool oldForm = stored.type() == QVariant::Bool
            || (stored.type() == QVariant::String
                && (stored.toString() == QLatin1String("true")
                    || stored.toString() == QLatin1String("false")));
        const int distributor = oldForm ? (stored.toBool() ? 1 : 0) : stored.toInt();
        ui.NRack_comboBox->setCurrentIndex(std::max(distributor, 0));
        m_savedDistributor = distributor;
    });

    section([&] {
        const bool external = m_host->getPrefBool(PREF_KEY_SYNCCONTROL_EXTERNAL, QVariant());
        if (external)
            ui.sync_external_radio->setChecked(true);
        else
            ui.sync_chain_radio->setChecked(true);
        m_savedExternal = external;
    });
    ui.groupBox->setTitle(tr("Sync method selection"));
    ui.sync_signal_label->setText(tr("Sync signal"));
    ui.sync_external_radio->setText(tr("Synchronize with an external sync signal"));
    ui.sync_external_label->setText(tr("(Includes sync signal from Link Core)"));
    ui.sync_chain_radio->setText(tr("Synchronize with chain connection"));
    ui.signal_generator_label->setText(tr("Signal generator"));

    ui.groupBox_2->setTitle(tr("Detail Setting"));
    ui.masterCamera_label->setText(tr("Master camera settings:"));
    ui.connect_signal_generator_label->setText(tr("Signal generator settings:"));

    ui.masterCameras_comboBox->clear();
    QString storedMaster;
    section([&] {
        m_host->getPrefString(storedMaster, PREF_KEY_SYNCCONTROL_MASTER_CAMERA, QVariant());
    });
    // A list that can't be worked out offers every camera; a camera that can't be read isn't
    // offered.
    QList<DOC_Camera*> candidates = m_cameras;
    section([&] { candidates = masterCandidates(m_cameras); });
    int masterPosition = 0;
    for (DOC_Camera* camera : qAsConst(candidates)) {
        section([&] {
            const QString address = camera->ipAddress(true);
            const QString label
                = camera->cameraName(true) + QStringLiteral("(") + address + QStringLiteral(")");
            if (storedMaster == address)
                masterPosition = ui.masterCameras_comboBox->count();
            ui.masterCameras_comboBox->addItem(label, ipToNumber(address));
        });
    }
    ui.masterCameras_comboBox->setCurrentIndex(masterPosition);
    m_savedMaster = int(ui.masterCameras_comboBox->currentData().toUInt());

    section([&] {
        ui.signal_generator_control_checkBox->setChecked(
            m_host->getPrefBool(PREF_KEY_SYNCCONTROL_GENERATOR_CTRL, QVariant()));
    });
    m_savedGeneratorControl = ui.signal_generator_control_checkBox->isChecked();

    ui.frequency_comboBox->clear();
    QList<int> frequencies;
    m_generator->getFrequencyList(frequencies);
    for (const int value : qAsConst(frequencies))
        ui.frequency_comboBox->addItem(QString::number(value), QString::number(value));
    section([&] {
        const int frequency = m_host->getPrefInt(PREF_KEY_SYNCCONTROL_GENERATOR_FREQUENCY, 1000);
        ui.frequency_comboBox->setCurrentIndex(std::max(0, frequencies.indexOf(frequency)));
    });
    m_savedFrequency = ui.frequency_comboBox->currentText().toInt();

    section([&] {
        QString address;
        m_generatorAddress
            = m_host->getPrefString(address, PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS, QVariant());
    });

    ui.sync_in_comboBox->clear();
    ui.sync_in_comboBox->addItem(QStringLiteral("ON CAM POS"), 0);
    ui.sync_in_comboBox->addItem(QStringLiteral("ON OTHERS POS"), 1);
    section([&] {
        ui.sync_in_comboBox->setCurrentIndex(
            m_host->getPrefInt(PREF_KEY_SYNCCONTROL_GENERATOR_INPUT, 0));
    });
    m_savedSyncIn = ui.sync_in_comboBox->currentData().toInt();

    ui.trigger_sig_polarity_comboBox->clear();
    ui.trigger_sig_polarity_comboBox->addItem(QStringLiteral("TRIG POS"), 0);
    ui.trigger_sig_polarity_comboBox->addItem(QStringLiteral("TRIG NEG"), 1);
    section([&] {
        ui.trigger_sig_polarity_comboBox->setCurrentIndex(
            m_host->getPrefInt(PREF_KEY_SYNCCONTROL_TRIGGER_SIGNAL_POLARITY, 0));
    });
    m_savedPolarity = ui.trigger_sig_polarity_comboBox->currentData().toInt();

    ui.search_pushButton->setText(tr("SearchSetting"));
    ui.connect_pushButton->setText(tr("Connect"));
    ui.update_pushButton->setText(tr("Update"));

    QTableWidget* table = ui.tableWidget;
    table->clear();
    table->setColumnCount(0);
    table->setColumnCount(4);
    table->setRowCount(0);
    section([&] {
        QStringList hubs;
        static_cast<APP_LinkCoreManager*>(m_host)->addresses(hubs, true);
        table->setRowCount(hubs.size());
    });
    const int columnWidth = table->width() / 4;
    for (int column = 0; column < 4; ++column)
        table->setColumnWidth(column, columnWidth);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setHorizontalHeaderItem(0, new QTableWidgetItem(tr("IP address")));
    table->setHorizontalHeaderItem(1, new QTableWidgetItem(tr("Sync Mode")));
    table->setHorizontalHeaderItem(2, new QTableWidgetItem(tr("Frequency (Hz)")));
    table->setHorizontalHeaderItem(3, new QTableWidgetItem(tr("Setting")));
    table->horizontalHeader()->setStyleSheet(QStringLiteral(
        "QHeaderView::section {background-color: #2C7CFF; color: white; border-style: inset; "
        "border-color: #5D99FF; border-width:1px;}"));
    table->horizontalHeader()->show();
    table->verticalHeader()->hide();
}

void GUI_SyncControl::startHubManager()
{
    const QVariant stored = m_host->getPrefVariant(PREF_KEY_SYNCCONTROL_NRACK, 0);
    if (stored == QVariant(0))
        return;
    APP_LinkCoreManager* hubs = m_host;
    hubs->setActive(true);
    hubs->connectAll(3, true);
}

QString GUI_SyncControl::distributorName() const
{
    return m_ui->NRack_comboBox->currentIndex() == 2 ? QStringLiteral("Link Core")
                                                     : QStringLiteral("N-RACK");
}

void GUI_SyncControl::guiUpdate()
{
    // Forcing "TRIG NEG" below fires a slot whose own guiUpdate would rebuild the diagram under
    // this one; the outer run already does all of it.
    if (m_initializing || m_updating)
        return;
    m_updating = true;
    const ScopeExit done([this] { m_updating = false; });
    Ui_GUI_SyncControl& ui = *m_ui;
    // The parts stand alone: a host call that fails in one is reported and the others still
    // bring their widgets into line.
    const auto part = [this](const auto& body) { UTL_Barrier::reported(m_host, body); };
    const QString name = distributorName();
    ui.sync_chain_label->setText(UTL_Messages::translate(m_host,
        QStringLiteral("※When using %1 synchronize the CAM1 camera with the master").arg(name)));
    ui.nrack_setting_label->setText(
        UTL_Messages::translate(m_host, QStringLiteral("%1 settings:").arg(name)));

    auto diagram = std::make_unique<SyncWiringDiagramWidget>();
    diagram->setUpdatesEnabled(false);
    diagram->setObjectName(QStringLiteral("diagram"));
    QPalette white = palette();
    white.setBrush(QPalette::All, QPalette::Window, QBrush(Qt::white));
    diagram->setPalette(white);
    diagram->setAutoFillBackground(true);
    // Also when a host call below throws: a diagram left without updates would never paint.
    const ScopeExit enableUpdates([guarded = QPointer<SyncWiringDiagramWidget>(diagram.get())] {
        if (guarded)
            guarded->setUpdatesEnabled(true);
    });

    if (ui.NRack_comboBox->currentIndex() == 2) {
        ui.trigger_sig_polarity_comboBox->setCurrentIndex(1);
        ui.trigger_sig_polarity_comboBox->setEnabled(false);
    } else {
        ui.trigger_sig_polarity_comboBox->setEnabled(true);
    }

    const bool external = ui.sync_external_radio->isChecked();
    ui.masterCameras_comboBox->setEnabled(!external);
    ui.signal_generator_control_checkBox->setEnabled(external);
    ui.frequency_comboBox->setEnabled(
        ui.signal_generator_control_checkBox->isChecked() && external);
    ui.sync_in_comboBox->setEnabled(external);

    part([&] {
        sortCameras(m_cameras, ui.masterCameras_comboBox->currentData().toUInt(), external,
            m_timingFlagFirst);
        m_wiring.build(diagram.get(), diagramChoices());
    });
    setDiagram(std::move(diagram));

    part([&] {
        APP_DocumentList* documents = m_host;
        for (const int key : documents->documentKeys(0)) {
            DOC_Interface* doc = documents->document(key, true);
            DOC_Camera* camera = doc ? doc->asCamera() : nullptr;
            if (camera && camera->isDummy()) {
                m_syncPossible = false;
                break;
            }
        }
    });
    if (!m_syncPossible)
        ui.ok_button->setEnabled(false);

    if (isVisible()) {
        part([&] {
            const bool pending = hasPendingChanges();
            if (pending && m_syncPossible) {
                m_blinkTimer->start();
            } else if (!pending) {
                m_blinkTimer->stop();
                setOkButtonBlink(false);
            }
        });
    }

    ui.connect_signal_generator_button->setVisible(m_generatorAvailable);
    ui.connect_signal_generator_label->setVisible(m_generatorAvailable);

    const bool generatorRow
        = !m_generatorAddress.isEmpty() && m_generatorAvailable && m_generator->isConnected();
    ui.signal_generator_label->setVisible(generatorRow);
    ui.signal_generator_control_checkBox->setVisible(generatorRow);
    ui.frequency_comboBox->setVisible(generatorRow);
    ui.frequency_label->setVisible(generatorRow);
    if (!generatorRow)
        ui.signal_generator_control_checkBox->setChecked(false);

    const bool hubs = ui.NRack_comboBox->currentData().toInt() == 2;
    for (QWidget* widget :
        { static_cast<QWidget*>(ui.tableWidget), static_cast<QWidget*>(ui.nrack_setting_label),
            static_cast<QWidget*>(ui.search_pushButton),
            static_cast<QWidget*>(ui.connect_pushButton),
            static_cast<QWidget*>(ui.update_pushButton) })
        widget->setVisible(hubs);
    if (hubs) {
        m_hubTable->clear();
        part([&] { m_hubTable->fill(); });
    } else {
        ui.sync_chain_label->setVisible(ui.NRack_comboBox->currentIndex() != 0);
    }
}

SyncWiringDiagram::Choices GUI_SyncControl::diagramChoices()
{
    SyncWiringDiagram::Choices choices;
    choices.cameras = m_cameras;
    choices.external = m_ui->sync_external_radio->isChecked();
    choices.distributor = m_ui->NRack_comboBox->currentData().toInt();
    choices.master = m_ui->masterCameras_comboBox->currentData().toUInt();
    choices.syncIn = m_ui->sync_in_comboBox->currentData().toInt();
    choices.polarity = m_ui->trigger_sig_polarity_comboBox->currentData().toInt();
    choices.distributorName = distributorName();
    choices.connectedInternalHubs = [this] { return m_hubTable->connectedInternalHubs(); };
    choices.translate
        = [this](const QString& text) { return UTL_Messages::translate(m_host, text); };
    return choices;
}

void GUI_SyncControl::paintDiagram()
{
    // Called from a paint event: a failing host call leaves the wires undrawn, in the log, and
    // no box that would itself cause another paint.
    UTL_Barrier::logged("GUI_SyncControl::paintDiagram", [this] {
        if (!m_diagram)
            return;
        SyncWiringDiagram::Choices choices = diagramChoices();
        choices.connectedInternalHubs = [this] { return m_hubTable->connectedInternalHubs(true); };
        m_wiring.paint(m_diagram, choices);
    });
}

bool GUI_SyncControl::hasPendingChanges()
{
    const Ui_GUI_SyncControl& ui = *m_ui;
    APP_CameraManager* cameras = m_host;
    if (cameras->isSyncRequired())
        return true;
    if (ui.sync_external_radio->isChecked() != m_savedExternal)
        return true;
    if (ui.NRack_comboBox->currentData().toInt() != m_savedDistributor)
        return true;
    if (ui.frequency_comboBox->currentData().toInt() != m_savedFrequency)
        return true;
    if (ui.sync_in_comboBox->currentData().toInt() != m_savedSyncIn)
        return true;
    if (ui.trigger_sig_polarity_comboBox->currentData().toInt() != m_savedPolarity)
        return true;
    const int master = int(ui.masterCameras_comboBox->currentData().toUInt());
    if (m_appliedMaster != -1) {
        if (!ui.sync_external_radio->isChecked() && master != m_appliedMaster)
            return true;
    } else if (master != m_savedMaster) {
        return true;
    }
    return static_cast<APP_LinkCoreManager*>(m_host)->hasUnappliedChanges();
}

void GUI_SyncControl::warnMasterConnector()
{
    if (m_guiInitializing)
        return;
    const int index = m_ui->NRack_comboBox->currentIndex();
    if ((index != 1 && index != 2) || !m_ui->sync_chain_radio->isChecked())
        return;
    const QString text = UTL_Messages::translate(m_host,
        QStringLiteral("When connecting to %1, use the camera connected to the CAM 1 connector as "
                       "the master"));
    m_host->showWarning(text.arg(distributorName()), this);
}

void GUI_SyncControl::setOkButtonBlink(bool on)
{
    QMutexLocker locker(&m_blinkMutex);
    if (on)
        m_ui->ok_button->setStyleSheet(QStringLiteral("background-color:coral;"));
    else
        m_ui->ok_button->setStyleSheet(
            QStringLiteral("QPushButton#") + m_ui->ok_button->objectName());
}

void GUI_SyncControl::stopBlinking()
{
    m_blinkTimer->stop();
    m_blinkOn = false;
    setOkButtonBlink(false);
}

void GUI_SyncControl::on_blink()
{
    UTL_Barrier::reported(m_host, [this] {
        SYNC_TRACE(QStringLiteral("GUI_SyncControl::on_blink"), QString());
        m_blinkOn = !m_blinkOn;
        setOkButtonBlink(m_blinkOn);
    });
}

void GUI_SyncControl::closeEvent(QCloseEvent* event)
{
    UTL_Barrier::reported(m_host, [this] { stopBlinking(); });
    event->accept();
}

void GUI_SyncControl::on_cancel_button_clicked()
{
    SYNC_TRACE(QStringLiteral("GUI_SyncControl::on_cancel_button_clicked"), QString());
    // "Sync quit" leaves unless the user chose otherwise: a failure before the answer is
    // reported and the dialog closes, so that no fault can keep the user in it. Leaving loses
    // nothing; the cameras and the preferences hold what was last applied.
    int answer = QMessageBox::No;
    UTL_Barrier::reported(m_host, [this, &answer] {
        logUserOperation(QStringLiteral("GUI_SyncControl"),
            QStringLiteral("GUI_SyncControl::on_cancel_button_clicked"), QStringLiteral("Button"),
            QStringLiteral("clicked"), QString());
        if (m_syncPossible && hasPendingChanges())
            answer = UTL_Messages::confirmYesNoCancel(
                UTL_Messages::translate(m_host,
                    QStringLiteral(
                        "Synchronization is not done. Would you like to sync? This process can not "
                        "be undone. Do you want to execute the synchronization process?")),
                m_host, this, {});
    });
    if (answer == QMessageBox::Yes) {
        on_ok_button_clicked();
        return;
    }
    if (answer == QMessageBox::Cancel)
        return;
    stopBlinking();
    reject();
}

void GUI_SyncControl::on_ok_button_clicked()
{
    SYNC_TRACE(QStringLiteral("GUI_SyncControl::on_ok_button_clicked"), QString());
    UTL_Barrier::reported(m_host, [this] {
        logUserOperation(QStringLiteral("GUI_SyncControl"),
            QStringLiteral("GUI_SyncControl::on_ok_button_clicked"), QStringLiteral("Button"),
            QStringLiteral("clicked"), QString());
        executeSync();
    });
}

void GUI_SyncControl::executeSync()
{
    Ui_GUI_SyncControl& ui = *m_ui;
    if (!m_host->confirm(
            UTL_Messages::translate(m_host,
                QStringLiteral("Make sure that it is connected as shown in the wiring diagram. Do "
                               "you want to execute the synchronization process?")),
            this, QVariantMap()))
        return;

    const quint32 masterAddress = ui.masterCameras_comboBox->currentData().toUInt();
    DOC_Camera* master = nullptr;
    bool eraseAgreed = false;
    for (DOC_Camera* camera : qAsConst(m_cameras)) {
        if (cameraAddress(camera) == masterAddress)
            master = camera;
        if (camera->isFunctionSupported(116, true) && camera->hasRecordedData()) {
            if (!eraseAgreed) {
                if (!m_host->confirm(
                        UTL_Messages::translate(m_host,
                            QStringLiteral("There are cameras that need to erase the image data "
                                           "recorded to continue the operation. Would you like to "
                                           "erase the data and continue the operation?")),
                        this, QVariantMap()))
                    return;
                eraseAgreed = true;
            }
            camera->eraseRecordedData(0);
        }
    }

    SyncSettings settings;
    settings.distributor = ui.NRack_comboBox->currentData().toInt();
    settings.external = ui.sync_external_radio->isChecked();
    settings.generatorControl = ui.signal_generator_control_checkBox->checkState() == Qt::Checked;
    settings.syncIn = ui.sync_in_comboBox->currentData().toInt();
    settings.frequency = -1;
    settings.polarity = ui.trigger_sig_polarity_comboBox->currentData().toInt();

    // The generator is set up before the cameras, so a refusal leaves them untouched.
    if (settings.external && settings.generatorControl && m_generatorAvailable && m_generator
        && m_generator->isConnected()) {
        try {
            m_generator->sync(ui.frequency_comboBox->currentText().toInt());
        } catch (const DOC_Exception&) {
            m_host->showError(
                UTL_Messages::translate(m_host, QStringLiteral("Failed sync to signal generator.")),
                nullptr);
            return;
        }
        settings.frequency = ui.frequency_comboBox->currentData().toInt();
    }

    GUI_SyncProgress progress(m_host);
    progress.start(m_cameras, master, settings);
    if (!progress.result()) {
        m_host->showInformation(
            UTL_Messages::translate(m_host, QStringLiteral("Synchronization failed.")), nullptr);
        return;
    }

    m_host->showInformation(
        UTL_Messages::translate(m_host, QStringLiteral("Synchronization is complete.")), nullptr);
    m_savedDistributor = settings.distributor;
    m_host->setPrefInt(PREF_KEY_SYNCCONTROL_NRACK, m_savedDistributor);
    m_savedExternal = settings.external;
    m_host->setPrefBool(PREF_KEY_SYNCCONTROL_EXTERNAL, m_savedExternal);
    m_savedGeneratorControl = ui.signal_generator_control_checkBox->isChecked();
    m_host->setPrefBool(PREF_KEY_SYNCCONTROL_GENERATOR_CTRL, m_savedGeneratorControl);
    m_savedFrequency = ui.frequency_comboBox->currentData().toInt();
    m_host->setPrefString(
        PREF_KEY_SYNCCONTROL_GENERATOR_FREQUENCY, QString::number(m_savedFrequency));
    m_savedSyncIn = ui.sync_in_comboBox->currentData().toInt();
    m_host->setPrefString(PREF_KEY_SYNCCONTROL_GENERATOR_INPUT, QString::number(m_savedSyncIn));
    m_savedPolarity = ui.trigger_sig_polarity_comboBox->currentData().toInt();
    m_host->setPrefString(
        PREF_KEY_SYNCCONTROL_TRIGGER_SIGNAL_POLARITY, QString::number(m_savedPolarity));
    if (!settings.external && master) {
        m_appliedMaster = int(cameraAddress(master));
        m_host->setPrefString(PREF_KEY_SYNCCONTROL_MASTER_CAMERA, master->ipAddress(true));
    }
    static_cast<APP_LinkCoreManager*>(m_host)->applyChanges();
    stopBlinking();
}

void GUI_SyncControl::on_connect_signal_generator_button_clicked()
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_connect_signal_generator_button_clicked"),
        QString(), [this] {
            // This slot owns the dialog; the pointer also sees the main window
            // deleting it first.
            QPointer<GUI_SyncSignalGeneratorConnect> dialog = new GUI_SyncSignalGeneratorConnect(
                m_host, m_host->getMainWindow(), m_generator.get());
            const ScopeExit removeDialog([dialog] { delete dialog.data(); });
            if (dialog->exec() == QDialog::Accepted) {
                QString address;
                m_generatorAddress = m_host->getPrefString(
                    address, PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS, QVariant());
            } else {
                m_host->setPrefString(PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS, m_generatorAddress);
            }
        });
}

void GUI_SyncControl::on_masterCameras_comboBox_currentIndexChanged(int index)
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_masterCameras_comboBox_currentIndexChanged"),
        indexParameter(index), [] {});
}

void GUI_SyncControl::on_signal_generator_control_checkBox_clicked(bool checked)
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_signal_generator_control_checkBox_clicked"),
        FunctionLogGuard::parameter(QStringLiteral("checked"), checked), [] {});
}

void GUI_SyncControl::on_sync_in_comboBox_currentIndexChanged(int index)
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_sync_in_comboBox_currentIndexChanged"),
        indexParameter(index), [] {});
}

void GUI_SyncControl::on_trigger_sig_polarity_comboBox_currentIndexChanged(int index)
{
    slotFrame(
        QStringLiteral("GUI_SyncControl::on_trigger_sig_polarity_comboBox_currentIndexChanged"),
        indexParameter(index), [] {});
}

void GUI_SyncControl::on_NRack_comboBox_currentIndexChanged(int index)
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_NRack_comboBox_currentIndexChanged"),
        indexParameter(index), [this] { warnMasterConnector(); });
}

void GUI_SyncControl::on_search_pushButton_clicked()
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_search_pushButton_clicked"), QString(), [this] {
        GUI_SyncControlSearchSetting dialog(m_host, this);
        if (dialog.exec() == QDialog::Accepted)
            static_cast<APP_LinkCoreManager*>(m_host)->connectAll(3, true);
    });
}

void GUI_SyncControl::on_connect_pushButton_clicked()
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_connect_pushButton_clicked"), QString(),
        [this] { static_cast<APP_LinkCoreManager*>(m_host)->connectAll(3, true); });
}

void GUI_SyncControl::on_update_pushButton_clicked()
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_update_pushButton_clicked"), QString(), [] {});
}

void GUI_SyncControl::onEditPushButtonClicked(const QString& ipaddress)
{
    slotFrame(QStringLiteral("GUI_SyncControl::onEditPushButtonClicked"),
        FunctionLogGuard::parameter(QStringLiteral("ipaddress"), ipaddress), [&] {
            GUI_SyncControlSetting dialog(m_host, ipaddress, this);
            dialog.exec();
        });
}

void GUI_SyncControl::onComboboxChanged(
    GUI_SyncControlCombobox* pComboBox, const QString& ipaddress, int value)
{
    slotFrame(QStringLiteral("GUI_SyncControl::onComboboxChanged"),
        FunctionLogGuard::parameter(QStringLiteral("ipaddress"), ipaddress)
            + FunctionLogGuard::parameter(QStringLiteral("value"), value),
        [&] {
            if (DOC_LinkCore* hub = static_cast<APP_LinkCoreManager*>(m_host)->device(ipaddress))
                hub->setFrequency(value);
            pComboBox->setValue(pComboBox->currentData().toInt());
        });
}

void GUI_SyncControl::on_sync_external_radio_clicked()
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_sync_external_radio_clicked"), QString(),
        [this] { warnMasterConnector(); });
}

void GUI_SyncControl::on_sync_chain_radio_clicked()
{
    slotFrame(QStringLiteral("GUI_SyncControl::on_sync_chain_radio_clicked"), QString(),
        [this] { warnMasterConnector(); });
}

void GUI_SyncControl::keyPressEvent(QKeyEvent* event)
{
    // Only Return and Enter act, on the focused button; everything else, Escape included, is
    // dropped.
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return;
    for (QPushButton* button : { m_ui->ok_button, m_ui->cancel_button, m_ui->update_pushButton,
             m_ui->search_pushButton, m_ui->connect_pushButton }) {
        if (button->hasFocus()) {
            button->click();
            return;
        }
    }
    QTableWidget* table = m_ui->tableWidget;
    for (int row = 0; row < table->rowCount(); ++row) {
        auto* button = qobject_cast<QPushButton*>(table->cellWidget(row, 3));
        if (button && button->hasFocus()) {
            button->click();
            return;
        }
    }
}
