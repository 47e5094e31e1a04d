#pragma once

#include "host/HST_Scenario.h"

#include <memory>
#include <vector>

class HST_Recorder;
struct HST_CameraState;

// The host's device entries as the add and edit dialogs change them. Each change is checked
// first and refused whole with APP_Exception: a name no camera can have, an address that is no
// four groups of digits, an address another camera has.
class HST_Devices
{
public:
    using Cameras = std::vector<std::unique_ptr<HST_CameraState>>;

    HST_Devices() = delete;

    // "Camera N" for the camera after count others.
    static QString defaultName(int count);
    // An empty name becomes the default one.
    static HST_CameraSpec newDevice(
        const Cameras& cameras, const QString& name, const QString& ip, bool isDummy);
    static void recordAdded(HST_Recorder* recorder, const HST_CameraState& camera, bool connect);
    // camera null: the document has gone or has no camera.
    static void edit(const Cameras& cameras, HST_CameraState* camera, const QString& name,
        const QString& ip, const QString& subnetmask, const QString& gateway);
};
