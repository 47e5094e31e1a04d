#include "host/HST_DocumentHost.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_DocumentView.h"
#include "host/HST_HeadGroups.h"
#include "host/HST_Recorder.h"

#include <QApplication>
#include <QClipboard>
#include <QJsonArray>
#include <QMdiArea>
#include <QMdiSubWindow>

HST_DocumentHost::HST_DocumentHost(HST_Recorder* recorder)
    : HST_StatusHost(recorder)
    , m_documentRecorder(recorder)
    , m_headGroups(new HST_HeadGroups(recorder, [this](const QList<int>& keys, bool selected) {
        for (int key : keys) {
            if (HST_Document* document = m_documents.value(key, nullptr))
                document->setSelected(selected);
        }
        recordSelection();
    }))
{
    m_documentContext.recorder = recorder;
    m_documentContext.headGroups = m_headGroups.get();
    m_headGroups->setIsSelected([this](int key) {
        const HST_Document* document = m_documents.value(key, nullptr);
        return document && document->selected();
    });
}

HST_DocumentHost::~HST_DocumentHost() = default;

void HST_DocumentHost::setDocumentFaults(HST_Faults* faults)
{
    m_documentContext.faults = faults;
}

void HST_DocumentHost::setDeviceCount(int count)
{
    m_deviceCountOverride = count;
    countDevices();
}

void HST_DocumentHost::countDevices()
{
    m_documentContext.deviceCount
        = m_deviceCountOverride >= 0 ? m_deviceCountOverride : int(m_cameras.size());
}

QList<HST_Document*> HST_DocumentHost::openDocuments() const
{
    return m_documents.values();
}

HST_CameraState* HST_DocumentHost::cameraOf(DOC_Camera* camera) const
{
    return m_cameraByPointer.value(camera, nullptr);
}

QList<HST_CameraState*> HST_DocumentHost::cameras() const
{
    QList<HST_CameraState*> list;
    for (const auto& camera : m_cameras)
        list.append(camera.get());
    return list;
}

void HST_DocumentHost::replaceDocuments(
    const QList<HST_CameraSpec>& cameras, const QList<HST_DocumentSpec>& files)
{
    // The documents and cameras of before stay alive, like a removed document.
    for (auto& camera : m_cameras)
        m_retiredCameras.push_back(std::move(camera));
    m_cameras.clear();
    m_cameraByPointer.clear();
    m_documents.clear();
    m_headGroups->clear();
    m_currentKey = INVALID_DOCKEY;
    m_fileCount = 0;
    addDocuments(cameras, files);
}

void HST_DocumentHost::addDocuments(
    const QList<HST_CameraSpec>& cameras, const QList<HST_DocumentSpec>& files)
{
    for (const HST_CameraSpec& spec : cameras)
        addCamera(spec);
    for (const HST_DocumentSpec& file : files) {
        m_allDocuments.emplace_back(
            new HST_Document(m_nextKey, nullptr, m_fileCount++, &m_documentContext, file));
        m_documents.insert(m_nextKey++, m_allDocuments.back().get());
    }
    if (!m_documents.isEmpty()) {
        // An idle viewer: the first window current and selected.
        m_currentKey = m_documents.firstKey();
        setSelection({ m_currentKey });
    }
}

HST_CameraState* HST_DocumentHost::addCamera(const HST_CameraSpec& spec)
{
    if (spec.setup.heads >= 2)
        return addHeadGroup(spec);
    m_cameras.emplace_back(new HST_CameraState);
    HST_CameraState* camera = m_cameras.back().get();
    camera->spec = spec;
    camera->index = int(m_cameras.size()) - 1;
    camera->recorder = m_documentRecorder;
    camera->recorded.store(camera->spec.recorded);
    camera->syncRequired.store(camera->spec.syncRequired);
    for (int d = 0; d < camera->spec.documents; ++d) {
        m_allDocuments.emplace_back(
            new HST_Document(m_nextKey, camera, d, &m_documentContext, spec.document));
        HST_Document* document = m_allDocuments.back().get();
        m_documents.insert(m_nextKey++, document);
        if (!camera->primary) {
            camera->primary = document;
            m_cameraByPointer.insert(document, camera);
        }
    }
    countDevices();
    if (m_currentKey == INVALID_DOCKEY && camera->primary)
        m_currentKey = camera->primary->key();
    return camera;
}

void HST_DocumentHost::makeCurrent(int key)
{
    if (key == m_currentKey || !m_documents.contains(key))
        return;
    m_currentKey = key;
    m_documentRecorder->record(QStringLiteral("current"), { { QStringLiteral("key"), key } });
    hostStateChanged();
}

void HST_DocumentHost::setDocumentArea(QMdiArea* area)
{
    m_documentArea = area;
}

void HST_DocumentHost::copySelectArea(int kind)
{
    hostCall("copySelectArea");
    const HST_Document* current = m_documents.value(m_currentKey, nullptr);
    if (current)
        QApplication::clipboard()->setImage(
            HST_DocumentView::makeFrame(current->key(), current->title()));
    m_documentRecorder->record(QStringLiteral("copySelectArea"),
        { { QStringLiteral("kind"), kind }, { QStringLiteral("key"), m_currentKey },
            { QStringLiteral("copied"), current != nullptr } });
}

int HST_DocumentHost::windowCount(bool visible, int)
{
    hostCall("windowCount");
    if (!m_documentArea)
        return m_documents.size();
    int count = 0;
    for (const QMdiSubWindow* window : m_documentArea->subWindowList())
        count += !visible || window->isVisible();
    return count;
}

