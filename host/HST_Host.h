#pragma once

#include "host/HST_Document.h"
#include "host/HST_NeutralHost.h"
#include "host/HST_SaveRegistry.h"
#include "host/HST_Scenario.h"
#include "plugin/APP_CameraTypeRecord.h"

#include <QMap>
#include <QMessageBox>
#include <QMutex>
#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

class HST_Faults;
class HST_HubList;
class HST_Preferences;
class HST_Recorder;
class QTranslator;
struct HST_CameraState;

// The reference host: APP_Host over the simulated cameras, documents and hubs of a scenario.
// Messages are real message boxes, preferences an INI file, and every call the plug-in makes
// that a test may want to see is recorded. Operations the simulation doesn't model are in
// HST_NeutralHost.
class HST_Host : public QObject, public HST_NeutralHost
{
    Q_OBJECT

public:
    HST_Host(const HST_Scenario& scenario, HST_Recorder* recorder, const QString& prefsPath,
        QObject* parent = nullptr);
    ~HST_Host() override;

    const HST_Scenario& scenario() const { return m_scenario; }
    HST_Recorder* recorder() const { return m_recorder; }
    HST_Preferences* preferences() const { return m_prefs.get(); }
    bool loadTranslations(const QString& path, QString& error);
    void setMainWindow(QWidget* window);
    void setMode(int mode);
    // A document without a camera; gives its key.
    int addFileDocument();
    // Applies the keys of a scenario that the object holds, as if the world had changed
    // (cameras and files replace all documents); false with error set when refused.
    bool changeWorld(const QJsonObject& world, QString& error);
    HST_HubList* hubs() const { return m_hubs.get(); }
    HST_SaveRegistry* saveRegistry() const { return m_saveRegistry.get(); }
    int modalDepth() const { return m_modalDepth; }
    HST_Faults* faults() const { return m_faults.get(); }

    // The host's own view of its state, for its window: not operations of the plug-in's, so
    // they are neither recorded nor faulted.
    int mode() const { return m_mode; }
    QList<HST_Document*> openDocuments() const { return m_documents.values(); }
    void closeDocument(int key);
    void showReport(const std::exception& e);

signals:
    // The mode or the documents changed: plug-ins' enabled state must be asked again.
    void stateChanged();

public:
    // APP_Host
    void updateUI(unsigned mask, bool flag) override;
    QVariant& defaultVariant(QVariant& out, const QString& key) override;
    void restoreDefault(const QString& key) override;
    bool isModalAnnounced() override
    {
        hostCall("isModalAnnounced");
        return true;
    }
    int saveTargetKind() override
    {
        hostCall("saveTargetKind");
        return m_mode;
    }
    bool isCameraMode() override
    {
        hostCall("isCameraMode");
        return m_mode == 0;
    }
    bool isMemoryMode() override
    {
        hostCall("isMemoryMode");
        return m_mode == 1;
    }
    bool isFileMode() override
    {
        hostCall("isFileMode");
        return m_mode == 2;
    }
    QWidget* getMainWindow() override;
    QWidget* parentWidget() override;
    // A new, empty MDI area each call: the page that embeds it takes it and deletes it with
    // itself, so one widget can't be handed to two pages.
    QObject* mdiWidget() override;
    // Plain objects: pages find "app" and "main", with nothing on them yet.
    QObject* scriptObject() override
    {
        hostCall("scriptObject");
        return m_scriptObject;
    }
    QObject* mainScriptObject() override
    {
        hostCall("mainScriptObject");
        return m_mainScriptObject;
    }
    // Stores the view in the mediator's property "webView" (or by its invokable
    // setWebView(QWebView*)) and publishes the mediator under its object name, again whenever
    // the page's window object is cleared.
    void attachMediator(QWebView* view, JS_Mediator* mediator) override;
    void reportException(const std::exception& e) override;
    void showInformation(const QString& text, QWidget* parent) override;
    void showInformationList(
        const QString& text, const QStringList& details, int reserved = 0) override;
    void showWarning(const QString& text, QWidget* parent) override;
    void showErrorList(const QString& text, const QStringList& details, int reserved = 0) override;
    void showError(const QString& text, QWidget* parent) override;
    bool confirm(const QString& text, QWidget* parent, const QVariantMap& options) override;
    QStringList& fontList(QStringList& out) override;
    QString translate(const QString& sourceText, int reserved = 0) override;
    void syncCapableTypes(QList<APP_CameraTypeRecord*>& out) override;
    bool isReady() override
    {
        hostCall("isReady");
        return true;
    }
    QVariant getPrefVariant(const QString& key, const QVariant& defaultValue) override;
    int getPrefInt(const QString& key, const QVariant& defaultValue) override;
    bool getPrefBool(const QString& key, const QVariant& defaultValue) override;
    float getPrefFloat(const QString& key, const QVariant& defaultValue) override;
    QString& getPrefString(QString& out, const QString& key, const QVariant& defaultValue) override;
    void setPrefVariant(const QString& key, const QVariant& value) override;
    void setPrefInt(const QString& key, int value) override;
    void setPrefBool(const QString& key, bool value) override;
    void setPrefFloat(const QString& key, float value) override;
    void setPrefString(const QString& key, const QString& value) override;
    bool isModalDialogOpening() override
    {
        hostCall("isModalDialogOpening");
        return m_modalDepth > 0;
    }
    void endModalDialog() override;
    void beginModalDialog() override;
    QString& versionText(QString& out) override;
    bool isCameraNameListEnabled() override
    {
        hostCall("isCameraNameListEnabled");
        return m_scenario.cameraNameList;
    }
    void runWithBusyDialog(const QString& text, QFutureWatcher<void>* watcher) override;

