#include "host/HST_LinkCoreHub.h"

#include "host/HST_Faults.h"

#include <QMutexLocker>

HST_LinkCoreHub::HST_LinkCoreHub(const HST_HubSpec& spec, HST_Faults* faults)
    : m_faults(faults)
    , m_spec(spec)
{
}

void HST_LinkCoreHub::hostCall(const char* operation) const
{
    if (m_faults)
        m_faults->enter(operation);
}

QString HST_LinkCoreHub::ip() const
{
    QMutexLocker locker(&m_mutex);
    return m_spec.ip;
}

void HST_LinkCoreHub::setIp(const QString& ip)
{
    QMutexLocker locker(&m_mutex);
    m_spec.ip = ip;
}

HST_Outcome HST_LinkCoreHub::changeAddressOutcome() const
{
    QMutexLocker locker(&m_mutex);
    return m_spec.changeAddress;
}

bool HST_LinkCoreHub::connectIfDue()
{
    QMutexLocker locker(&m_mutex);
    if (m_spec.connected || m_spec.connects != HST_HubConnects::OnConnect)
        return false;
    m_spec.connected = true;
    return true;
}

bool HST_LinkCoreHub::hasPendingFrequency() const
{
    QMutexLocker locker(&m_mutex);
    return m_pendingFrequency >= 0;
}

void HST_LinkCoreHub::applyPendingFrequency()
{
    QMutexLocker locker(&m_mutex);
    if (m_pendingFrequency >= 0)
        m_spec.frequency = m_pendingFrequency;
    m_pendingFrequency = -1;
}

int HST_LinkCoreHub::syncMode()
{
    hostCall("hub.syncMode");
    QMutexLocker locker(&m_mutex);
    return m_spec.syncMode;
}

QString HST_LinkCoreHub::syncModeText()
{
    hostCall("hub.syncModeText");
    QMutexLocker locker(&m_mutex);
    return m_spec.syncMode == 0 ? QStringLiteral("Internal") : QStringLiteral("External");
}

int HST_LinkCoreHub::frequency()
{
    hostCall("hub.frequency");
    QMutexLocker locker(&m_mutex);
    return m_pendingFrequency >= 0 ? m_pendingFrequency : m_spec.frequency;
}

void HST_LinkCoreHub::setFrequency(int hz)
{
    hostCall("hub.setFrequency");
    QMutexLocker locker(&m_mutex);
    m_pendingFrequency = hz;
}

void HST_LinkCoreHub::frequencies(QList<int>& out)
{
    hostCall("hub.frequencies");
    QMutexLocker locker(&m_mutex);
    out = m_spec.frequencies;
}

QString HST_LinkCoreHub::firmwareVersion()
{
    hostCall("hub.firmwareVersion");
    QMutexLocker locker(&m_mutex);
    return m_spec.firmware;
}

bool HST_LinkCoreHub::isConnected()
{
    hostCall("hub.isConnected");
    QMutexLocker locker(&m_mutex);
    return m_spec.connected;
}
