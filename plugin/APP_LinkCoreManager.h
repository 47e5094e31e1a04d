#pragma once

#include "plugin/SyncGlobal.h"

#include <QString>
#include <QStringList>

class DOC_LinkCore;

// Facet of the host: the network hubs.
class SYNC_SHARED APP_LinkCoreManager
{
public:
    virtual ~APP_LinkCoreManager() = default;

    virtual void setActive(bool active) = 0;
    virtual void commitSearchList() = 0;
    virtual void rollbackSearchList() = 0;
    virtual void connectAll(int kind = 3, bool wait = true) = 0;
    virtual void shutdown() = 0;
    virtual void addSearchAddress(const QString& ip) = 0;
    virtual void removeSearchAddress(const QString& ip) = 0;
    virtual DOC_LinkCore* device(const QString& ip) = 0;
    virtual void addresses(QStringList& out, bool all = true) = 0;
    // Blocking; runs on a pool thread. Throws APP_Exception on failure.
    virtual void changeAddress(const QString& oldIp, const QString& newIp) = 0;
    virtual bool hasUnappliedChanges() = 0;
    virtual void applyChanges() = 0;
};