    // APP_DocumentList
    int documentKey(DOC_Interface* doc) override;
    DOC_Interface* document(int key, bool connectedOnly = true) override;
    DOC_Interface* documentForList(int key) override
    {
        hostCall("documentForList");
        return document(key);
    }
    DOC_Interface* documentByKey(int key) override
    {
        hostCall("documentByKey");
        return document(key);
    }
    void setCurrentDocument(int key, bool update = true) override;
    DOC_Interface* currentDocument() override
    {
        hostCall("currentDocument");
        return document(m_currentKey);
    }
    int currentKey() override
    {
        hostCall("currentKey");
        return m_currentKey;
    }
    void removeDocument(int key) override;
    void documentsChanged(bool refresh = true) override;
    int selectedDocumentCount() override
    {
        hostCall("selectedDocumentCount");
        return m_documents.size();
    }
    QList<int>& documentKeysForList(QList<int>& out, int filter = 1) override;
    QList<int>& temporaryDocumentKeys(QList<int>& out) override;
    QList<int>& openedDocumentKeys(
        QList<int>& out, bool first = true, bool second = false) override;
    QList<int>& liveDocumentKeys(QList<int>& out, int filter = 0) override;
    QList<int> documentKeys(int filter = 0) override;
    QList<int>& orderedKeys(QList<int>& out) override;
    QMutex* documentMutex() override
    {
        hostCall("documentMutex");
        return &m_documentMutex;
    }
    QList<DOC_Interface*>& allDocuments(QList<DOC_Interface*>& out) override;

    // APP_CameraManager
    void applySync(QList<DOC_Camera*> cameras, DOC_Camera* master, int distributor, bool external,
        bool generatorControl, int syncIn, int frequency, int polarity) override;
    bool isSyncRequired() override;
    QString& defaultCameraName(QString& out, int reserved = 0) override;
    // Both refuse a name or address that no camera can have, and an address in use, with
    // APP_Exception; nothing changes then.
    void editDevice(int key, const QString& cameraName, const QString& ip,
        const QString& subnetmask, const QString& gateway, bool cameraMode) override;
    void addDevice(
        const QString& cameraName, const QString& ip, bool isDummy, bool connect) override;

