#include "host/HST_HubList.h"

#include "host/HST_LinkCoreHub.h"
#include "host/HST_Recorder.h"
#include "util/APP_Exception.h"

#include <QJsonArray>
#include <QMutexLocker>
#include <QThread>

HST_HubList::HST_HubList(const QList<HST_HubSpec>& hubs, HST_Recorder* recorder, HST_Faults* faults)
    : m_recorder(recorder)
    , m_faults(faults)
{
    for (const HST_HubSpec& spec : hubs) {
        m_hubs.emplace_back(new HST_LinkCoreHub(spec, m_faults));
        m_addresses.append(spec.ip);
    }
    m_editAddresses = m_addresses;
}

HST_HubList::~HST_HubList() = default;

HST_LinkCoreHub* HST_HubList::findLocked(const QString& ip) const
{
    for (const auto& hub : m_hubs) {
        if (hub->ip() == ip)
            return hub.get();
    }
    return nullptr;
}

void HST_HubList::record(const QString& op, QJsonObject fields)
{
    fields.insert(QStringLiteral("op"), op);
    m_recorder->record(QStringLiteral("linkCore"), fields);
}

HST_LinkCoreHub* HST_HubList::hub(const QString& ip)
{
    QMutexLocker locker(&m_mutex);
    return findLocked(ip);
}

bool HST_HubList::isActive()
{
    QMutexLocker locker(&m_mutex);
    return m_active;
}

void HST_HubList::setActive(bool active)
{
    {
        QMutexLocker locker(&m_mutex);
        m_active = active;
    }
    record(QStringLiteral("setActive"), { { QStringLiteral("active"), active } });
}

void HST_HubList::commitSearchList()
{
    {
        QMutexLocker locker(&m_mutex);
        m_addresses = m_editAddresses;
    }
    record(QStringLiteral("commitSearchList"));
}

void HST_HubList::rollbackSearchList()
{
    {
        QMutexLocker locker(&m_mutex);
        m_editAddresses = m_addresses;
    }
    record(QStringLiteral("rollbackSearchList"));
}

void HST_HubList::connectAll(int kind, bool wait)
{
    QJsonArray cameUp;
    {
        QMutexLocker locker(&m_mutex);
        for (const QString& ip : qAsConst(m_addresses)) {
            HST_LinkCoreHub* hub = findLocked(ip);
            if (hub && hub->connectIfDue())
                cameUp.append(ip);
        }
    }
    record(QStringLiteral("connectAll"),
        { { QStringLiteral("kind"), kind }, { QStringLiteral("wait"), wait },
            { QStringLiteral("connected"), cameUp } });
}

void HST_HubList::shutdown()
{
    {
        QMutexLocker locker(&m_mutex);
        m_active = false;
    }
    record(QStringLiteral("shutdown"));
}

void HST_HubList::addSearchAddress(const QString& ip)
{
    {
        QMutexLocker locker(&m_mutex);
        if (!m_editAddresses.contains(ip))
            m_editAddresses.append(ip);
        // An address the scenario has no hub for is searched in vain.
        if (!findLocked(ip)) {
            HST_HubSpec spec;
            spec.ip = ip;
            spec.firmware.clear();
            spec.connects = HST_HubConnects::Never;
            spec.connected = false;
            m_hubs.emplace_back(new HST_LinkCoreHub(spec, m_faults));
        }
    }
    record(QStringLiteral("addSearchAddress"), { { QStringLiteral("ip"), ip } });
}

void HST_HubList::removeSearchAddress(const QString& ip)
{
    {
        QMutexLocker locker(&m_mutex);
        m_editAddresses.removeAll(ip);
    }
    record(QStringLiteral("removeSearchAddress"), { { QStringLiteral("ip"), ip } });
}

QStringList HST_HubList::addresses()
{
    QMutexLocker locker(&m_mutex);
    return m_editAddresses;
}

void HST_HubList::changeAddress(const QString& oldIp, const QString& newIp)
{
    QJsonObject event { { QStringLiteral("old"), oldIp }, { QStringLiteral("new"), newIp } };
    HST_LinkCoreHub* target = nullptr;
    QString refusal;
    {
        QMutexLocker locker(&m_mutex);
        target = findLocked(oldIp);
        if (!target || !target->isConnected())
            refusal = QStringLiteral("No hub answers at %1.").arg(oldIp);
        else if (oldIp != newIp && findLocked(newIp))
            refusal = QStringLiteral("The address %1 is already in use.").arg(newIp);
    }
    if (refusal.isEmpty()) {
        const HST_Outcome outcome = target->changeAddressOutcome();
        if (outcome.delayMs > 0)
            QThread::msleep(ulong(outcome.delayMs));
        if (!outcome.ok)
            refusal = outcome.message;
    }
    if (!refusal.isEmpty()) {
        event.insert(QStringLiteral("result"), QStringLiteral("error"));
        event.insert(QStringLiteral("error"), refusal);
        record(QStringLiteral("changeAddress"), event);
        throw APP_Exception(refusal, 1);
    }
    {
        QMutexLocker locker(&m_mutex);
        target->setIp(newIp);
        for (QStringList* list : { &m_addresses, &m_editAddresses }) {
            for (QString& address : *list) {
                if (address == oldIp)
                    address = newIp;
            }
        }
    }
    event.insert(QStringLiteral("result"), QStringLiteral("ok"));
    record(QStringLiteral("changeAddress"), event);
}

bool HST_HubList::hasUnappliedChanges()
{
    QMutexLocker locker(&m_mutex);
    for (const auto& hub : m_hubs) {
        if (hub->hasPendingFrequency())
            return true;
    }
    return false;
}

void HST_HubList::applyChanges()
{
    {
        QMutexLocker locker(&m_mutex);
        for (const auto& hub : m_hubs)
            hub->applyPendingFrequency();
    }
    record(QStringLiteral("applyChanges"));
}
