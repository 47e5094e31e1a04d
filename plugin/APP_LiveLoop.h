#pragma once

#include "plugin/SyncGlobal.h"

// Facet of the host: the loop that feeds the live view.
class SYNC_SHARED APP_LiveLoop
{
public:
    virtual ~APP_LiveLoop() = default;

    virtual void resumeLive() = 0;
    virtual void pauseLiveLoop(bool reserved = false) = 0;
    virtual bool needsRestart() = 0;
};
