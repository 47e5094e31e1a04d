#pragma once

#include "host/HST_PluginSet.h"

#include <QUndoCommand>

#include <functional>

// The rectangles behind one undo macro: as they were when it began and when it ended. Undo
// puts back the first of those that the macro changed, redo the second. Pushed inside the
// open macro, so that it goes with the macro's other steps.
class HST_RectangleStep : public QUndoCommand
{
public:
    using Restore = std::function<void(const HST_RectangleStates& states, const QString& op)>;

    HST_RectangleStep(const HST_RectangleStates& before, Restore restore);

    void setAfter(const HST_RectangleStates& after) { m_after = after; }
    void undo() override;
    void redo() override;

private:
    // The states of from that differ from, or are missing in, other.
    static HST_RectangleStates changed(
        const HST_RectangleStates& from, const HST_RectangleStates& other);

    HST_RectangleStates m_before;
    HST_RectangleStates m_after;
    Restore m_restore;
    bool m_pushed = false;
};
