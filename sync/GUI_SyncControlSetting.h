#pragma once

#include "web/GUI_Dialog.h"

#include <QString>

#include <memory>

class APP_Host;
class Ui_GUI_SyncControlSetting;

// Shows one network hub's address and firmware and writes a new address into the hub.
class GUI_SyncControlSetting : public GUI_Dialog
{
    Q_OBJECT

public:
    GUI_SyncControlSetting(APP_Host* host, const QString& ipAddress, QWidget* parent);
    ~GUI_SyncControlSetting() override;

private slots:
    void okClicked();
    void cancelClicked();

private:
    void logClick(const char* slot);

    std::unique_ptr<Ui_GUI_SyncControlSetting> m_ui;
    APP_Host* m_host;
    QString m_ipAddress;
};
