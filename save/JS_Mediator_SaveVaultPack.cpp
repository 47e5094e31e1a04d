#include "save/JS_Mediator_SaveVaultPack.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "save/GUI_AddNumberDialog.h"
#include "save/NamingText.h"
#include "save/OutputNaming.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_TextHelpers.h"

namespace {

// The data name's callback type of the naming rule.
const int dataNameCallbackType = 13;

QString parameter(const char* name, const QVariant& value)
{
    return FunctionLogGuard::parameter(QLatin1String(name), value);
}

} // namespace

JS_Mediator_SaveVaultPack::JS_Mediator_SaveVaultPack(APP_Host* host, const QString& name)
    : JS_Mediator_SaveMedia(host, name)
{
}

QString JS_Mediator_SaveVaultPack::dataName(bool addNumber, const QString& dataName, int sequence)
{
    QString name = dataName;
    if (addNumber)
        name = QStringLiteral("%1_%2").arg(dataName).arg(sequence, 6, 10, QLatin1Char('0'));
    // fromUtf8 of a bare pointer reads up to the first zero byte.
    const QByteArray bytes = name.toUtf8();
    return QString::fromUtf8(bytes.constData());
}

bool JS_Mediator_SaveVaultPack::isManaged(int dockey)
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return requireDocument(dockey)->isVaultPackManaged(); });
}

bool JS_Mediator_SaveVaultPack::isEnabaleSlot(int dockey, int slot)
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return requireDocument(dockey)->isVaultPackSlotEnabled(slot); });
}

bool JS_Mediator_SaveVaultPack::isConnected(int dockey, int slot)
{
    return statusQuery("isConnected", [&] {
        int connected = 0;
        int formatted = 0;
        requireDocument(dockey)->vaultPackSlotStatus(slot, connected, formatted);
        return yes(connected);
    });
}

bool JS_Mediator_SaveVaultPack::isFormatted(int dockey, int slot)
{
    return statusQuery("isFormatted", [&] {
        int connected = 0;
        int formatted = 0;
        requireDocument(dockey)->vaultPackSlotStatus(slot, connected, formatted);
        return yes(formatted);
    });
}

QString JS_Mediator_SaveVaultPack::getDataList(int dockey, int slot)
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        DOC_Interface* document = requireDocument(dockey);
        quint64 limit = defaultDataLimit;
        if (document->isFunctionSupported(163, true))
            limit = document->vaultPackDataLimit(slot);
        limit = qMin<quint64>(limit, mostDataSets);
        QList<DataRow> rows;
        for (int number = 0; quint64(number) < limit; ++number) {
            DataRow row;
            document->vaultPackDataFrames(slot, number, row.frames);
            if (row.frames < 1)
                break;
            document->vaultPackDataName(row.name, slot, number);
            int date = 0;
            document->vaultPackDataDateTime(slot, number, date, row.time);
            row.date = quint32(date);
            row.recid = number + 1;
            rows.append(row);
        }
        return dataListText(rows, true);
    });
}

void JS_Mediator_SaveVaultPack::format(int dockey, int slot)
{
    SYNC_TRACE(traceName("format"), parameter("dockey", dockey) + parameter("slot", slot));
    UTL_Barrier::reported(m_host, [&] {
        DOC_Interface* document = requireDocument(dockey);
        m_host->prepareVaultPackFormat(document->deviceNumber());
        document->formatVaultPackSlot(slot);
        document->finishVaultPackFormat(slot);
    });
}

int JS_Mediator_SaveVaultPack::getSlotNo(int dockey, int)
{
    return UTL_Barrier::reported(
        m_host, 0, [&] { return requireDocument(dockey)->vaultPackSlotNo(); });
}

QString JS_Mediator_SaveVaultPack::getFreeSpace(int dockey)
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        DOC_Interface* document = m_host->document(dockey);
        if (!document || !isManaged(dockey))
            return QString();
        const int slot = document->vaultPackSlotNo();
        if (!isConnected(dockey, slot))
            return QString();
        int total = 0;
        int freeMegabytes = 0;
        document->vaultPackSpace(slot, total, freeMegabytes);
        return formatByteSize(quint64(qMax(freeMegabytes, 0)) * 1024 * 1024);
    });
}

QString JS_Mediator_SaveVaultPack::getAddCameraName(int dockey)
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        DOC_Interface* document = m_host->document(dockey);
        return document ? document->cameraName(true) : QString();
    });
}

QString JS_Mediator_SaveVaultPack::getAddNumber()
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        return numberText(1, 1, 1, cameraDigits(m_host, dataNameCallbackType),
            headDigits(m_host, dataNameCallbackType), sessionDigits(m_host, dataNameCallbackType));
    });
}

QString JS_Mediator_SaveVaultPack::getAddDateTime(const QString& format)
{
    return UTL_Barrier::reported(m_host, QString(), [&] { return currentDateTimeText(format); });
}

void JS_Mediator_SaveVaultPack::numberSetting()
{
    SYNC_TRACE(traceName("numberSetting"), QString());
    UTL_Barrier::reported(m_host, [&] {
        GUI_AddNumberDialog::run(m_host, m_host->getMainWindow(), dataNameCallbackType,
            m_selectedDocCount, m_selectedDocHeadCount);
    });
}

void JS_Mediator_SaveVaultPack::selectedDocCount(int count)
{
    m_selectedDocCount = count;
}

void JS_Mediator_SaveVaultPack::selectedDocHeadCount(int count)
{
    m_selectedDocHeadCount = count;
}

void JS_Mediator_SaveVaultPack::convertDataName(
    int dockey, int slot, int dataNo, const QString& dataName, int sequence)
{
    SYNC_TRACE(traceName("convertDataName"),
        parameter("dockey", dockey) + parameter("slot", slot) + parameter("dataNo", dataNo)
            + parameter("dataName", dataName) + parameter("sequence", sequence));
    UTL_Barrier::reported(m_host, [&] {
        DOC_Interface* document = requireDocument(dockey);
        const bool addNumber
            = m_host->getPrefBool(PREF_KEYS_CONVERT.vp_datanameaddnumber, QVariant());
        document->setVaultPackDataName(
            slot, dataNo, JS_Mediator_SaveVaultPack::dataName(addNumber, dataName, sequence), 0);
    });
}

bool JS_Mediator_SaveVaultPack::canConvertDataName(int docKey)
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return requireDocument(docKey)->canConvertVaultPackDataName(0); });
}