void HST_DocumentHost::setSelection(const QList<int>& keys)
{
    for (auto it = m_documents.begin(); it != m_documents.end(); ++it)
        it.value()->setSelected(keys.contains(it.key()));
}

void HST_DocumentHost::recordSelection()
{
    QJsonArray selected;
    for (auto it = m_documents.begin(); it != m_documents.end(); ++it) {
        if (it.value()->selected())
            selected.append(it.key());
    }
    m_documentRecorder->record(
        QStringLiteral("selection"), { { QStringLiteral("keys"), selected } });
    hostStateChanged();
}

void HST_DocumentHost::selectDocument(int key)
{
    hostCall("selectDocument");
    if (HST_Document* document = m_documents.value(key, nullptr)) {
        document->setSelected(true);
        recordSelection();
    }
}

void HST_DocumentHost::unselectDocument(int key)
{
    hostCall("unselectDocument");
    if (HST_Document* document = m_documents.value(key, nullptr)) {
        document->setSelected(false);
        recordSelection();
    }
}

void HST_DocumentHost::selectAllDocuments(JS_Mediator*)
{
    hostCall("selectAllDocuments");
    setSelection(m_documents.keys());
    recordSelection();
}

void HST_DocumentHost::selectDocuments(const QList<int>& keys, int)
{
    hostCall("selectDocuments");
    setSelection(keys);
    recordSelection();
}

int HST_DocumentHost::selectedDocumentCount()
{
    hostCall("selectedDocumentCount");
    int count = 0;
    for (const HST_Document* document : qAsConst(m_documents))
        count += document->selected();
    return count;
}

int HST_DocumentHost::addFileDocument()
{
    const int index = m_fileCount++;
    m_allDocuments.emplace_back(new HST_Document(
        m_nextKey, nullptr, index, &m_documentContext, HST_Scenario::fileDocument(index)));
    m_documents.insert(m_nextKey, m_allDocuments.back().get());
    hostStateChanged();
    return m_nextKey++;
}

int HST_DocumentHost::addDocument(const HST_DocumentSpec& spec)
{
    m_allDocuments.emplace_back(
        new HST_Document(m_nextKey, nullptr, m_fileCount++, &m_documentContext, spec));
    m_documents.insert(m_nextKey, m_allDocuments.back().get());
    hostStateChanged();
    return m_nextKey++;
}

int HST_DocumentHost::documentKey(DOC_Interface* doc)
{
    hostCall("documentKey");
    for (auto it = m_documents.begin(); it != m_documents.end(); ++it) {
        if (it.value() == doc)
            return it.key();
    }
    return INVALID_DOCKEY;
}

DOC_Interface* HST_DocumentHost::document(int key, bool)
{
    hostCall("document");
    return m_documents.value(key, nullptr);
}

void HST_DocumentHost::setCurrentDocument(int key, bool)
{
    hostCall("setCurrentDocument");
    makeCurrent(key);
}

void HST_DocumentHost::removeDocument(int key)
{
    hostCall("removeDocument");
    // A head goes with its device: the owner and every head.
    const QList<int> device = m_headGroups->deviceOf(key);
    m_headGroups->remove(key);
    for (int member : device)
        closeDocument(member);
}

void HST_DocumentHost::closeDocument(int key)
{
    HST_Document* document = m_documents.take(key);
    if (!document)
        return;
    document->setSelected(false);
    if (m_currentKey == key)
        m_currentKey = m_documents.isEmpty() ? INVALID_DOCKEY : m_documents.firstKey();
    m_documentRecorder->record(
        QStringLiteral("removeDocument"), { { QStringLiteral("key"), key } });
    hostStateChanged();
}

void HST_DocumentHost::documentsChanged(bool refresh)
{
    hostCall("documentsChanged");
    m_documentRecorder->record(
        QStringLiteral("documentsChanged"), { { QStringLiteral("refresh"), refresh } });
    hostStateChanged();
}

QList<int>& HST_DocumentHost::documentKeysForList(QList<int>& out, int)
{
    hostCall("documentKeysForList");
    out = m_documents.keys();
    return out;
}

QList<int>& HST_DocumentHost::temporaryDocumentKeys(QList<int>& out)
{
    hostCall("temporaryDocumentKeys");
    out.clear();
    for (auto it = m_documents.begin(); it != m_documents.end(); ++it) {
        if (it.value()->isTemporary())
            out.append(it.key());
    }
    return out;
}

QList<int>& HST_DocumentHost::openedDocumentKeys(QList<int>& out, bool, bool)
{
    hostCall("openedDocumentKeys");
    out = m_documents.keys();
    return out;
}

QList<int>& HST_DocumentHost::liveDocumentKeys(QList<int>& out, int)
{
    hostCall("liveDocumentKeys");
    out.clear();
    for (auto it = m_documents.begin(); it != m_documents.end(); ++it) {
        if (it.value()->cameraState())
            out.append(it.key());
    }
    return out;
}

QList<int> HST_DocumentHost::documentKeys(int)
{
    hostCall("documentKeys");
    return m_documents.keys();
}

QList<int>& HST_DocumentHost::orderedKeys(QList<int>& out)
{
    hostCall("orderedKeys");
    out = m_documents.keys();
    return out;
}

QList<DOC_Interface*>& HST_DocumentHost::allDocuments(QList<DOC_Interface*>& out)
{
    hostCall("allDocuments");
    out.clear();
    for (HST_Document* document : qAsConst(m_documents))
        out.append(document);
    return out;
}
