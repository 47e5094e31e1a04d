#pragma once

#include "web/JS_Mediator_Dialog.h"

// The add device page's object "adddevice": proposes a name and addresses and adds the device.
// A name or address that no device can have is dropped silently, and the dialog still closes.
class JS_Mediator_AddDeviceDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    // connect is handed through to the host's addDevice.
    JS_Mediator_AddDeviceDialog(APP_Host* host, const QString& name, bool connect);

public slots:
    // Compact JSON: DefaultCameraName, DefaultIPAddress, DefaultDummyIPAddress.
    QString getAddDeviceDialogSettings();
    void ok(const QString& cameraNeme, const QString& ipAddress, bool isDummy);
    void cancel();

private:
    // The first "999.999.999.N" no dummy camera has, N from 1 to 255.
    QString firstFreeDummyAddress();

    bool m_connect;
};
