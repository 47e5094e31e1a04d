#include "host/HST_StatusHost.h"

#include "host/HST_Recorder.h"

#include <QJsonObject>
#include <QUndoCommand>

namespace {

// A step of the host's undo stack; the simulation has no document edits of its own to undo.
class HST_UndoStep : public QUndoCommand
{
public:
    explicit HST_UndoStep(const QString& text)
        : QUndoCommand(text)
    {
    }
    void undo() override { }
    void redo() override { }
};

} // namespace

HST_StatusHost::HST_StatusHost(HST_Recorder* recorder)
    : m_stateRecorder(recorder)
{
    // An idle host: no waveform data, nothing else going on.
    m_status.insert(STATUS_IS_NONE_WAVEFORM_DATA, true);
}

void HST_StatusHost::applyStatus(const QMap<QString, bool>& status)
{
    for (auto it = status.begin(); it != status.end(); ++it)
        m_status.insert(it.key(), it.value());
    if (status.contains(STATUS_IS_NOT_UNDO) || status.contains(STATUS_IS_NOT_REDO)) {
        // One step to undo, one to redo, or both: the second pushed and undone again.
        m_undoStack.clear();
        const bool undoable = !m_status.value(STATUS_IS_NOT_UNDO, true);
        const bool redoable = !m_status.value(STATUS_IS_NOT_REDO, true);
        if (undoable)
            m_undoStack.push(new HST_UndoStep(QStringLiteral("Earlier step")));
        if (redoable) {
            m_undoStack.push(new HST_UndoStep(QStringLiteral("Undone step")));
            m_undoStack.undo();
        }
    }
    if (status.contains(STATUS_IS_IMAGE_OVERLAY))
        m_activeTool = status.value(STATUS_IS_IMAGE_OVERLAY) ? TOOL_IMAGEOVERLAY : QString();
}

bool HST_StatusHost::status(const QString& name) const
{
    return m_status.value(name, false);
}

bool HST_StatusHost::query(const char* operation, const QString& name)
{
    hostCall(operation);
    return status(name);
}

bool HST_StatusHost::isToolActive(const QString& name)
{
    hostCall("isToolActive");
    return !m_activeTool.isEmpty() && m_activeTool == name;
}

void HST_StatusHost::setModelessTextFocus(bool focus)
{
    hostCall("setModelessTextFocus");
    m_status.insert(STATUS_IS_MODALESS_DIALOG_TEXT_FOCUSSING, focus);
    record("textFocus", { { QStringLiteral("focus"), focus } });
}

void HST_StatusHost::record(const char* call, const QJsonObject& fields)
{
    if (m_stateRecorder)
        m_stateRecorder->record(QLatin1String(call), fields);
}

QString& HST_StatusHost::activeToolName(QString& out)
{
    hostCall("activeToolName");
    out = m_activeTool;
    return out;
}

void HST_StatusHost::setActiveTool(const QString& name)
{
    if (m_activeTool == name)
        return;
    m_activeTool = name;
    record("activeTool", { { QStringLiteral("name"), name } });
    hostStateChanged();
}

void HST_StatusHost::deselectTool(const QString& name)
{
    hostCall("deselectTool");
    // An empty name deselects every tool.
    if (name.isEmpty() || name == m_activeTool)
        setActiveTool(QString());
}

void HST_StatusHost::selectTool(const QString& name, bool on)
{
    hostCall("selectTool");
    if (on)
        setActiveTool(name);
    else if (name == m_activeTool)
        setActiveTool(QString());
}

void HST_StatusHost::undo()
{
    hostCall("undo");
    if (m_undoStack.canUndo()) {
        record("undoStack",
            { { QStringLiteral("op"), "undo" },
                { QStringLiteral("text"), m_undoStack.undoText() } });
        m_undoStack.undo();
        hostStateChanged();
    }
}

bool HST_StatusHost::canUndo()
{
    hostCall("canUndo");
    return m_undoStack.canUndo();
}

bool HST_StatusHost::canRedo()
{
    hostCall("canRedo");
    return m_undoStack.canRedo();
}

void HST_StatusHost::beginMacro(const QString& text)
{
    hostCall("beginMacro");
    record(
        "undoStack", { { QStringLiteral("op"), "beginMacro" }, { QStringLiteral("text"), text } });
    m_undoStack.beginMacro(text);
    ++m_macroDepth;
}

void HST_StatusHost::endMacro()
{
    hostCall("endMacro");
    // An end without its begin is the caller's slip; the stack stays as it is.
    if (m_macroDepth == 0)
        return;
    --m_macroDepth;
    record("undoStack", { { QStringLiteral("op"), "endMacro" } });
    m_undoStack.endMacro();
    hostStateChanged();
}
