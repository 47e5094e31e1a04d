#include "save/FileDialogTargets.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "save/OutputNaming.h"
#include "util/ScopeExit.h"

#include <utility>

FileDialogTargets::FileDialogTargets(APP_Host* host, const FileDialogKind& kind,
    const QDateTime& dateTime, std::function<QString(bool)> fileName)
    : m_host(host)
    , m_kind(kind)
    , m_dateTime(dateTime)
    , m_fileName(std::move(fileName))
{
}

void FileDialogTargets::select(int docKey, int partitionNo)
{
    m_selectDocKey = docKey;
    m_selectPartitionNo = partitionNo;
}

template <typename Body>
QString FileDialogTargets::asChosen(int docKey, int partitionNo, Body&& body)
{
    const int keptKey = m_selectDocKey;
    const int keptPartition = m_selectPartitionNo;
    const ScopeExit restore([&] { select(keptKey, keptPartition); });
    select(docKey, partitionNo);
    return body(m_host->document(docKey));
}

QString FileDialogTargets::exportPath()
{
    return composeSaveDirectory(m_host, m_kind.mode(), m_host->document(m_selectDocKey));
}

QString FileDialogTargets::fileName(bool includeOption)
{
    m_host->beginNamePass();
    return composeFileName(m_host, m_kind.mode(), m_host->document(m_selectDocKey),
        m_selectPartitionNo, includeOption, m_dateTime);
}

QString FileDialogTargets::groupDirectoryOf(int docKey, int partitionNo)
{
    return asChosen(docKey, partitionNo, [this](DOC_Interface* document) {
        const bool include
            = m_host->getPrefBool(m_kind.keys().groupdirasfilenameincludeoption, QVariant());
        return composeGroupDirectory(
            m_host, m_kind.mode(), document, m_fileName(include), m_dateTime);
    });
}

QString FileDialogTargets::exportFile()
{
    if (m_pendingDocKey >= 0 && m_pendingDocKey != m_selectDocKey) {
        // The group directory the page showed for another document stands for the batch.
        const QString group = groupDirectoryOf(m_pendingDocKey, m_pendingPartitionNo);
        if (!group.isEmpty())
            m_host->noteGroupDirectory(group);
    }
    QString name = m_fileName(true);
    m_host->commitPendingNames();
    return name;
}

QString FileDialogTargets::exportGroupDir(int docKey, int partitionNo)
{
    m_pendingDocKey = docKey;
    m_pendingPartitionNo = partitionNo;
    return groupDirectoryOf(docKey, partitionNo);
}

QString FileDialogTargets::exportGroupDir()
{
    m_host->beginGroupPass();
    const QList<int> keys = m_host->documentKeys(true);
    return keys.isEmpty() ? QString() : exportGroupDir(keys.first(), 1);
}

QString FileDialogTargets::exportSubDir()
{
    const int key = m_pendingDocKey >= 0 ? m_pendingDocKey : m_selectDocKey;
    const int partition = m_pendingDocKey >= 0 ? m_pendingPartitionNo : m_selectPartitionNo;
    groupDirectoryOf(key, partition);
    return asChosen(key, partition, [this](DOC_Interface* document) {
        const bool include
            = m_host->getPrefBool(m_kind.keys().subdirasfilenameincludeoption, QVariant());
        return composeSubDirectory(
            m_host, m_kind.mode(), document, m_fileName(include), m_dateTime);
    });
}
