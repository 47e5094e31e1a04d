#pragma once

#include "plugin/SyncGlobal.h"

// Facet of the host: recording state.
class SYNC_SHARED APP_Recorder
{
public:
    virtual ~APP_Recorder() = default;

    virtual bool isRecording() = 0;
    // 0 not recording, 1 CTS ready, 2 ready, 4 recording error.
    virtual int recordingStatus() = 0;
    // Ends the recording state of the views before camera settings are loaded.
    virtual void stopViewRecording() = 0;
};
