#pragma once

#include "web/GUI_WebViewDialog.h"

// How record rates are written on the screen. No close button: the page's OK and Cancel are the
// way out, and Cancel puts back what the dialog found.
class GUI_RecordRateFormatDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_RecordRateFormatDialog(APP_Host* host, QWidget* parent);
};
