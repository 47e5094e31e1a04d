#pragma once

#include "plugin/PLG_Button.h"

#include <QPointer>

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

    GUI_SyncControl* syncControl() const;

private:
    friend PLG_Interface* makeSyncControlPlugin();
    // With the host's window as parent, so that it shows over it; null when that failed.
    void makeDialog();

    // Owned here, made with the host's window as parent: whichever of the two deletes it
    // first, the other sees it gone.
    QPointer<GUI_SyncControl> m_syncControl;
};

// Makes the plug-in object the exported entry hands to the host; null if allocation failed.
PLG_Interface* makeSyncControlPlugin();
