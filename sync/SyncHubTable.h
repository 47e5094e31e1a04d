#pragma once

#include <QObject>

class APP_Host;
class GUI_SyncControlCombobox;
class QTableWidget;

// The rows of the hub table: rebuilt from the host's hubs at every update, since nothing but a
// hub's address ties a row to it. Row widgets report through this object's two signals.
class SyncHubTable : public QObject
{
    Q_OBJECT

public:
    SyncHubTable(APP_Host* host, QTableWidget* table, QObject* parent);

    void fill();
    // Removes the row widgets and all rows.
    void clear();
    // Hubs that answer and make the sync signal themselves; a failing hub counts as none.
    // A hub whose query fails counts as not found; the failure is reported, or logged while
    // painting.
    int connectedInternalHubs(bool whilePainting = false);

signals:
    void editClicked(const QString& ipaddress);
    // Queued from the combo box: the receiver's update deletes the sender.
    void frequencyChanged(GUI_SyncControlCombobox* pComboBox, const QString& ipaddress,
                          int value);

private:
    APP_Host* m_host;
    QTableWidget* m_table;
};
