#include "host/HST_Host.h"

#include "host/HST_CameraState.h"
#include "host/HST_Devices.h"
#include "host/HST_Document.h"
#include "host/HST_DocumentView.h"
#include "host/HST_Faults.h"
#include "host/HST_HubList.h"
#include "host/HST_LinkCoreHub.h"
#include "host/HST_LiveControlPage.h"
#include "host/HST_Preferences.h"
#include "host/HST_PrefsDialog.h"
#include "host/HST_Recorder.h"
#include "host/HST_SupportFile.h"
#include "plugin/APP_MediatorObject.h"
#include "util/APP_Exception.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFontDatabase>
#include <QFutureWatcher>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMutexLocker>
#include <QProgressDialog>
#include <QThread>
#include <QTranslator>
#include <QWebFrame>
#include <QWebView>

namespace {

// The translation context of the host's texts and of the plug-in's message boxes.
const char translationContext[] = "tarvix4";

// Runs work on the GUI thread and waits for it; message boxes must not open on a worker.
template <typename Work> void onGuiThread(QObject* context, Work work)
{
    if (QThread::currentThread() == context->thread())
        work();
    else
        QMetaObject::invokeMethod(context, work, Qt::BlockingQueuedConnection);
}

QString boxTitle(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return QStringLiteral("Information");
    case QMessageBox::Warning:
        return QStringLiteral("Warning");
    case QMessageBox::Critical:
        return QStringLiteral("Error");
    case QMessageBox::Question:
        return QStringLiteral("Confirmation");
    case QMessageBox::NoIcon:
        break;
    }
    return QString();
}

} // namespace

// Outside the anonymous namespace: the macro declares the resource's initialiser where it stands.
static void initResources()
{
    Q_INIT_RESOURCE(tarvixhost);
    Q_INIT_RESOURCE(tarvixweb);
    Q_INIT_RESOURCE(tarvixdevices);
}

HST_Host::HST_Host(
    const HST_Scenario& scenario, HST_Recorder* recorder, const QString& prefsPath, QObject* parent)
    : QObject(parent)
    , HST_ViewHost(recorder, scenario.timeCode)
    , m_scenario(scenario)
    , m_recorder(recorder)
    , m_prefs(new HST_Preferences(prefsPath, recorder))
    , m_scriptObject(new QObject(this))
    , m_mainScriptObject(new QObject(this))
    , m_mode(scenario.mode)
    , m_faults(std::make_unique<HST_Faults>(scenario.faults, recorder))
    , m_saveRegistry(std::make_unique<HST_SaveRegistry>(
          recorder, scenario.saveGroupDirectory, scenario.saveDirectory))
    , m_liveControlPage(new HST_LiveControlPage(recorder))
    , m_hubs(new HST_HubList(scenario.hubs, recorder, m_faults.get()))
{
    documentContext().prefs = m_prefs.get();
    initResources();
    m_scriptObject->setObjectName(QStringLiteral("app"));
    m_mainScriptObject->setObjectName(QStringLiteral("main"));
    for (auto it = scenario.prefs.begin(); it != scenario.prefs.end(); ++it)
        m_prefs->preset(it.key(), it.value());
    setTypeRecords(scenario.syncCapableTypes);
    applyStatus(scenario.status);
    setRecordingStatus(scenario.recordingStatus);
    setDocumentFaults(m_faults.get());
    setDeviceCount(scenario.deviceCount);
    addDocuments(scenario.cameras, scenario.fileDocuments);
    setSaveWorld(scenario);
    presetTools(scenario.multiLock, scenario.crossCursor);
}

void HST_Host::setTypeRecords(const QList<int>& types)
{
    m_typeRecords.clear();
    for (int type : types) {
        m_typeRecords.emplace_back(new APP_CameraTypeRecord);
        m_typeRecords.back()->cameraType = type;
    }
}

