#pragma once

#include "plugin/SyncGlobal.h"

// Facet of a document: its live feed.
class SYNC_SHARED DOC_Feed
{
public:
    virtual ~DOC_Feed() = default;

    virtual void restart(bool now) = 0;
};
