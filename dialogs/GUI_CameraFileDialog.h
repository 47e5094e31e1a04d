#pragma once

#include "dialogs/GUI_QFileDialog.h"

#include <QList>

class QButtonGroup;
class QCheckBox;
class QWidget;

// Loads a camera settings file into the cameras, and offers for each camera a preset slot to
// keep the loaded settings in. Cameras that take a preset only after a reboot are named when it
// is done.
class GUI_CameraFileDialog : public GUI_QFileDialog
{
    Q_OBJECT

public:
    GUI_CameraFileDialog(APP_Host* host, QWidget* parent);

    // The preset chosen for a device: 0 for none.
    int chosenPreset(int key) const;

public slots:
    void on_checkLoadCamera_change(bool check);
    void accept() override;
    void on_ok_clicked();
    void on_cancel_clicked();

private:
    struct Device
    {
        int key;
        QString name;
        QButtonGroup* choices;
    };

    void addDevices();
    void logButton(const QString& id, const QString& action, const QString& value);
    void okClicked();

    QCheckBox* m_checkLoadCamera = nullptr;
    QWidget* m_presetArea = nullptr;
    QList<Device> m_devices;
};