bool HST_Host::changeWorld(const QJsonObject& world, QString& error)
{
    for (const char* fixed : { "visa", "generator", "faults", "exportSupportFile", "versionText",
             "defaultCameraName", "cameraNameList", "deviceCount", "saveRegistry", "writer",
             "timeCode" }) {
        if (world.contains(QLatin1String(fixed))) {
            error = QStringLiteral("world: \"%1\" can't change while the host runs").arg(fixed);
            return false;
        }
    }
    HST_Scenario part;
    if (!HST_Scenario::fromJson(
            QJsonDocument(world).toJson(), QStringLiteral("world"), part, error))
        return false;
    const auto has = [&world](const char* key) { return world.contains(QLatin1String(key)); };
    for (auto it = part.prefs.begin(); it != part.prefs.end(); ++it)
        m_prefs->preset(it.key(), it.value());
    if (has("syncCapableTypes"))
        setTypeRecords(part.syncCapableTypes);
    if (has("applySync"))
        m_scenario.applySync = part.applySync;
    if (has("status")) {
        applyStatus(part.status);
        if (part.status.contains(STATUS_IS_FULL_SCREEN) && m_mainWindow) {
            const bool on = part.status.value(STATUS_IS_FULL_SCREEN);
            m_mainWindow->setWindowState(on ? m_mainWindow->windowState() | Qt::WindowFullScreen
                                            : m_mainWindow->windowState() & ~Qt::WindowFullScreen);
        }
    }
    if (has("recordingStatus"))
        setRecordingStatus(part.recordingStatus);
    if (has("multiLock") || has("crossCursor"))
        presetTools(has("multiLock") ? part.multiLock : multiLock(),
            has("crossCursor") ? part.crossCursor : crossCursor());
    if (has("hubs")) {
        // A hub the plug-in still points to stays alive.
        m_retiredHubs.push_back(std::move(m_hubs));
        m_hubs.reset(new HST_HubList(part.hubs, m_recorder, m_faults.get()));
        m_scenario.hubs = part.hubs;
    }
    if (has("cameras") || has("files")) {
        if (has("cameras"))
            m_scenario.cameras = part.cameras;
        if (has("files")) {
            m_scenario.files = part.files;
            m_scenario.fileDocuments = part.fileDocuments;
        }
        replaceDocuments(m_scenario.cameras, m_scenario.fileDocuments);
        resetMedia(m_scenario.cameras);
    }
    if (has("loopSave"))
        setLoopSave(part.loopSaveMode, part.loopSaveActive);
    m_recorder->record(QStringLiteral("world"),
        { { QStringLiteral("keys"), QJsonArray::fromStringList(world.keys()) } });
    if (has("mode"))
        setMode(part.mode);
    emit stateChanged();
    return true;
}

void HST_Host::hostCall(const char* operation)
{
    m_faults->enter(operation);
}

HST_Host::~HST_Host()
{
    delete m_prefsDialog.data();
    if (m_translator)
        QCoreApplication::removeTranslator(m_translator);
}

bool HST_Host::loadTranslations(const QString& path, QString& error)
{
    auto* translator = new QTranslator(this);
    if (!translator->load(path)) {
        error = QStringLiteral("%1: not a translation file that can be loaded").arg(path);
        delete translator;
        return false;
    }
    if (m_translator)
        QCoreApplication::removeTranslator(m_translator);
    m_translator = translator;
    QCoreApplication::installTranslator(m_translator);
    return true;
}

void HST_Host::setMainWindow(QWidget* window)
{
    m_mainWindow = window;
}

void HST_Host::setPluginWindowOpen(bool open)
{
    m_pluginWindows += open ? 1 : -1;
}

bool HST_Host::isOtherPluginOpen()
{
    hostCall("isOtherPluginOpen");
    return m_pluginWindows > 0;
}

HST_PrefsDialog* HST_Host::preferencesDialog()
{
    if (!m_prefsDialog) {
        m_prefsDialog = new HST_PrefsDialog(
            m_prefs.get(), m_recorder, [this](const QString& text) { return translatedText(text); },
            m_mainWindow);
        connect(m_prefsDialog, &HST_PrefsDialog::applied, this, &HST_Host::uiUpdateRequested);
    }
    return m_prefsDialog;
}

APP_PrefsDialog* HST_Host::prefsDialog()
{
    hostCall("prefsDialog");
    return preferencesDialog();
}

bool HST_Host::isPrefDialogOpening()
{
    hostCall("isPrefDialogOpening");
    return m_prefsDialog && m_prefsDialog->isRunning();
}

void HST_Host::openEthernetSettings()
{
    hostCall("openEthernetSettings");
    HST_PrefsDialog* dialog = preferencesDialog();
    dialog->selectPage(translatedText(HST_PrefsDialog::ethernetPage()));
    dialog->run();
}

