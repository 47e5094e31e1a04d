#pragma once

#include "host/HST_Document.h"
#include "host/HST_Scenario.h"
#include "host/HST_StatusHost.h"

#include <QMap>
#include <QMutex>
#include <QPointer>

#include <memory>
#include <vector>

class HST_Faults;
class HST_HeadGroups;
class QMdiArea;
struct HST_CameraState;

// The documents of the reference host: the simulated cameras and files of a scenario, which one
// is current, which are selected, and the windows that show them. HST_Host adds the rest.
class HST_DocumentHost : public HST_StatusHost
{
public:
    explicit HST_DocumentHost(HST_Recorder* recorder);
    ~HST_DocumentHost() override;

    // Where the documents' operations start (HST_Faults); before the first document is made.
    void setDocumentFaults(HST_Faults* faults);
    // What every document is made with; the owner fills in the preferences.
    HST_DocumentContext& documentContext() { return m_documentContext; }
    // The number deviceCount gives; negative: the number of cameras there are.
    void setDeviceCount(int count);
    // Appends documents for the cameras, then the files; an idle viewer's first window is
    // current and selected.
    void addDocuments(const QList<HST_CameraSpec>& cameras, const QList<HST_DocumentSpec>& files);
    // Closes every document and opens those of the cameras and files.
    void replaceDocuments(
        const QList<HST_CameraSpec>& cameras, const QList<HST_DocumentSpec>& files);
    // A camera and its documents; its first document is current when there was none.
    HST_CameraState* addCamera(const HST_CameraSpec& spec);
    // A document without a camera; gives its key.
    int addFileDocument();
    // A document without a camera, as the scenario gives it; gives its key.
    int addDocument(const HST_DocumentSpec& spec);
    // The document windows, which windowCount counts; without them every document counts as
    // one window.
    void setDocumentArea(QMdiArea* area);

    // The host's own view of its documents: not operations of the plug-in's, so they are
    // neither recorded as calls nor faulted.
    QList<HST_Document*> openDocuments() const;
    int currentDocumentKey() const { return m_currentKey; }
    void makeCurrent(int key);
    void closeDocument(int key);
    HST_CameraState* cameraOf(DOC_Camera* camera) const;
    QList<HST_CameraState*> cameras() const;
    const std::vector<std::unique_ptr<HST_CameraState>>& cameraStates() const { return m_cameras; }
    // Null when the key names no open document.
    HST_Document* openDocument(int key) const { return m_documents.value(key, nullptr); }

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
    void selectDocument(int key) override;
    void unselectDocument(int key) override;
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
    void selectAllDocuments(JS_Mediator* mediator) override;
    void selectDocuments(const QList<int>& keys, int reserved = 0) override;
    void documentsChanged(bool refresh = true) override;
    int selectedDocumentCount() override;
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

    // Multi-head devices, device entries and camera settings (HST_DocumentHostDevices.cpp).
    HST_HeadGroups* headGroups() const { return m_headGroups.get(); }
    void removeAllDocuments(int reserved, bool unselectOnly) override;
    DOC_Interface* headParent(DOC_Interface* doc) override;
    QList<int> settingsDocumentKeys() override;
    QMutex* cameraMutex() override
    {
        hostCall("cameraMutex");
        return &m_cameraMutex;
    }
    void saveSettingsFile(const QString& path, int reserved = 0) override;
    void loadSettingsFile(const QString& path) override;
    void stopPlayer() override;
    void stopViewRecording() override;
    void selectPartition(int partition, bool update = true) override;

    // APP_SaveRegistry, APP_WindowList
    void copySelectArea(int kind = 2) override;
    int windowCount(bool visible, int kind) override;

private:
    HST_CameraState* addHeadGroup(const HST_CameraSpec& spec);
    // Only the listed documents selected.
    void setSelection(const QList<int>& keys);
    void recordSelection();
    void countDevices();

    HST_Recorder* m_documentRecorder;
    HST_DocumentContext m_documentContext;
    int m_deviceCountOverride = -1;
    std::vector<std::unique_ptr<HST_CameraState>> m_cameras;
    std::vector<std::unique_ptr<HST_CameraState>> m_retiredCameras;
    // All documents ever made; a removed one stays alive, since a dialog may still hold it.
    std::vector<std::unique_ptr<HST_Document>> m_allDocuments;
    QMap<int, HST_Document*> m_documents;
    QMap<DOC_Camera*, HST_CameraState*> m_cameraByPointer;
    int m_nextKey = 1;
    int m_currentKey = INVALID_DOCKEY;
    int m_fileCount = 0;
    QMutex m_documentMutex;
    QPointer<QMdiArea> m_documentArea;
    std::unique_ptr<HST_HeadGroups> m_headGroups;
    QMutex m_cameraMutex;
};
