#include "generator/DOC_VIGen.h"

#include "generator/VIGenThread.h"
#include "generator/vi.h"
#include "plugin/APP_Host.h"
#include "util/DOC_Exception.h"
#include "util/FunctionLogGuard.h"
#include "util/GUI_MarqueeProgressDialog.h"
#include "util/UTL_Messages.h"
#include "util/UTL_TextHelpers.h"

#include <QDebug>

#include <cmath>
#include <limits>
#include <memory>

namespace {

const char* const identityQuery = "*IDN?\n";
const char* const frequencyQuery = "FREQ?\n";

// The setup as the sync source: a 0 V to 5 V pulse at 50 % duty, output on. "%1" is the
// frequency; the texts bracket the setup on the instrument's display.
const char* const syncSequence[] = {
    "DISP ON\n",
    "DISP:TEXT \"Tarvix4 Setting Start\"\n",
    "FUNC:SHAP PULS\n",
    "FREQ %1\n",
    "VOLT:LOW 0\n",
    "VOLT:HIGH 5\n",
    "FUNC:PULS:DCYC 50\n",
    "OUTP ON\n",
    "DISP:TEXT \"Tarvix4 Setting End\"\n",
};

int truncateToInt(float value)
{
    if (!std::isfinite(value))
        return 0;
    if (value >= float(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (value <= float(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return int(value);
}

} // namespace

DOC_VIGen::DOC_VIGen(APP_Host* host)
    : DOC_SignalGenerator(host)
    , m_supportedModels { QStringLiteral("33210A") }
{
}

DOC_VIGen::~DOC_VIGen()
{
    DOC_VIGen::unloadLibrary();
}

QString DOC_VIGen::resourceString(int kind, quint32 address)
{
    if (kind != 0)
        return QString();
    return QStringLiteral("TCPIP0::%1::inst0::INSTR").arg(numberToIp(address));
}

bool DOC_VIGen::connect(int kind, quint32 address)
{
    SYNC_TRACE(QStringLiteral("DOC_VIGen::connect"),
        FunctionLogGuard::parameter(QStringLiteral("kind"), kind)
            + FunctionLogGuard::parameter(QStringLiteral("address"), numberToIp(address)));
    if (isConnected())
        return true;
    disconnect();
    if (!m_libraryLoaded) {
        QMessageLogger(__FILE__, __LINE__, Q_FUNC_INFO).warning()
            << "DOC_VIGen::connect without a VISA library";
        return false;
    }

    const QString resource = resourceString(kind, address);
    const QString searching = UTL_Messages::translate(m_host, QStringLiteral("Searching"));
    GUI_MarqueeProgressDialog dialog(m_host, searching + QStringLiteral("..."), QString(), false);
    const auto thread = std::make_unique<VIGenThread>([resource] { return vi::open(resource); });
    thread->setProgressDialog(&dialog);
    dialog.run(thread.get());
    m_connected = thread->result();
    return m_connected;
}

void DOC_VIGen::disconnect()
{
    m_connected = false;
    if (m_libraryLoaded)
        vi::close();
}

bool DOC_VIGen::isConnected()
{
    if (m_connected) {
        try {
            getFrequency();
        } catch (const std::exception&) {
            // The session stays open until the next disconnect.
            m_connected = false;
        }
    }
    return m_connected;
}

bool DOC_VIGen::isSupportedDevice()
{
    const QStringList fields = getIdentity().split(QLatin1Char(','), Qt::KeepEmptyParts);
    return fields.size() == 4 && m_supportedModels.contains(fields.at(1), Qt::CaseSensitive);
}

QString DOC_VIGen::getIdentity()
{
    if (!m_connected)
        return QString();
    vi::sendCommandString(QLatin1String(identityQuery));
    return vi::recvString();
}

void DOC_VIGen::sync(int frequency)
{
    SYNC_TRACE(QStringLiteral("DOC_VIGen::sync"),
        FunctionLogGuard::parameter(QStringLiteral("frequency"), frequency));
    if (!m_connected)
        return;
    try {
        vi::sendCommandString(QStringLiteral("*RST\n"));
        vi::clear();
        for (const char* command : syncSequence)
            vi::sendCommandString(QString::fromLatin1(command).replace(
                QLatin1String("%1"), QString::number(frequency)));
    } catch (const std::exception&) {
        throw DOC_Exception(QStringLiteral("Failed sync to signal generator"), 0);
    }
}

bool DOC_VIGen::loadLibrary()
{
    if (!m_libraryLoaded)
        m_libraryLoaded = vi::load(vi::libraryFileName().constData());
    return m_libraryLoaded;
}

void DOC_VIGen::unloadLibrary()
{
    if (!m_libraryLoaded)
        return;
    if (m_connected)
        disconnect();
    vi::unload();
    m_libraryLoaded = false;
}

QList<int>& DOC_VIGen::getFrequencyList(QList<int>& list)
{
    list.clear();
    for (int hertz = 1000; hertz <= 10000; hertz += 1000)
        list.append(hertz);
    return list;
}

int DOC_VIGen::getFrequency()
{
    if (!m_connected)
        return 0;
    try {
        vi::sendCommandString(QLatin1String(frequencyQuery));
        QString reply = vi::recvString();
        reply.remove(QLatin1Char('\n'));
        return truncateToInt(reply.toFloat());
    } catch (const std::exception&) {
        throw DOC_Exception(QStringLiteral("Failed getFrequency"), 0);
    }
}
