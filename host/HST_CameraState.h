#pragma once

#include "host/HST_Scenario.h"

#include <atomic>

class HST_Document;
class HST_Recorder;

// One simulated camera, shared by all documents of it. The flags change on the sync worker
// thread while the GUI thread may read them, hence atomics.
struct HST_CameraState
{
    HST_CameraSpec spec;
    int index = 0;
    // The document that asCamera() of every document of this camera gives.
    HST_Document* primary = nullptr;
    // Where erasures are told; may be null.
    HST_Recorder* recorder = nullptr;
    std::atomic<bool> recorded { false };
    std::atomic<bool> syncRequired { false };
    std::atomic<int> syncCount { 0 };
};
