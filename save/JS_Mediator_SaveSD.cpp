#include "save/JS_Mediator_SaveSD.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_TextHelpers.h"

JS_Mediator_SaveSD::JS_Mediator_SaveSD(APP_Host* host, const QString& name)
    : JS_Mediator_SaveMedia(host, name)
{
}

int JS_Mediator_SaveSD::sdSlotIndex(DOC_Interface* document, int slot)
{
    if (slot != 0)
        return slot - 1;
    for (int index = 0; index < 2; ++index) {
        if (document->isSdSlotEnabled(index))
            return index;
    }
    return -1;
}

QString JS_Mediator_SaveSD::speedModeText(int speedMode)
{
    switch (speedMode) {
    case 0x4000:
        return QStringLiteral("High");
    case 0x8000:
        return QStringLiteral("SDR12");
    case 0x8001:
        return QStringLiteral("SDR25");
    case 0x8002:
        return QStringLiteral("SDR50");
    case 0x8003:
        return QStringLiteral("SDR104");
    case 0x8004:
        return QStringLiteral("DDR50");
    default:
        break;
    }
    return QStringLiteral("Default");
}

bool JS_Mediator_SaveSD::isManaged(int dockey)
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return requireDocument(dockey)->isSdManaged(); });
}

bool JS_Mediator_SaveSD::isEnabaleSlot(int dockey, int slot)
{
    return UTL_Barrier::reported(m_host, false, [&] {
        DOC_Interface* document = requireDocument(dockey);
        return document->isSdSlotEnabled(sdSlotIndex(document, slot));
    });
}

bool JS_Mediator_SaveSD::status(const char* method, int dockey, int slot, Status which)
{
    return statusQuery(method, [&] {
        DOC_Interface* document = requireDocument(dockey);
        int inserted = 0;
        int isProtected = 0;
        int formatted = 0;
        document->sdSlotStatus(sdSlotIndex(document, slot), inserted, isProtected, formatted);
        switch (which) {
        case Status::Inserted:
            return yes(inserted);
        case Status::Protected:
            return yes(isProtected);
        case Status::Formatted:
            break;
        }
        return yes(formatted);
    });
}

bool JS_Mediator_SaveSD::isInserted(int dockey, int slot)
{
    return status("isInserted", dockey, slot, Status::Inserted);
}

bool JS_Mediator_SaveSD::isFormatted(int dockey, int slot)
{
    return status("isFormatted", dockey, slot, Status::Formatted);
}

bool JS_Mediator_SaveSD::isProtected(int dockey, int slot)
{
    return status("isProtected", dockey, slot, Status::Protected);
}

QVariantMap JS_Mediator_SaveSD::getSDInfo(int dockey, int slot)
{
    return UTL_Barrier::reported(m_host, QVariantMap(), [&] {
        DOC_Interface* document = requireDocument(dockey);
        int speedMode = 0;
        int speedClass = 0;
        int megabytes = 0;
        document->sdCardInfo(sdSlotIndex(document, slot), speedMode, speedClass, megabytes);
        return QVariantMap { { QStringLiteral("class"), QStringLiteral("Class%1").arg(speedClass) },
            { QStringLiteral("speed"), speedModeText(speedMode) },
            { QStringLiteral("size"), formatByteSize(quint64(qMax(megabytes, 0)) * 1024 * 1024) } };
    });
}

QString JS_Mediator_SaveSD::getDataList(int dockey, int slot)
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        DOC_Interface* document = requireDocument(dockey);
        const int index = sdSlotIndex(document, slot);
        QList<DataRow> rows;
        for (int number = 0; number < mostDataSets; ++number) {
            DataRow row;
            document->sdDataFrames(index, number, row.frames);
            if (row.frames < 1)
                break;
            int date = 0;
            document->sdDataDateTime(index, number, date, row.time);
            row.date = quint32(date);
            row.recid = number + 1;
            rows.append(row);
        }
        return dataListText(rows, false);
    });
}

QString JS_Mediator_SaveSD::getMemoryMode(int dockey)
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        return requireDocument(dockey)->isFitMemoryMode() ? translate(QStringLiteral("Fit"))
                                                          : translate(QStringLiteral("Normal"));
    });
}

void JS_Mediator_SaveSD::format(int dockey, int slot)
{
    SYNC_TRACE(traceName("format"),
        FunctionLogGuard::parameter(QStringLiteral("dockey"), dockey)
            + FunctionLogGuard::parameter(QStringLiteral("slot"), slot));
    UTL_Barrier::reported(m_host, [&] {
        DOC_Interface* document = requireDocument(dockey);
        const int index = sdSlotIndex(document, slot);
        const QString question = translate(
            QStringLiteral("All data connected to Slot %2 of %1 will be deleted.<br>Is this OK?"))
                                     .arg(document->cameraName(true), QString::number(index + 1));
        if (!confirm(question))
            return;
        document->formatSdSlot(index);
        document->finishSdFormat(index);
    });
}
