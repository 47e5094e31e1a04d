#pragma once

#include "web/GUI_Dialog.h"

#include <memory>

class APP_Host;
class Ui_GUI_SyncControlSearchSetting;

// Edits the addresses at which the host looks for network hubs. The host keeps the list and its
// edit copy; this dialog only hands its result code back.
class GUI_SyncControlSearchSetting : public GUI_Dialog
{
    Q_OBJECT

public:
    GUI_SyncControlSearchSetting(APP_Host* host, QWidget* parent);
    ~GUI_SyncControlSearchSetting() override;

private slots:
    void on_addButton_clicked();
    void on_deleteButton_clicked();
    void okClicked();
    void cancelClicked();

private:
    void reload();
    void logClick(const char* slot);

    std::unique_ptr<Ui_GUI_SyncControlSearchSetting> m_ui;
    APP_Host* m_host;
};
