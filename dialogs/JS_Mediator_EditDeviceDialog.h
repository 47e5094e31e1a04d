#pragma once

#include "web/JS_Mediator_Dialog.h"

// The edit device page's object "editdevice": one camera's name and network settings.
class JS_Mediator_EditDeviceDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    JS_Mediator_EditDeviceDialog(APP_Host* host, const QString& name, int documentKey);

    // The last ok changed an address; the opener decides what that means.
    bool networkChanged() const { return m_networkChanged; }

public slots:
    // Compact JSON of the camera as the page shows it.
    QString getEditDeviceDialogSettings();
    void ok(const QString& cameraName, const QString& ipAddress, const QString& subnetmask,
        const QString& defaultGateway);
    void cancel();
    void setEditEtherType(int type);

private:
    int m_documentKey;
    bool m_networkChanged = false;
};
