#pragma once

#include "host/HST_Scenario.h"
#include "plugin/DOC_LinkCore.h"

#include <QMutex>

class HST_Faults;

// One simulated network hub. A frequency set by the plug-in stays pending, whatever its value,
// until the host applies it after a successful sync.
class HST_LinkCoreHub final : public DOC_LinkCore
{
public:
    // faults: where every operation of the hub starts (HST_Faults); may be null.
    explicit HST_LinkCoreHub(const HST_HubSpec& spec, HST_Faults* faults = nullptr);

    QString ip() const;
    void setIp(const QString& ip);
    HST_Outcome changeAddressOutcome() const;
    // True when this call brought the hub up: it answers from the first connectAll on.
    bool connectIfDue();
    bool hasPendingFrequency() const;
    void applyPendingFrequency();

    int syncMode() override;
    QString syncModeText() override;
    // The pending value if there is one: that is what the hub's table must show.
    int frequency() override;
    void setFrequency(int hz) override;
    void frequencies(QList<int>& out) override;
    QString firmwareVersion() override;
    bool isConnected() override;

private:
    void hostCall(const char* operation) const;

    HST_Faults* m_faults;
    mutable QMutex m_mutex;
    HST_HubSpec m_spec;
    int m_pendingFrequency = -1;
};
