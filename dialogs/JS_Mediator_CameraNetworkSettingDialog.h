#pragma once

#include "web/JS_Mediator_Dialog.h"

// The camera search page's object "cameranetworksetting". Its setters write the preferences at
// once, so Cancel keeps what was set.
class JS_Mediator_CameraNetworkSettingDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    JS_Mediator_CameraNetworkSettingDialog(APP_Host* host, const QString& name);

public slots:
    int getCameraSearchWay();
    // "192.168.0.0" when the preference can't be read.
    QString getCameraSearchIPAddress();
    void setCameraSearchWay(int mode);
    void setCameraSearchIPAddress(const QString& ipAddress);
    void ok();
    void cancel();
};
