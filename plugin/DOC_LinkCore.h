#pragma once

#include "plugin/SyncGlobal.h"

#include <QList>
#include <QString>

// One network hub, given by APP_LinkCoreManager::device.
class SYNC_SHARED DOC_LinkCore
{
public:
    virtual ~DOC_LinkCore() = default;

    // 0: the hub generates the sync signal itself and has a frequency.
    virtual int syncMode() = 0;
    virtual QString syncModeText() = 0;
    virtual int frequency() = 0;
    virtual void setFrequency(int hz) = 0;
    virtual void frequencies(QList<int>& out) = 0;
    virtual QString firmwareVersion() = 0;
    virtual bool isConnected() = 0;
};