bool HST_Host::exportSupportFile(const QString& zipPath)
{
    hostCall("exportSupportFile");
    // Runs on a pool thread: the pictures and the host's state are taken on the GUI thread,
    // which waits in the busy dialog meanwhile.
    HST_SupportFile::Sources sources;
    HST_Outcome outcome;
    onGuiThread(this, [&] {
        sources = HST_SupportFile::collect(*this);
        outcome = m_scenario.exportSupportFile;
    });
    if (outcome.delayMs > 0)
        QThread::msleep(ulong(outcome.delayMs));
    QStringList entries;
    QString error = outcome.ok ? QString() : outcome.message;
    const bool written = outcome.ok && HST_SupportFile::write(zipPath, sources, entries, error);
    m_recorder->record(QStringLiteral("exportSupportFile"),
        { { QStringLiteral("path"), zipPath }, { QStringLiteral("result"), written },
            { QStringLiteral("entries"), QJsonArray::fromStringList(entries) },
            { QStringLiteral("error"), error } });
    return written;
}

void HST_Host::pauseLive()
{
    hostCall("pauseLive");
    m_recorder->record(QStringLiteral("pauseLive"));
}

void HST_Host::setMode(int mode)
{
    if (mode == m_mode)
        return;
    m_mode = mode;
    m_recorder->record(QStringLiteral("mode"), { { QStringLiteral("mode"), mode } });
    emit stateChanged();
}

void HST_Host::updateUI(unsigned mask, bool flag)
{
    hostCall("updateUI");
    m_recorder->record(QStringLiteral("updateUI"),
        { { QStringLiteral("mask"), double(mask) }, { QStringLiteral("flag"), flag } });
    emit uiUpdateRequested();
}

QVariant& HST_Host::defaultVariant(QVariant& out, const QString& key)
{
    hostCall("defaultVariant");
    out = HST_Preferences::hostDefault(key);
    return out;
}

void HST_Host::restoreDefault(const QString& key)
{
    hostCall("restoreDefault");
    m_prefs->remove(key);
    m_recorder->record(QStringLiteral("restoreDefault"), { { QStringLiteral("key"), key } });
}

QWidget* HST_Host::getMainWindow()
{
    hostCall("getMainWindow");
    return m_mainWindow;
}

QWidget* HST_Host::parentWidget()
{
    hostCall("parentWidget");
    return m_mainWindow;
}

QObject* HST_Host::mdiWidget()
{
    hostCall("mdiWidget");
    m_recorder->record(QStringLiteral("mdiWidget"), {});
    auto* area = new QMdiArea;
    area->setObjectName(QStringLiteral("hostMdiArea"));
    return area;
}

QMessageBox::StandardButton HST_Host::runMessageBox(const QString& kind, QMessageBox::Icon icon,
    const QString& text, const QStringList& details, QWidget* parent, bool withCancel)
{
    QMessageBox::StandardButton clicked = QMessageBox::NoButton;
    QString answer;
    onGuiThread(this, [&] {
        QMessageBox box(icon, boxTitle(icon), text,
            withCancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok,
            parent ? parent : m_mainWindow.data());
        box.setObjectName(QStringLiteral("host_") + kind);
        if (!details.isEmpty())
            box.setInformativeText(details.join(QLatin1Char('\n')));
        box.exec();
        if (QAbstractButton* button = box.clickedButton()) {
            clicked = box.standardButton(button);
            answer = button->text().remove(QLatin1Char('&'));
        }
    });
    if (kind != QLatin1String("exception")) {
        QJsonObject event { { QStringLiteral("kind"), kind }, { QStringLiteral("text"), text },
            { QStringLiteral("answer"), answer } };
        if (!details.isEmpty())
            event.insert(QStringLiteral("details"), QJsonArray::fromStringList(details));
        m_recorder->record(QStringLiteral("message"), event);
    }
    return clicked;
}

void HST_Host::attachMediator(QWebView* view, JS_Mediator* mediator)
{
    hostCall("attachMediator");
    publishMediator(view, APP_mediatorObject(mediator));
}

