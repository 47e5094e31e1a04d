#pragma once

#include "plugin/SyncGlobal.h"

// Facet of the host: the current view.
class SYNC_SHARED APP_View
{
public:
    virtual ~APP_View() = default;

    virtual bool isCycleViewActive() = 0;
    // 0 or below means fit.
    virtual float zoomValue(int reserved = 0) = 0;
};
