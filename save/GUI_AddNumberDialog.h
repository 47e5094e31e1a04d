#pragma once

#include "web/GUI_WebViewDialog.h"

// The small dialog in which the digit counts of one naming field's number text are set.
class GUI_AddNumberDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_AddNumberDialog(
        APP_Host* host, QWidget* parent, int callbackType, int deviceCount, int headCount);

    // Runs it modally and gives its result.
    static int run(
        APP_Host* host, QWidget* parent, int callbackType, int deviceCount, int headCount);
};
