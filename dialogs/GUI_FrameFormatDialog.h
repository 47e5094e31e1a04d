#pragma once

#include "web/GUI_WebViewDialog.h"

// How frame numbers are written on the screen. No close button: the page's OK and Cancel are the
// way out, and Cancel puts back what the dialog found.
class GUI_FrameFormatDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_FrameFormatDialog(APP_Host* host, QWidget* parent);
};
