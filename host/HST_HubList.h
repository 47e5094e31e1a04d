#pragma once

#include "host/HST_Scenario.h"

#include <QJsonObject>
#include <QMutex>
#include <QStringList>

#include <memory>
#include <vector>

class HST_Faults;
class HST_LinkCoreHub;
class HST_Recorder;

// The host's hub manager over the scenario's hubs: the search list with its edit copy, and
// the address change, which runs on a pool thread while the GUI thread reads the list.
class HST_HubList
{
public:
    HST_HubList(
        const QList<HST_HubSpec>& hubs, HST_Recorder* recorder, HST_Faults* faults = nullptr);
    ~HST_HubList();

    HST_LinkCoreHub* hub(const QString& ip);
    bool isActive();
    void setActive(bool active);
    void commitSearchList();
    void rollbackSearchList();
    void connectAll(int kind, bool wait);
    void shutdown();
    void addSearchAddress(const QString& ip);
    void removeSearchAddress(const QString& ip);
    // The list under edit, which is the committed one while no edit is open.
    QStringList addresses();
    void changeAddress(const QString& oldIp, const QString& newIp);
    bool hasUnappliedChanges();
    void applyChanges();

private:
    HST_LinkCoreHub* findLocked(const QString& ip) const;
    void record(const QString& op, QJsonObject fields = QJsonObject());

    QMutex m_mutex;
    HST_Recorder* m_recorder;
    HST_Faults* m_faults;
    std::vector<std::unique_ptr<HST_LinkCoreHub>> m_hubs;
    QStringList m_addresses;
    QStringList m_editAddresses;
    bool m_active = false;
};