void HST_Host::publishMediator(QWebView* view, QObject* object)
{
    if (!view || !object)
        return;
    // Through the meta object: the mediator's code lives in the plug-in, which the host
    // doesn't link.
    if (object->metaObject()->indexOfProperty("webView") >= 0)
        object->setProperty("webView", QVariant::fromValue(view));
    else
        QMetaObject::invokeMethod(object, "setWebView", Q_ARG(QWebView*, view));
    QWebFrame* frame = view->page()->mainFrame();
    const QString name = object->objectName();
    frame->addToJavaScriptWindowObject(name, object);
    connect(frame, &QWebFrame::javaScriptWindowObjectCleared, object,
        [frame, object, name] { frame->addToJavaScriptWindowObject(name, object); });
    m_recorder->record(QStringLiteral("attachMediator"), { { QStringLiteral("name"), name } });
}

void HST_Host::reportException(const std::exception& e)
{
    hostCall("reportException");
    showReport(e);
}

void HST_Host::showReport(const std::exception& e)
{
    const QString text = QString::fromUtf8(e.what());
    QJsonObject event { { QStringLiteral("text"), text } };
    // Proves the type survived the library boundary, not only the text.
    if (const auto* appException = dynamic_cast<const APP_Exception*>(&e)) {
        event.insert(QStringLiteral("type"), QStringLiteral("APP_Exception"));
        event.insert(QStringLiteral("errorCode"), appException->errorCode());
    } else {
        event.insert(QStringLiteral("type"), QStringLiteral("std::exception"));
    }
    m_recorder->record(QStringLiteral("reportException"), event);
    runMessageBox(QStringLiteral("exception"), QMessageBox::Critical, text, {}, nullptr, false);
}

void HST_Host::showInformation(const QString& text, QWidget* parent)
{
    hostCall("showInformation");
    runMessageBox(QStringLiteral("information"), QMessageBox::Information, text, {}, parent, false);
}

void HST_Host::showInformationList(const QString& text, const QStringList& details, int)
{
    hostCall("showInformationList");
    runMessageBox(
        QStringLiteral("informationList"), QMessageBox::Information, text, details, nullptr, false);
}

void HST_Host::showWarning(const QString& text, QWidget* parent)
{
    hostCall("showWarning");
    runMessageBox(QStringLiteral("warning"), QMessageBox::Warning, text, {}, parent, false);
}

void HST_Host::showErrorList(const QString& text, const QStringList& details, int)
{
    hostCall("showErrorList");
    runMessageBox(
        QStringLiteral("errorList"), QMessageBox::Critical, text, details, nullptr, false);
}

void HST_Host::showError(const QString& text, QWidget* parent)
{
    hostCall("showError");
    runMessageBox(QStringLiteral("error"), QMessageBox::Critical, text, {}, parent, false);
}

bool HST_Host::confirm(const QString& text, QWidget* parent, const QVariantMap&)
{
    hostCall("confirm");
    return runMessageBox(QStringLiteral("confirm"), QMessageBox::Question, text, {}, parent, true)
        == QMessageBox::Ok;
}

QStringList& HST_Host::fontList(QStringList& out)
{
    hostCall("fontList");
    out = QFontDatabase().families();
    return out;
}

void HST_Host::showAbout()
{
    hostCall("showAbout");
    showAboutBox();
}

void HST_Host::showAboutBox()
{
    runMessageBox(QStringLiteral("about"), QMessageBox::Information,
        version() + QStringLiteral("\nThe reference host of the synccontrol plug-in."), {}, nullptr,
        false);
}

QString HST_Host::translate(const QString& sourceText, int)
{
    hostCall("translate");
    return translatedText(sourceText);
}

QString HST_Host::translatedText(const QString& sourceText) const
{
    if (!m_translator)
        return sourceText;
    const QString translated = m_translator->translate(translationContext, sourceText.toUtf8());
    return translated.isEmpty() ? sourceText : translated;
}

void HST_Host::syncCapableTypes(QList<APP_CameraTypeRecord*>& out)
{
    hostCall("syncCapableTypes");
    out.clear();
    for (const auto& record : m_typeRecords)
        out.append(record.get());
}

QVariant HST_Host::getPrefVariant(const QString& key, const QVariant& defaultValue)
{
    hostCall("getPrefVariant");
    return m_prefs->value(key, defaultValue);
}

int HST_Host::getPrefInt(const QString& key, const QVariant& defaultValue)
{
    hostCall("getPrefInt");
    return m_prefs->value(key, defaultValue).toInt();
}

bool HST_Host::getPrefBool(const QString& key, const QVariant& defaultValue)
{
    hostCall("getPrefBool");
    return m_prefs->value(key, defaultValue).toBool();
}

