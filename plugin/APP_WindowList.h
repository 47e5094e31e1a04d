#pragma once

#include "plugin/SyncGlobal.h"

// Facet of the host: the document windows.
class SYNC_SHARED APP_WindowList
{
public:
    virtual ~APP_WindowList() = default;

    virtual int windowCount(bool visible, int kind) = 0;
};
