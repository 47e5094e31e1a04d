#pragma once

#include "save/FileDialogKind.h"

#include <QDateTime>
#include <QString>

#include <functional>

class APP_Host;

// What a file dialog's page is told about its target: the directory, group and sub directory
// and file name that the naming rule gives the chosen document and partition, all with the
// dialog's one date and time. It keeps the choice, and the document and partition of the last
// group directory asked for, which may be another.
class FileDialogTargets
{
public:
    // fileName: the dialog's file name getter, composed for the chosen pair.
    FileDialogTargets(APP_Host* host, const FileDialogKind& kind, const QDateTime& dateTime,
        std::function<QString(bool includeOption)> fileName);

    int selectDocKey() const { return m_selectDocKey; }
    int selectPartitionNo() const { return m_selectPartitionNo; }
    void select(int docKey, int partitionNo);
    void setSelectDocKey(int docKey) { m_selectDocKey = docKey; }
    void setSelectPartitionNo(int partitionNo) { m_selectPartitionNo = partitionNo; }

    QString exportPath();
    // A name pass: begins it, composes the chosen pair's file name, and leaves the registry
    // to the caller.
    QString fileName(bool includeOption);
    // Ends the name pass with the registry's commitPendingNames.
    QString exportFile();
    QString exportGroupDir(int docKey, int partitionNo);
    // The first listed document's group directory, in a new group pass.
    QString exportGroupDir();
    QString exportSubDir();

private:
    // The group directory of a pair, composed as if it were chosen.
    QString groupDirectoryOf(int docKey, int partitionNo);
    template <typename Body> QString asChosen(int docKey, int partitionNo, Body&& body);

    APP_Host* m_host;
    FileDialogKind m_kind;
    QDateTime m_dateTime;
    std::function<QString(bool)> m_fileName;
    int m_selectDocKey = -1;
    int m_selectPartitionNo = 1;
    // -1: no group directory was asked for yet.
    int m_pendingDocKey = -1;
    int m_pendingPartitionNo = 1;
};
