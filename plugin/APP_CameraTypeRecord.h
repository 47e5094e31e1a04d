#pragma once

// One entry of the host's list of sync-capable camera types.
struct APP_CameraTypeRecord
{
    void* reserved = nullptr;
    int cameraType = 0;
};
