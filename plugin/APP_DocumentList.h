#pragma once

#include "plugin/SyncGlobal.h"

#include <QList>
#include <QString>
#include <QStringList>

class DOC_Interface;
class JS_Mediator;
class QInputEvent;
class QMutex;

// Facet of the host: the open documents, their selection, the tools set on them.
class SYNC_SHARED APP_DocumentList
{
public:
    virtual ~APP_DocumentList() = default;

    virtual int documentKey(DOC_Interface* doc) = 0;
    virtual DOC_Interface* document(int key, bool connectedOnly = true) = 0;
    virtual DOC_Interface* documentForList(int key) = 0;
    virtual DOC_Interface* documentByKey(int key) = 0;
    virtual void setCurrentDocument(int key, bool update = true) = 0;
    virtual void selectDocument(int key) = 0;
    virtual void unselectDocument(int key) = 0;
    virtual DOC_Interface* currentDocument() = 0;
    // The document a key or mouse event belongs to, null when none.
    virtual DOC_Interface* currentDocument(QInputEvent* event) = 0;
    virtual int currentKey() = 0;
    virtual void removeDocument(int key) = 0;
    virtual void removeAllDocuments(int reserved, bool unselectOnly) = 0;
    virtual void prepareVaultPackFormat(int device) = 0;
    virtual void prepareCFastFormat(int device) = 0;
    virtual void selectAllDocuments(JS_Mediator* mediator) = 0;
    virtual void selectDocuments(const QList<int>& keys, int reserved = 0) = 0;
    virtual void documentsChanged(bool refresh = true) = 0;
    virtual bool isMultiLock() = 0;
    virtual void commitToolEdit(bool keep, const QString& name) = 0;
    virtual void beginToolEdit(const QString& name, bool first, bool second) = 0;
    virtual void abortToolEdit(const QString& name) = 0;
    virtual void resetTool(const QString& name) = 0;
    virtual void setToolOption(const QString& name, bool on) = 0;
    virtual void deselectTool(const QString& name) = 0;
    virtual void selectTool(const QString& name, bool on) = 0;
    virtual bool isWaveDataAcquisition() = 0;
    virtual bool hasWaveformData() = 0;
    virtual int selectedDocumentCount() = 0;
    virtual QList<int>& documentKeysForList(QList<int>& out, int filter = 1) = 0;
    virtual QList<int>& temporaryDocumentKeys(QList<int>& out) = 0;
    virtual QList<int>& openedDocumentKeys(QList<int>& out, bool first = true, bool second = false)
        = 0;
    virtual QList<int>& liveDocumentKeys(QList<int>& out, int filter = 0) = 0;
    virtual QList<int> documentKeys(int filter = 0) = 0;
    virtual QList<int>& orderedKeys(QList<int>& out) = 0;
    virtual QMutex* documentMutex() = 0;
    virtual QList<DOC_Interface*>& allDocuments(QList<DOC_Interface*>& out) = 0;
    virtual bool isConflictPartition(int filter = 1) = 0;
    virtual void refreshAfterPause() = 0;
    virtual DOC_Interface* headParent(DOC_Interface* doc) = 0;
    virtual void refreshViewsAfterPause() = 0;
    virtual bool isPhaseAdjusting() = 0;
    // Keys of the documents that stand for devices.
    virtual QList<int> deviceKeys() = 0;
    // Opens the files as temporary documents.
    virtual void openFiles(const QStringList& paths) = 0;
    // Temporary documents become documents of their own.
    virtual void importDocuments(const QList<int>& keys) = 0;
};
