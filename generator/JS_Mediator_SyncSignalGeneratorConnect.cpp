#include "generator/JS_Mediator_SyncSignalGeneratorConnect.h"

#include "generator/DOC_SignalGenerator.h"
#include "plugin/APP_Host.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_TextHelpers.h"

namespace {

const char* const couldNotConnect = "Could not connect with signal generator";
const char* const unsupportedDevice = "can not be connected because unsupported device.";

} // namespace

JS_Mediator_SyncSignalGeneratorConnect::JS_Mediator_SyncSignalGeneratorConnect(
    APP_Host* host, const QString& name, DOC_SignalGenerator* generator)
    : JS_Mediator_Dialog(host, name)
    , m_generator(generator)
{
}

bool JS_Mediator_SyncSignalGeneratorConnect::checkGeneratorConnect(const QString& address)
{
    return UTL_Barrier::reported(m_host, false, [&] {
        if (!isIpAddress(address)) {
            m_host->showWarning(QString::fromLatin1(couldNotConnect), nullptr);
            return false;
        }
        m_generator->disconnect();
        m_generator->connect(0, ipToNumber(address));
        if (!m_generator->isConnected()) {
            m_generator->disconnect();
            m_host->showWarning(QString::fromLatin1(couldNotConnect), nullptr);
            return false;
        }
        if (m_generator->isSupportedDevice())
            return true;
        m_generator->disconnect();
        m_host->showWarning(QString::fromLatin1(unsupportedDevice), nullptr);
        return false;
    });
}

void JS_Mediator_SyncSignalGeneratorConnect::ok()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_SyncSignalGeneratorConnect::ok"), QString());
    UTL_Barrier::reported(m_host, [&] { emit accept(); });
}

void JS_Mediator_SyncSignalGeneratorConnect::cancel()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_SyncSignalGeneratorConnect::cancel"), QString());
    UTL_Barrier::reported(m_host, [&] { emit reject(); });
}
