#pragma once

class APP_Host;
class QMutex;

// The host's camera lock while camera settings are written: tried for a moment, since the
// settings are written even when the host holds it, and released only when it was had. Also
// stops what reads the cameras meanwhile: the live view in camera mode, else the player.
class CameraSettingsLock
{
public:
    explicit CameraSettingsLock(APP_Host* host);
    ~CameraSettingsLock();

    CameraSettingsLock(const CameraSettingsLock&) = delete;
    CameraSettingsLock& operator=(const CameraSettingsLock&) = delete;

private:
    QMutex* m_mutex;
    bool m_locked;
};
