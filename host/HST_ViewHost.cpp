#include "host/HST_ViewHost.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_PageStack.h"
#include "host/HST_Recorder.h"
#include "host/HST_RectangleStep.h"
#include "plugin/PLG_Interface.h"
#include "plugin/SharedKeys.h"

#include <QJsonObject>
#include <QKeyEvent>
#include <QUndoStack>

HST_ViewHost::HST_ViewHost(HST_Recorder* recorder, const APP_TimeCodeRecord& timeCode)
    : HST_InfoHost(recorder, timeCode)
    , m_viewRecorder(recorder)
    , m_plugins(recorder)
    , m_pages(std::make_unique<HST_PageStack>(recorder))
{
}

HST_ViewHost::~HST_ViewHost() = default;

void HST_ViewHost::recordToggle(const QString& name, bool on)
{
    if (m_viewRecorder)
        m_viewRecorder->record(QStringLiteral("toggle"),
            { { QStringLiteral("name"), name }, { QStringLiteral("on"), on } });
    hostStateChanged();
}

void HST_ViewHost::setMultiLock(bool on)
{
    if (on == m_multiLock)
        return;
    m_multiLock = on;
    recordToggle(TOOL_MULTILOCK, on);
}

void HST_ViewHost::setCrossCursor(bool on)
{
    if (on == m_crossCursor)
        return;
    m_crossCursor = on;
    recordToggle(TOOL_CROSSCURSOR, on);
}

void HST_ViewHost::presetTools(bool multiLock, bool crossCursor)
{
    m_multiLock = multiLock;
    m_crossCursor = crossCursor;
    hostStateChanged();
}

void HST_ViewHost::changeView(int key, const HST_ViewState& view)
{
    HST_Document* document = openDocument(key);
    if (!document || document->view() == view)
        return;
    document->setView(view);
    if (m_viewRecorder) {
        QJsonObject fields = view.toJson();
        fields.insert(QStringLiteral("key"), key);
        m_viewRecorder->record(QStringLiteral("view"), fields);
    }
    hostStateChanged();
}

std::optional<QRect> HST_ViewHost::rectangleFor(int key) const
{
    const std::optional<HST_RectangleState> state = m_plugins.rectangleOf(openDocument(key), key);
    if (!state)
        return std::nullopt;
    return state->rect;
}

QJsonValue HST_ViewHost::rectangleRecord(int key) const
{
    return m_plugins.rectangleJson(openDocument(key), key);
}

void HST_ViewHost::passMousePress(int key, const QPoint& pos)
{
    // A press on a window makes its document current, before a plug-in asks for it.
    makeCurrent(key);
    m_plugins.each("mousePressed", [&](PLG_Interface* plugin) { plugin->mousePressed(pos, key); });
}

void HST_ViewHost::passMouseMove(int key, const QPoint& pos)
{
    m_plugins.each("mouseMoved", [&](PLG_Interface* plugin) { plugin->mouseMoved(pos, key); });
}

void HST_ViewHost::passMouseRelease(int key, const QPoint& pos)
{
    m_plugins.each(
        "mouseReleased", [&](PLG_Interface* plugin) { plugin->mouseReleased(pos, key); });
}

void HST_ViewHost::passMouseLeave(int key)
{
    m_plugins.each("mouseLeft", [&](PLG_Interface* plugin) { plugin->mouseLeft(key); });
}

void HST_ViewHost::passKeyPress(int key, QKeyEvent* event)
{
    m_inputEvent = event;
    m_inputKey = key;
    m_plugins.each("keyPressed", [&](PLG_Interface* plugin) { plugin->keyPressed(event); });
    m_inputEvent = nullptr;
    m_inputKey = INVALID_DOCKEY;
}

void HST_ViewHost::passKeyRelease(int key, QKeyEvent* event)
{
    m_inputEvent = event;
    m_inputKey = key;
    m_plugins.each("keyReleased", [](PLG_Interface* plugin) { plugin->keyReleased(); });
    m_inputEvent = nullptr;
    m_inputKey = INVALID_DOCKEY;
}

