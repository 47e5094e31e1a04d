#include "sync/GUI_SyncControl.h"

#include "ui_GUI_SyncControl.h"

#include "generator/DOC_VIGen.h"
#include "plugin/APP_CameraTypeRecord.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SyncKeys.h"
#include "sync/SyncCameraOrder.h"
#include "util/APP_Exception.h"
#include "util/FunctionLogGuard.h"
#include "util/ScopeExit.h"
#include "util/UTL_Messages.h"
#include "util/UTL_TextHelpers.h"
#include "util/UserOperationLog.h"

#include <QKeyEvent>

namespace {

// The exit half of the frame every slot and init share: the leave line, written from inside
// the callable so it carries the callable's name, then a guiUpdate, also after an exception.
auto exitFrame(GUI_SyncControl* dialog, const QString& function)
{
    return ScopeExit([dialog, function]() {
        FunctionLogGuard::writeLeave(function + QStringLiteral("::<lambda_1>::operator ()"));
        dialog->guiUpdate();
    });
}

} // namespace

GUI_SyncControl::GUI_SyncControl(APP_Host* host, QWidget* parent)
    : GUI_Dialog(parent, Qt::WindowFlags(), true)
    , m_ui(new Ui_GUI_SyncControl)
    , m_host(host)
{
    m_ui->setupUi(this);
    setMinimumSize(size());
    setMaximumSize(size());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setWindowTitle(m_host->translate(QStringLiteral("p_synccontrol")));
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    m_generator = new DOC_VIGen(host);
}

GUI_SyncControl::~GUI_SyncControl()
{
    try {
        static_cast<APP_LinkCoreManager*>(m_host)->shutdown();
        const bool connected = m_generatorAvailable && m_generator && m_generator->isConnected();
        m_host->setPrefBool(SyncKeys::PREF_KEY_SYNCCONTROL_GENERATOR_TRYCONNECT, connected);
        if (m_generator)
            m_generator->disconnect();
    } catch (const std::exception& e) {
        m_host->reportException(e);
    }
    delete m_generator;
    delete m_ui;
}

int GUI_SyncControl::exec()
{
    init();
    UTL_Messages::setNativeStyle(m_host, this);
    m_ui->ok_button->setText(m_host->translate(QStringLiteral("Sync execute")));
    m_ui->cancel_button->setText(m_host->translate(QStringLiteral("Sync quit")));
    m_ui->ok_button->setEnabled(m_syncPossible);
    return QDialog::exec();
}

// The sync itself and the question on leaving come with the rest of the form.
void GUI_SyncControl::on_cancel_button_clicked()
{
    logUserOperation(QStringLiteral("GUI_SyncControl"),
                     QStringLiteral("GUI_SyncControl::on_cancel_button_clicked"),
                     QStringLiteral("Button"), QStringLiteral("clicked"), QString());
    reject();
}

void GUI_SyncControl::on_ok_button_clicked()
{
    logUserOperation(QStringLiteral("GUI_SyncControl"),
                     QStringLiteral("GUI_SyncControl::on_ok_button_clicked"),
                     QStringLiteral("Button"), QStringLiteral("clicked"), QString());
}

void GUI_SyncControl::init()
{
    const QString function = QStringLiteral("GUI_SyncControl::init");
    FunctionLogGuard::writeEnter(function, QString());
    const auto exit = exitFrame(this, function);

    m_cameras.clear();
    m_initializing = true;
    m_syncPossible = true;

    APP_DocumentList* documents = m_host;
    const QList<int> keys = documents->documentKeys(0);
    for (const int key : keys) {
        DOC_Interface* doc = documents->document(key, true);
        if (!doc)
            continue;
        DOC_Camera* camera = doc->asCamera();
        if (camera && !m_cameras.contains(camera))
            m_cameras.append(camera);
    }
    sortByAddress(m_cameras);

    checkSyncConditions();

    try {
        guiInit();
        const bool tryConnect =
            m_host->getPrefBool(SyncKeys::PREF_KEY_SYNCCONTROL_GENERATOR_TRYCONNECT, false);
        m_generatorAvailable = m_generator->loadLibrary();
        if (tryConnect && m_generatorAvailable && isIpAddress(m_generatorAddress)) {
            m_generator->connect(0, ipToNumber(m_generatorAddress));
            if (m_generator->isConnected() && !m_generator->isSupportedDevice())
                m_generator->disconnect();
        }
        m_initializing = false;
        startHubManager();
    } catch (const std::exception& e) {
        m_host->reportException(e);
    }
}

void GUI_SyncControl::checkSyncConditions()
{
    const auto refuse = [this](const char* text) {
        throw APP_Exception(m_host->translate(QString::fromUtf8(text)), 0);
    };

    if (m_cameras.size() < 2)
        refuse("Because there is only one camera, synchronization is not necessary.");

    // Steps over the documents see every document's camera, not only the distinct ones.
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
            refuse("Synchronization setting is impossible due to the presence of low light camera.");
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
        const bool capable = std::any_of(records.cbegin(), records.cend(),
                                         [type](const APP_CameraTypeRecord* record) {
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
            m_host->translate(QStringLiteral(
                "Since the cameras with different exposure timings are mixed, the trigger mode of "
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

// The form arrives in a later step; until then the run reads only what the model needs.
void GUI_SyncControl::guiInit()
{
    const QString function = QStringLiteral("GUI_SyncControl::guiInit");
    FunctionLogGuard::writeEnter(function, QString());
    const auto exit = exitFrame(this, function);

    m_guiInitializing = true;
    const QVariant stored = m_host->getPrefVariant(SyncKeys::PREF_KEY_SYNCCONTROL_NRACK, 0);
    const bool oldBool = stored.type() == QVariant::Bool
                         || (stored.type() == QVariant::String
                             && (stored.toString() == QLatin1String("true")
                                 || stored.toString() == QLatin1String("false")));
    m_savedDistributor = oldBool ? (stored.toBool() ? 1 : 0) : stored.toInt();
    m_savedExternal = m_host->getPrefBool(SyncKeys::PREF_KEY_SYNCCONTROL_EXTERNAL, QVariant());
    QString address;
    m_generatorAddress =
        m_host->getPrefString(address, SyncKeys::PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS, QVariant());
    m_guiInitializing = false;
}

void GUI_SyncControl::startHubManager()
{
    const QVariant stored = m_host->getPrefVariant(SyncKeys::PREF_KEY_SYNCCONTROL_NRACK, 0);
    if (stored == QVariant(0))
        return;
    APP_LinkCoreManager* hubs = m_host;
    hubs->setActive(true);
    hubs->connectAll(3, true);
}

void GUI_SyncControl::guiUpdate()
{
    if (m_initializing)
        return;
    sortCameras(m_cameras, 0, m_savedExternal, m_timingFlagFirst);

    APP_DocumentList* documents = m_host;
    for (const int key : documents->documentKeys(0)) {
        DOC_Interface* doc = documents->document(key, true);
        DOC_Camera* camera = doc ? doc->asCamera() : nullptr;
        if (camera && camera->isDummy()) {
            m_syncPossible = false;
            break;
        }
    }
    if (!m_syncPossible)
        m_ui->ok_button->setEnabled(false);
}

void GUI_SyncControl::keyPressEvent(QKeyEvent* event)
{
    // Only Return and Enter act, on the focused button; everything else, Escape included, is
    // dropped.
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return;
    for (QPushButton* button : {m_ui->ok_button, m_ui->cancel_button}) {
        if (button->hasFocus()) {
            button->click();
            return;
        }
    }
}
