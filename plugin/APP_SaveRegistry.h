#pragma once

#include "plugin/SyncGlobal.h"

#include <QString>

// Facet of the host: background saving and the names planned by a batch.
class SYNC_SHARED APP_SaveRegistry
{
public:
    virtual ~APP_SaveRegistry() = default;

    virtual bool isAutoExporting() = 0;
    virtual bool isBackgroundSaving() = 0;
    virtual bool isBackgroundConverting() = 0;
    virtual void commitPendingNames() = 0;
    virtual void beginNamePass() = 0;
    virtual void noteGroupDirectory(const QString& groupDir) = 0;
    virtual void noteDirectory(const QString& dir) = 0;
    virtual void notePath(const QString& path) = 0;
    virtual bool isDirectoryTaken(const QString& dir) = 0;
    virtual bool isPathTaken(const QString& path) = 0;
    virtual QString& groupDirectoryOverride(QString& out) = 0;
    virtual QString& directoryOverride(QString& out) = 0;
    virtual void copySelectArea(int kind = 2) = 0;
    // A pass over group directories begins.
    virtual void beginGroupPass() = 0;
};
