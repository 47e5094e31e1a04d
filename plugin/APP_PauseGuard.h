#pragma once

class APP_Host;
class QMutex;

// Pauses what the host's live loop or playback reads for the life of the guard.
class APP_PauseGuard
{
public:
    APP_PauseGuard(APP_Host* host, bool refresh, bool restart);
    ~APP_PauseGuard();

    APP_PauseGuard(const APP_PauseGuard&) = delete;
    APP_PauseGuard& operator=(const APP_PauseGuard&) = delete;

private:
    void resume();

    APP_Host* m_host;
    bool m_refresh;
    bool m_restart;
    bool m_cameraMode;
    QMutex* m_mutex = nullptr;
    bool m_locked = false;
};
