#pragma once

#include "web/GUI_WebViewDialog.h"

#include <QVariantList>

// Edits the settings of the automatic conversion for a list of documents: the convert
// dialog's settings page and the target the conversion would use.
class GUI_ConvertParameterEditDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_ConvertParameterEditDialog(APP_Host* host, QWidget* parent, const QVariantList& dockeyList,
        int selectDocKey, int selectPartitionNo);

    // Opens it unless a conversion runs (a warning) or the chosen partition has no target;
    // true when it was accepted.
    static bool run(APP_Host* host, QWidget* parent, const QVariantList& dockeyList,
        int selectDocKey, int selectPartitionNo);
};
