#pragma once

#include "web/GUI_WebViewDialog.h"

// Adds a camera by hand: name, address or a dummy camera, with names completed from the user's
// camera name list.
class GUI_AddDeviceDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    // connect: whether the host connects the camera once added.
    GUI_AddDeviceDialog(APP_Host* host, bool connect, QWidget* parent);
};
