#pragma once

#include "plugin/SyncGlobal.h"

#include <QString>

// Facet of the host: undo and redo.
class SYNC_SHARED APP_UndoStack
{
public:
    virtual ~APP_UndoStack() = default;

    virtual void undo() = 0;
    virtual bool canUndo() = 0;
    virtual bool canRedo() = 0;
    virtual void beginMacro(const QString& text) = 0;
    virtual void endMacro() = 0;
};
