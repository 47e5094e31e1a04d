#pragma once

#include "web/GUI_WebViewDialog.h"

class JS_Mediator_EditDeviceDialog;

// Edits one camera's name and network settings, with names completed from the user's camera
// name list.
class GUI_EditDeviceDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_EditDeviceDialog(APP_Host* host, int documentKey, QWidget* parent);

    JS_Mediator_EditDeviceDialog* editMediator() const;
};