bool HST_ViewHost::isToolActive(const QString& name)
{
    const bool active = HST_DocumentHost::isToolActive(name);
    return active || (m_crossCursor && name == TOOL_CROSSCURSOR);
}

bool HST_ViewHost::appliesTo(const QString& feature, DOC_Interface* doc, int)
{
    hostCall("appliesTo");
    // A camera bins its pixels; a file's image is shown as it was stored.
    if (feature != FEATURE_BINNING || !doc)
        return false;
    const QList<HST_Document*> open = openDocuments();
    for (HST_Document* document : open) {
        if (document == doc)
            return document->cameraState() != nullptr;
    }
    return false;
}

PLG_Interface* HST_ViewHost::pluginByName(const QString& name)
{
    hostCall("pluginByName");
    return m_plugins.byName(name);
}

void HST_ViewHost::showDefaultPage()
{
    hostCall("showDefaultPage");
    m_pages->showDefault();
}

void HST_ViewHost::showPage(const QString& name)
{
    hostCall("showPage");
    m_pages->show(name);
}

void HST_ViewHost::pageClosed(const QString& name)
{
    hostCall("pageClosed");
    m_pages->closed(name);
}

void HST_ViewHost::showPreviousPage()
{
    hostCall("showPreviousPage");
    m_pages->showPrevious();
}

PLG_Interface* HST_ViewHost::currentPage()
{
    hostCall("currentPage");
    return m_pages->current().isEmpty() ? nullptr : m_plugins.byName(m_pages->current());
}

DOC_Interface* HST_ViewHost::currentDocument(QInputEvent* event)
{
    hostCall("currentDocument");
    const bool passing = event && event == m_inputEvent;
    return openDocument(passing ? m_inputKey : currentDocumentKey());
}

bool HST_ViewHost::isMultiLock()
{
    hostCall("isMultiLock");
    return m_multiLock;
}

float HST_ViewHost::zoomValue(int)
{
    hostCall("zoomValue");
    const HST_Document* document = openDocument(currentDocumentKey());
    return document ? float(document->view().zoom) : 0.0f;
}

void HST_ViewHost::beginMacro(const QString& text)
{
    const bool outermost = macroDepth() == 0;
    HST_DocumentHost::beginMacro(text);
    if (!outermost)
        return;
    // Inside the macro it just opened, so that undoing the macro undoes this too.
    m_openStep = new HST_RectangleStep(
        rectangles(), [this](const HST_RectangleStates& states, const QString& op) {
            restoreRectangles(states, op);
        });
    undoStack()->push(m_openStep);
}

void HST_ViewHost::endMacro()
{
    if (macroDepth() == 1 && m_openStep)
        m_openStep->setAfter(rectangles());
    HST_DocumentHost::endMacro();
    if (macroDepth() == 0)
        m_openStep = nullptr;
}

HST_RectangleStates HST_ViewHost::rectangles() const
{
    HST_RectangleStates states;
    const QList<HST_Document*> open = openDocuments();
    for (HST_Document* document : open) {
        m_plugins.each("hasRectangle", [&](PLG_Interface* plugin) {
            if (plugin->hasRectangle(document))
                states.append({ plugin, document->key(), plugin->rectangle(document) });
        });
    }
    return states;
}

void HST_ViewHost::restoreRectangles(const HST_RectangleStates& states, const QString& op)
{
    for (const HST_RectangleState& state : states) {
        HST_Document* document = openDocument(state.key);
        if (!state.plugin || !document)
            continue;
        QString name;
        m_plugins.call("setRectangle", [&] {
            name = state.plugin->pageName();
            state.plugin->setRectangle(document, state.rect, true);
        });
        if (m_viewRecorder)
            m_viewRecorder->record(QStringLiteral("setRectangle"),
                { { QStringLiteral("name"), name }, { QStringLiteral("key"), state.key },
                    { QStringLiteral("rect"), HST_PluginSet::rectJson(state.rect) },
                    { QStringLiteral("op"), op } });
        document->repaintView();
    }
}