    // APP_SaveRegistry (HST_SaveRegistry)
    void commitPendingNames() override
    {
        hostCall("commitPendingNames");
        m_saveRegistry->commitPendingNames();
    }
    void beginNamePass() override
    {
        hostCall("beginNamePass");
        m_saveRegistry->beginNamePass();
    }
    void noteGroupDirectory(const QString& groupDir) override
    {
        hostCall("noteGroupDirectory");
        m_saveRegistry->noteGroupDirectory(groupDir);
    }
    void noteDirectory(const QString& dir) override
    {
        hostCall("noteDirectory");
        m_saveRegistry->noteDirectory(dir);
    }
    void notePath(const QString& path) override
    {
        hostCall("notePath");
        m_saveRegistry->notePath(path);
    }
    bool isDirectoryTaken(const QString& dir) override
    {
        hostCall("isDirectoryTaken");
        return m_saveRegistry->isDirectoryTaken(dir);
    }
    bool isPathTaken(const QString& path) override
    {
        hostCall("isPathTaken");
        return m_saveRegistry->isPathTaken(path);
    }
    QString& groupDirectoryOverride(QString& out) override
    {
        hostCall("groupDirectoryOverride");
        return out = m_saveRegistry->groupDirectoryOverride();
    }
    QString& directoryOverride(QString& out) override
    {
        hostCall("directoryOverride");
        return out = m_saveRegistry->directoryOverride();
    }
    void beginGroupPass() override
    {
        hostCall("beginGroupPass");
        m_saveRegistry->beginGroupPass();
    }

    // APP_LinkCoreManager
    void setActive(bool active) override;
    void commitSearchList() override;
    void rollbackSearchList() override;
    void connectAll(int kind = 3, bool wait = true) override;
    void shutdown() override;
    void addSearchAddress(const QString& ip) override;
    void removeSearchAddress(const QString& ip) override;
    DOC_LinkCore* device(const QString& ip) override;
    void addresses(QStringList& out, bool all = true) override;
    void changeAddress(const QString& oldIp, const QString& newIp) override;
    bool hasUnappliedChanges() override;
    void applyChanges() override;

protected:
    void hostCall(const char* operation) override;

private:
    void setTypeRecords(const QList<int>& types);
    void addDocuments(const QList<HST_CameraSpec>& cameras, const QList<HST_DocumentSpec>& files);
    HST_CameraState* addCamera(const HST_CameraSpec& spec);
    void countDevices();
    // Records the box with the text of the button that closed it.
    QMessageBox::StandardButton runMessageBox(const QString& kind, QMessageBox::Icon icon,
        const QString& text, const QStringList& details, QWidget* parent, bool withCancel);

    HST_Scenario m_scenario;
    HST_Recorder* m_recorder;
    std::unique_ptr<HST_Preferences> m_prefs;
    QTranslator* m_translator = nullptr;
    QPointer<QWidget> m_mainWindow;
    QObject* m_scriptObject;
    QObject* m_mainScriptObject;
    int m_mode = 0;
    int m_modalDepth = 0;

    std::unique_ptr<HST_Faults> m_faults;
    HST_DocumentContext m_documentContext;
    std::unique_ptr<HST_SaveRegistry> m_saveRegistry;
    std::vector<std::unique_ptr<HST_CameraState>> m_cameras;
    // All documents ever made; a removed one stays alive, since a dialog may still hold it.
    std::vector<std::unique_ptr<HST_Document>> m_allDocuments;
    QMap<int, HST_Document*> m_documents;
    QMap<DOC_Camera*, HST_CameraState*> m_cameraByPointer;
    int m_nextKey = 1;
    int m_currentKey = INVALID_DOCKEY;
    int m_fileCount = 0;
    QMutex m_documentMutex;
    std::vector<std::unique_ptr<APP_CameraTypeRecord>> m_typeRecords;

    std::unique_ptr<HST_HubList> m_hubs;
    std::vector<std::unique_ptr<HST_CameraState>> m_retiredCameras;
    std::vector<std::unique_ptr<HST_HubList>> m_retiredHubs;
};