float HST_Host::getPrefFloat(const QString& key, const QVariant& defaultValue)
{
    hostCall("getPrefFloat");
    return m_prefs->value(key, defaultValue).toFloat();
}

QString& HST_Host::getPrefString(QString& out, const QString& key, const QVariant& defaultValue)
{
    hostCall("getPrefString");
    out = m_prefs->value(key, defaultValue).toString();
    return out;
}

void HST_Host::setPrefVariant(const QString& key, const QVariant& value)
{
    hostCall("setPrefVariant");
    m_prefs->setValue(key, value);
}

void HST_Host::setPrefInt(const QString& key, int value)
{
    hostCall("setPrefInt");
    m_prefs->setValue(key, value);
}

void HST_Host::setPrefBool(const QString& key, bool value)
{
    hostCall("setPrefBool");
    m_prefs->setValue(key, value);
}

void HST_Host::setPrefFloat(const QString& key, float value)
{
    hostCall("setPrefFloat");
    m_prefs->setValue(key, value);
}

void HST_Host::setPrefString(const QString& key, const QString& value)
{
    hostCall("setPrefString");
    m_prefs->setValue(key, value);
}

void HST_Host::endModalDialog()
{
    hostCall("endModalDialog");
    --m_modalDepth;
    m_recorder->record(QStringLiteral("modal"),
        { { QStringLiteral("op"), "end" }, { QStringLiteral("depth"), m_modalDepth } });
}

void HST_Host::beginModalDialog()
{
    hostCall("beginModalDialog");
    ++m_modalDepth;
    m_recorder->record(QStringLiteral("modal"),
        { { QStringLiteral("op"), "begin" }, { QStringLiteral("depth"), m_modalDepth } });
}

QString& HST_Host::versionText(QString& out)
{
    hostCall("versionText");
    out = m_scenario.versionText;
    return out;
}

