#pragma once

#include "plugin/SyncGlobal.h"

// Facet of a document: its playback.
class SYNC_SHARED DOC_Playback
{
public:
    virtual ~DOC_Playback() = default;

    virtual unsigned partitionFrames(int partition, int reserved = 0) = 0;
};
