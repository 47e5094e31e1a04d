#pragma once

#include "util/GUI_ProgressDialog.h"

class APP_Host;
class RUN_ProgressThreadInterface;

// A frameless running bar over the host's main window while one worker thread does its work.
// Made on the stack for one piece of work.
class GUI_MarqueeProgressDialog : public GUI_ProgressDialog
{
    Q_OBJECT

public:
    GUI_MarqueeProgressDialog(APP_Host* host, const QString& labelText,
                              const QString& cancelButtonText, bool modal);

    // Starts the worker's thread, shows the bar until the worker resets it, and returns only
    // once the thread has stopped; gives the result of exec().
    int run(RUN_ProgressThreadInterface* worker);
};
