#include "save/JS_Mediator_SaveCFast.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_TextHelpers.h"

JS_Mediator_SaveCFast::JS_Mediator_SaveCFast(APP_Host* host, const QString& name)
    : JS_Mediator_SaveMedia(host, name)
{
}

bool JS_Mediator_SaveCFast::isManaged(int dockey)
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return requireDocument(dockey)->isCFastManaged(); });
}

bool JS_Mediator_SaveCFast::isEnabaleSlot(int dockey, int slot)
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return requireDocument(dockey)->isCFastSlotEnabled(slot); });
}

bool JS_Mediator_SaveCFast::isInserted(int dockey, int slot)
{
    return statusQuery("isInserted", [&] {
        int inserted = 0;
        int formatted = 0;
        requireDocument(dockey)->cfastSlotStatus(slot, inserted, formatted);
        return yes(inserted);
    });
}

bool JS_Mediator_SaveCFast::isFormatted(int dockey, int slot)
{
    return statusQuery("isFormatted", [&] {
        int inserted = 0;
        int formatted = 0;
        requireDocument(dockey)->cfastSlotStatus(slot, inserted, formatted);
        return yes(formatted);
    });
}

QString JS_Mediator_SaveCFast::getDataList(int dockey, int slot)
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        DOC_Interface* document = requireDocument(dockey);
        quint64 total = 0;
        quint64 freeBytes = 0;
        int dataCount = 0;
        document->cfastSpace(slot, total, freeBytes, dataCount);
        QList<DataRow> rows;
        // Every number up to the count has a row, one without frames too.
        for (int number = 1; number <= qMin(dataCount, int(mostDataSets)); ++number) {
            DataRow row;
            document->cfastDataFrames(slot, number, row.frames);
            int date = 0;
            document->cfastDataDateTime(slot, number, date, row.time);
            row.date = quint32(date);
            row.recid = number + 1;
            rows.append(row);
        }
        return dataListText(rows, false);
    });
}

void JS_Mediator_SaveCFast::format(int dockey, int slot)
{
    SYNC_TRACE(traceName("format"),
        FunctionLogGuard::parameter(QStringLiteral("dockey"), dockey)
            + FunctionLogGuard::parameter(QStringLiteral("slot"), slot));
    UTL_Barrier::reported(m_host, [&] {
        DOC_Interface* document = requireDocument(dockey);
        m_host->prepareCFastFormat(document->deviceNumber());
        document->formatCFastSlot(slot);
        document->finishCFastFormat(slot);
    });
}

QString JS_Mediator_SaveCFast::getFreeSpace(int dockey)
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        DOC_Interface* document = m_host->document(dockey);
        if (!document || !isManaged(dockey) || !isInserted(dockey, 0))
            return QString();
        quint64 total = 0;
        quint64 freeBytes = 0;
        int dataCount = 0;
        document->cfastSpace(0, total, freeBytes, dataCount);
        return formatByteSize(freeBytes);
    });
}

void JS_Mediator_SaveCFast::selectedDocCount(int count)
{
    m_selectedDocCount = count;
}

void JS_Mediator_SaveCFast::selectedDocHeadCount(int count)
{
    m_selectedDocHeadCount = count;
}
