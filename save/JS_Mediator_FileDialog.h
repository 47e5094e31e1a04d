#pragma once

#include "save/FileDialogDrives.h"
#include "save/FileDialogKind.h"
#include "save/FileDialogRecords.h"
#include "save/FileDialogTargets.h"
#include "web/JS_Mediator_Dialog.h"

#include <QDateTime>
#include <QList>
#include <QPair>
#include <QVariantList>
#include <QVariantMap>

class DOC_Interface;

// The bridge of the save, open, snapshot, report and convert dialogs' pages: the documents and
// partitions that can be saved as table rows, their previews, the drives of the removable
// media, and the target that the naming rule composes, every name with the date and time the
// dialog was made at. The object name is the dialog's kind (FileDialogKind).
class JS_Mediator_FileDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    // Ends the naming pass the registry may still hold.
    JS_Mediator_FileDialog(APP_Host* host, const QString& name);

    const FileDialogKind& kind() const { return m_kind; }
    const QDateTime& dateTime() const { return m_dateTime; }
    // The documents the last list gave rows for.
    const QList<int>& listedDocumentKeys() const { return m_records.documentKeys(); }

signals:
    void selectedDocCount(int count);
    void selectedDocHeadCount(int count);

public slots:
    virtual void setSkipMode(int mode);
    int getSkipMode() override;
    // A count of frames, or a time in milliseconds in skip mode 1.
    void setSkipFrames(double val) override;
    double getSkipFrames() override;
    void applySkipMode(int mode) override;
    void applySkipFrames(double frames) override;

    bool openFolder();
    bool openCustumTimeCodeDialog();
    bool openConvertParameterEditDialog(const QVariantList& dockeyList);
    QString getSDDrives();
    void selectSDDrive(int recid);
    QString getVPDrives();
    void selectVPDrive(int vpType, int driveNo, int slotNo, const QString& driveName);
    QString getCFDrives();
    void selectCFDrive(int cfType, int driveNo, int slotNo, const QString& driveName);
    void importTarget(const QVariantList& dockeyList);
    virtual QString list(bool temporary);
    QString list();
    // A PNG, base64 encoded; "" in camera mode, for a document that has gone or a partition
    // it hasn't.
    virtual QString select(int dockey, int partitionNo, int width, int height);
    bool saveInfoView(const QVariantList& targets);
    int getSelectDocKey();
    void setSelectDocKey(int dockey);
    int getSelectPartitionNo();
    void setSelectPartitionNo(int partitionNo);
    bool canConvertDataName(int docKey);
    bool canSavedCheck(int docKey);
    void convertDataName(int docKey, const QString& dataName, int sequence, bool vp);
    QString getVPUseRatio(int type, int driveNo, int slotNo);
    QString getCFUseRatio(int type, int driveNo, int slotNo);
    QString getTotalWrittenAmount(int type, int driveNo, int slotNo);
    void formatVaultPack(int type, int driveNo, int slotNo);
    void formatCFast(int type, int driveNo, int slotNo);
    bool checkDeleteFile(int docKey);
    bool deleteFile(int docKey);
    QString capcityToString(const QVariantList& selects);
    // Document key (decimal text) to the partition numbers that are going to be saved.
    void refreshSkipFrame(const QVariantMap& targets);
    void setVaultPackPassword(int vpType, int driveNo);
    bool existSetVaultPackPassword(int vpType, int driveNo);
    bool savedCheck(const QVariantList& list);
    virtual QString getExportPath();
    QString getExportFile();
    QString getExportGroupDir(int docKey, int partitionNo);
    QString getExportGroupDir(int docKey);
    QString getExportGroupDir();
    QString getExportSubDir();
    int countSelectedDocs();
    // The chosen document's file name in a new name pass.
    virtual QString exportFileName(bool includeOption);

protected:
    // The document of a key the page passed; throws a clear message when it has gone.
    DOC_Interface* requireDocument(int docKey);
    // What a dialog that isn't part of this file yet answers.
    void dialogNotAvailable();
    // The folder chosen in the directory dialog, "" when cancelled.
    QString chooseFolder(const QString& startDir);
    // The warning while a conversion runs; true when it was shown.
    bool refusedWhileConverting();

    FileDialogKind m_kind;
    QDateTime m_dateTime;
    FileDialogTargets m_targets;

private:
    // One of the four queries that log their failure and answer false.
    template <typename Query> bool documentQuery(const char* name, int docKey, Query&& query);

    FileDialogRecords m_records;
    FileDialogDrives m_drives;
    bool m_savedCheckDone = false;
    QList<QPair<QString, QString>> m_savedList;
};
