#pragma once

#include "web/GUI_WebViewDialog.h"

// How shutter speeds are written on the screen. No close button: the page's OK and Cancel are the
// way out, and Cancel puts back what the dialog found.
class GUI_ShutterSpeedFormatDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_ShutterSpeedFormatDialog(APP_Host* host, QWidget* parent);
};
