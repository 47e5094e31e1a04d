#pragma once

#include "plugin/SyncGlobal.h"

#include <QList>
#include <QString>

class QDateTime;

// Facet of a document: its memory partitions.
class SYNC_SHARED DOC_Partitions
{
public:
    virtual ~DOC_Partitions() = default;

    virtual void selectPartition(int partition) = 0;
    virtual QList<int>& partitions(QList<int>& out) = 0;
    virtual QString& numberOptionText(QString& out, int mode, int partition, int session,
                                      bool* usesSession, const QDateTime* dateTime) = 0;
    virtual int deviceCount() = 0;
};
