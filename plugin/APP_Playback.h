#pragma once

#include "plugin/SyncGlobal.h"

// Facet of the host: playback of files and memory.
class SYNC_SHARED APP_Playback
{
public:
    virtual ~APP_Playback() = default;

    virtual void pausePlayback() = 0;
    virtual void resumePlayback() = 0;
    // Stops the player before camera settings are written.
    virtual void stopPlayer() = 0;
};
