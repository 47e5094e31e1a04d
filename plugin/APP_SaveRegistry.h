#pragma once

#include "plugin/SyncGlobal.h"

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>

struct APP_SaveRequest;

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
    // Loop saving: both true preselects every recorded partition of a camera for a save.
    virtual bool isLoopSaveMode() = 0;
    virtual bool isLoopSaveActive() = 0;
    // Those of the (serial number, data number) pairs whose data stand saved in the folder.
    virtual QList<QPair<QString, QString>> findSavedData(
        const QString& folder, const QList<QPair<QString, QString>>& pairs)
        = 0;
    // Writes one document's output, for each partition at its composed path (without an
    // extension), as the request says. Throws when it can't; what it wrote stays.
    virtual void saveDocument(
        int key, const QMap<int, QString>& paths, const APP_SaveRequest& request)
        = 0;
};
