#pragma once

#include "web/GUI_WebViewDialog.h"

// Sets how cameras are searched on the network and from which address.
class GUI_CameraNetworkSettingDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_CameraNetworkSettingDialog(APP_Host* host, QWidget* parent);

public slots:
    // Does nothing: the page's OK goes through the mediator.
    void ok();
    // Rejects, then closes; rejected() comes once.
    void cancel();

protected:
    void closeEvent(QCloseEvent* event) override;
};
