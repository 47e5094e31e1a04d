#pragma once

#include "web/GUI_WebViewDialog.h"

// How recording times are written on the screen. No close button: the page's OK and Cancel are the
// way out, and Cancel puts back what the dialog found.
class GUI_RectimeFormatDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_RectimeFormatDialog(APP_Host* host, QWidget* parent);
};
