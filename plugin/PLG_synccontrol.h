#pragma once

#include "plugin/PLG_Button.h"

class GUI_SyncControl;

// The sync control button: enabled with two or more documents in camera mode, it runs the
// modal sync dialog, which it makes once and keeps hidden between presses.
class PLG_synccontrol : public PLG_Button
{
public:
    explicit PLG_synccontrol(QObject* parent = nullptr);
    ~PLG_synccontrol() override;

    void setHost(APP_Host* host) override;
    void update() override;
    void execute() override;
    bool isEnabled() override;

    GUI_SyncControl* syncControl() const { return m_syncControl; }

private:
    friend PLG_Interface* makeSyncControlPlugin();

    GUI_SyncControl* m_syncControl = nullptr;
};

// Makes the plug-in object the exported entry hands to the host; null if allocation failed.
PLG_Interface* makeSyncControlPlugin();