void HST_Host::runWithBusyDialog(const QString& text, QFutureWatcher<void>* watcher)
{
    hostCall("runWithBusyDialog");
    m_recorder->record(QStringLiteral("busy"), { { QStringLiteral("text"), text } });
    {
        QProgressDialog dialog(text, QString(), 0, 0, m_mainWindow);
        dialog.setObjectName(QStringLiteral("host_busy"));
        dialog.setWindowModality(Qt::ApplicationModal);
        dialog.setCancelButton(nullptr);
        dialog.setMinimumDuration(0);
        QEventLoop loop;
        connect(watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
        // Connected before the test, so a finish in between still ends the loop.
        if (!watcher->isFinished()) {
            dialog.show();
            loop.exec();
        }
    }
    // Rethrows the QException that the task stored.
    watcher->waitForFinished();
}

void HST_Host::applySync(QList<DOC_Camera*> cameras, DOC_Camera* master, int distributor,
    bool external, bool generatorControl, int syncIn, int frequency, int polarity)
{
    hostCall("applySync");
    // Runs on the sync worker: only immutable scenario data, atomics and the recorder here.
    QJsonArray addresses;
    QList<HST_CameraState*> states;
    QString refusal;
    for (DOC_Camera* camera : cameras) {
        HST_CameraState* state = cameraOf(camera);
        addresses.append(state ? QJsonValue(state->spec.ip) : QJsonValue());
        if (!state)
            refusal = QStringLiteral("A camera of the request is not connected to the host.");
        states.append(state);
    }
    HST_CameraState* masterState = cameraOf(master);
    if (master && !masterState)
        refusal = QStringLiteral("The master camera is not connected to the host.");
    if (!external && !master)
        refusal = QStringLiteral("A chain connection needs a master camera.");

    QJsonObject event { { QStringLiteral("cameras"), addresses },
        { QStringLiteral("master"), masterState ? QJsonValue(masterState->spec.ip) : QJsonValue() },
        { QStringLiteral("distributor"), distributor }, { QStringLiteral("external"), external },
        { QStringLiteral("generatorControl"), generatorControl },
        { QStringLiteral("syncIn"), syncIn }, { QStringLiteral("frequency"), frequency },
        { QStringLiteral("polarity"), polarity } };
    if (!refusal.isEmpty()) {
        event.insert(QStringLiteral("result"), QStringLiteral("refused"));
        event.insert(QStringLiteral("error"), refusal);
        m_recorder->record(QStringLiteral("applySync"), event);
        throw APP_Exception(refusal, 0);
    }
    const HST_Outcome outcome = m_scenario.applySync;
    if (outcome.delayMs > 0)
        QThread::msleep(ulong(outcome.delayMs));
    if (!outcome.ok) {
        event.insert(QStringLiteral("result"), QStringLiteral("error"));
        event.insert(QStringLiteral("error"), outcome.message);
        m_recorder->record(QStringLiteral("applySync"), event);
        throw APP_Exception(outcome.message, 1);
    }
    event.insert(QStringLiteral("result"), QStringLiteral("ok"));
    m_recorder->record(QStringLiteral("applySync"), event);
    for (HST_CameraState* state : states) {
        // A camera that must be empty for a sync is emptied by it.
        if (state->spec.needsErase && state->recorded.exchange(false))
            m_recorder->record(QStringLiteral("eraseRecordedData"),
                { { QStringLiteral("camera"), state->spec.ip } });
        state->syncRequired.store(false);
        ++state->syncCount;
    }
}

bool HST_Host::isSyncRequired()
{
    hostCall("isSyncRequired");
    for (const HST_CameraState* camera : cameras()) {
        if (camera->syncRequired.load())
            return true;
    }
    return false;
}

void HST_Host::setActive(bool active)
{
    hostCall("setActive");
    m_hubs->setActive(active);
}

void HST_Host::commitSearchList()
{
    hostCall("commitSearchList");
    m_hubs->commitSearchList();
}

void HST_Host::rollbackSearchList()
{
    hostCall("rollbackSearchList");
    m_hubs->rollbackSearchList();
}

void HST_Host::connectAll(int kind, bool wait)
{
    hostCall("connectAll");
    m_hubs->connectAll(kind, wait);
}

void HST_Host::shutdown()
{
    hostCall("shutdown");
    m_hubs->shutdown();
}

void HST_Host::addSearchAddress(const QString& ip)
{
    hostCall("addSearchAddress");
    m_hubs->addSearchAddress(ip);
}

void HST_Host::removeSearchAddress(const QString& ip)
{
    hostCall("removeSearchAddress");
    m_hubs->removeSearchAddress(ip);
}

DOC_LinkCore* HST_Host::device(const QString& ip)
{
    hostCall("device");
    return m_hubs->hub(ip);
}

void HST_Host::addresses(QStringList& out, bool)
{
    hostCall("addresses");
    out = m_hubs->addresses();
}

void HST_Host::changeAddress(const QString& oldIp, const QString& newIp)
{
    hostCall("changeAddress");
    m_hubs->changeAddress(oldIp, newIp);
}

bool HST_Host::hasUnappliedChanges()
{
    hostCall("hasUnappliedChanges");
    return m_hubs->hasUnappliedChanges();
}

void HST_Host::applyChanges()
{
    hostCall("applyChanges");
    m_hubs->applyChanges();
}

QString& HST_Host::defaultCameraName(QString& out, int)
{
    hostCall("defaultCameraName");
    out = m_scenario.defaultCameraName.isEmpty()
        ? HST_Devices::defaultName(int(cameraStates().size()))
        : m_scenario.defaultCameraName;
    return out;
}

void HST_Host::addDevice(const QString& cameraName, const QString& ip, bool isDummy, bool connect)
{
    hostCall("addDevice");
    HST_CameraSpec spec = HST_Devices::newDevice(cameraStates(), cameraName, ip, isDummy);
    spec.connected = connect;
    HST_CameraState* camera = addCamera(spec);
    HST_Devices::recordAdded(m_recorder, *camera, connect);
    emit stateChanged();
}

void HST_Host::editDevice(int key, const QString& cameraName, const QString& ip,
    const QString& subnetmask, const QString& gateway, bool cameraMode)
{
    hostCall("editDevice");
    HST_Document* document = openDocument(key);
    HST_Devices::edit(cameraStates(), document ? document->cameraState() : nullptr, cameraName, ip,
        subnetmask, gateway);
    m_recorder->record(QStringLiteral("editDevice"),
        { { QStringLiteral("key"), key }, { QStringLiteral("name"), cameraName },
            { QStringLiteral("ip"), ip }, { QStringLiteral("subnetmask"), subnetmask },
            { QStringLiteral("gateway"), gateway }, { QStringLiteral("cameraMode"), cameraMode } });
    emit stateChanged();
}
