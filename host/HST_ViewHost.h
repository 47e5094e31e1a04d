#pragma once

#include "host/HST_InfoHost.h"
#include "host/HST_PluginSet.h"

#include <QPoint>

#include <memory>
#include <optional>

class HST_PageStack;
class HST_RectangleStep;
class QInputEvent;
class QKeyEvent;

// The host's document windows as plug-ins meet them: mouse and keys on a window go to every
// loaded plug-in, the rectangle of the plug-in that has one is what the window draws over the
// image, each undo macro keeps the rectangles it changed, and the panel's pages, the
// multi-lock and the cross cursor are state of the host's. HST_Host adds the rest.
class HST_ViewHost : public HST_InfoHost
{
public:
    HST_ViewHost(HST_Recorder* recorder, const APP_TimeCodeRecord& timeCode);
    ~HST_ViewHost() override;

    // The host's own side: neither recorded as calls nor faulted.
    HST_PluginSet& plugins() { return m_plugins; }
    HST_PageStack* pages() const { return m_pages.get(); }
    bool multiLock() const { return m_multiLock; }
    bool crossCursor() const { return m_crossCursor; }
    // Both recorded as "toggle".
    void setMultiLock(bool on);
    void setCrossCursor(bool on);
    // As the scenario sets them: not recorded.
    void presetTools(bool multiLock, bool crossCursor);
    // A document's view changed by the user; recorded as "view".
    void changeView(int key, const HST_ViewState& view);
    // The rectangle a document's window draws, from the first plug-in that has one there.
    std::optional<QRect> rectangleFor(int key) const;
    // What the record says of that rectangle: {"name", "rect"} or null.
    QJsonValue rectangleRecord(int key) const;

    // Input on a document's window, in window coordinates, passed to every plug-in.
    void passMousePress(int key, const QPoint& pos);
    void passMouseMove(int key, const QPoint& pos);
    void passMouseRelease(int key, const QPoint& pos);
    void passMouseLeave(int key);
    void passKeyPress(int key, QKeyEvent* event);
    void passKeyRelease(int key, QKeyEvent* event);

    // APP_Host
    bool isToolActive(const QString& name) override;
    bool appliesTo(const QString& feature, DOC_Interface* doc, int reserved = 0) override;

    // APP_PageStack
    PLG_Interface* pluginByName(const QString& name) override;
    void showDefaultPage() override;
    void showPage(const QString& name) override;
    void pageClosed(const QString& name) override;
    void showPreviousPage() override;
    PLG_Interface* currentPage() override;

    // APP_DocumentList
    using HST_DocumentHost::currentDocument;
    // The document whose window the event came to; for another event, the current one.
    DOC_Interface* currentDocument(QInputEvent* event) override;
    bool isMultiLock() override;

    // APP_View
    float zoomValue(int reserved = 0) override;

    // APP_UndoStack
    void beginMacro(const QString& text) override;
    void endMacro() override;

private:
    // Every plug-in's rectangle on every open document.
    HST_RectangleStates rectangles() const;
    void restoreRectangles(const HST_RectangleStates& states, const QString& op);
    void recordToggle(const QString& name, bool on);

    HST_Recorder* m_viewRecorder;
    HST_PluginSet m_plugins;
    std::unique_ptr<HST_PageStack> m_pages;
    bool m_multiLock = false;
    bool m_crossCursor = false;
    // The key event being passed on, and the document whose window it came to.
    const QInputEvent* m_inputEvent = nullptr;
    int m_inputKey = -1;
    // The undo step of the outermost macro while it is open; the stack owns it.
    HST_RectangleStep* m_openStep = nullptr;
};
