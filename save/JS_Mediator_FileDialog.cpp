#include "save/JS_Mediator_FileDialog.h"

#include "dialogs/GUI_EditInfoDialog.h"
#include "dialogs/GUI_TimeCodeCustomDialog.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/PLG_PageRegistry.h"
#include "plugin/SharedKeys.h"
#include "save/GUI_ConvertParameterEditDialog.h"
#include "util/APP_Exception.h"
#include "util/FunctionLogGuard.h"
#include "util/ScopeExit.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Exception.h"
#include "util/UTL_Messages.h"
#include "util/UTL_TextHelpers.h"
#include "web/OperationEventHandler.h"

#include <QBuffer>
#include <QCollator>
#include <QDebug>
#include <QDirIterator>
#include <QFileDialog>
#include <QJsonDocument>
#include <QPixmap>

#include <cmath>
#include <limits>

namespace {

QString parameter(const char* name, const QVariant& value)
{
    return FunctionLogGuard::parameter(QLatin1String(name), value);
}

QString listParameter(const char* name, const QVariant& list)
{
    return parameter(
        name, QString::fromUtf8(QJsonDocument::fromVariant(list).toJson(QJsonDocument::Compact)));
}

QString mediaParameters(int type, int driveNo, int slotNo)
{
    return parameter("type", type) + parameter("driveNo", driveNo) + parameter("slotNo", slotNo);
}

// Previews bigger than this are a page's mistake, not a picture anyone waits for.
const int largestPreview = 4096;

} // namespace

JS_Mediator_FileDialog::JS_Mediator_FileDialog(APP_Host* host, const QString& name)
    : JS_Mediator_Dialog(host, name)
    , m_kind(name)
    , m_dateTime(QDateTime::currentDateTime())
    , m_targets(host, m_kind, m_dateTime,
          [this](bool includeOption) { return exportFileName(includeOption); })
    , m_records(host, m_kind)
    , m_drives(host)
{
    m_host->commitPendingNames();
}

DOC_Interface* JS_Mediator_FileDialog::requireDocument(int docKey)
{
    DOC_Interface* document = m_host->document(docKey);
    if (!document)
        throw UTL_Exception(QStringLiteral("The document %1 is no longer open.").arg(docKey), 0);
    return document;
}

void JS_Mediator_FileDialog::dialogNotAvailable()
{
    errorHandler(APP_Exception(QStringLiteral("The dialog is not available."), 0));
}

bool JS_Mediator_FileDialog::refusedWhileConverting()
{
    if (!m_host->isBackgroundConverting())
        return false;
    m_host->showWarning(
        translate(QStringLiteral("You can not edit during the conversion process.")), nullptr);
    return true;
}

QString JS_Mediator_FileDialog::chooseFolder(const QString& startDir)
{
    return QFileDialog::getExistingDirectory(m_host->getMainWindow(),
        translate(QStringLiteral("Select folder")), startDir, QFileDialog::ShowDirsOnly);
}

// Skip setting

void JS_Mediator_FileDialog::setSkipMode(int mode)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::setSkipMode"), parameter("mode", mode));
    UTL_Barrier::reported(m_host, [&] { m_host->setPrefInt(m_kind.skipKeys().skipunit, mode); });
}

int JS_Mediator_FileDialog::getSkipMode()
{
    return UTL_Barrier::reported(
        m_host, 0, [this] { return m_host->getPrefInt(m_kind.skipKeys().skipunit, QVariant()); });
}

void JS_Mediator_FileDialog::setSkipFrames(double val)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::setSkipFrames"), parameter("val", val));
    UTL_Barrier::reported(m_host, [&] {
        const OutputKeys& keys = m_kind.skipKeys();
        if (getSkipMode() != 1) {
            if (!std::isfinite(val) || val < 1.0 || val >= double(std::numeric_limits<int>::max()))
                throw UTL_Exception(
                    QStringLiteral("The frames to skip must be a count from 1 on."), 0);
            m_host->setPrefInt(keys.skipsaveframe, int(val));
            return;
        }
        if (!std::isfinite(val) || val < 0.0)
            throw UTL_Exception(QStringLiteral("The time to skip must be milliseconds."), 0);
        const double time = nearestValue(val, m_skipSteps);
        m_host->setPrefVariant(keys.skipsavemsec, time);
        // m_skipBase is the rate the range was worked out on.
        if (m_skipBase > 0)
            m_host->setPrefInt(keys.skipsaveframe, qRound(time / 1000.0 * m_skipBase));
    });
}

double JS_Mediator_FileDialog::getSkipFrames()
{
    return UTL_Barrier::reported(m_host, 0.0, [this] {
        const OutputKeys& keys = m_kind.skipKeys();
        if (getSkipMode() == 1)
            return m_host->getPrefVariant(keys.skipsavemsec, QVariant()).toDouble();
        return double(m_host->getPrefInt(keys.skipsaveframe, QVariant()));
    });
}

void JS_Mediator_FileDialog::applySkipMode(int mode)
{
    setSkipMode(mode);
}

void JS_Mediator_FileDialog::applySkipFrames(double frames)
{
    setSkipFrames(frames);
}

void JS_Mediator_FileDialog::refreshSkipFrame(const QVariantMap& targets)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::refreshSkipFrame"),
        listParameter("targets", targets));
    UTL_Barrier::reported(m_host, [&] {
        QMap<DOC_Interface*, QList<int>> partitions;
        for (auto it = targets.begin(); it != targets.end(); ++it) {
            bool ok = false;
            const uint key = it.key().toUInt(&ok);
            DOC_Interface* document = ok ? m_host->document(int(key)) : nullptr;
            if (!document)
                continue;
            QList<int>& numbers = partitions[document];
            for (const QVariant& entry : it.value().toList()) {
                const uint number = entry.toUInt(&ok);
                if (ok && number <= uint(std::numeric_limits<int>::max()))
                    numbers.append(int(number));
            }
        }
        updateSkipRange(partitions);
    });
}

// Documents and previews

QString JS_Mediator_FileDialog::list(bool temporary)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::list"), parameter("temporary", temporary));
    return UTL_Barrier::reported(m_host, QString(), [&] {
        m_records.setSavedCheck(m_savedCheckDone, m_savedList);
        QString rows = m_records.list(temporary);
        emit selectedDocCount(m_records.documentKeys().size());
        return rows;
    });
}

QString JS_Mediator_FileDialog::list()
{
    return list(false);
}

QString JS_Mediator_FileDialog::select(int dockey, int partitionNo, int width, int height)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::select"),
        parameter("docKey", dockey) + parameter("partitionNo", partitionNo)
            + parameter("width", width) + parameter("height", height));
    return UTL_Barrier::reported(m_host, QString(), [&] {
        m_targets.select(dockey, partitionNo);
        if (m_host->isCameraMode())
            return QString();
        DOC_Interface* document = m_host->document(dockey);
        if (!document || width < 1 || height < 1 || width > largestPreview
            || height > largestPreview)
            return QString();
        if (document->asCamera())
            emit selectedDocHeadCount(document->headCount());
        const QPixmap pixmap = document->previewPixmap(
            m_kind.previewMode(), width, height, partitionNo, 0, m_dateTime);
        if (pixmap.isNull())
            return QString();
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        pixmap.save(&buffer, "PNG");
        return QString::fromLatin1(bytes.toBase64());
    });
}

int JS_Mediator_FileDialog::getSelectDocKey()
{
    return m_targets.selectDocKey();
}

void JS_Mediator_FileDialog::setSelectDocKey(int dockey)
{
    m_targets.setSelectDocKey(dockey);
}

int JS_Mediator_FileDialog::getSelectPartitionNo()
{
    return m_targets.selectPartitionNo();
}

void JS_Mediator_FileDialog::setSelectPartitionNo(int partitionNo)
{
    m_targets.setSelectPartitionNo(partitionNo);
}

int JS_Mediator_FileDialog::countSelectedDocs()
{
    return UTL_Barrier::reported(m_host, 0, [this] { return m_host->selectedDocumentCount(); });
}

QString JS_Mediator_FileDialog::capcityToString(const QVariantList& selects)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::capcityToString"),
        listParameter("selects", selects));
    quint64 sum = 0;
    for (const QVariant& entry : selects) {
        bool ok = false;
        // By its text, so that a negative number is no count.
        const qulonglong bytes = entry.toString().toULongLong(&ok);
        // A count that would overflow stops at the largest size there is.
        if (ok)
            sum = bytes > std::numeric_limits<quint64>::max() - sum
                ? std::numeric_limits<quint64>::max()
                : sum + bytes;
    }
    return formatByteSize(sum);
}

// Files and folders

bool JS_Mediator_FileDialog::openFolder()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::openFolder"), QString());
    return UTL_Barrier::reported(m_host, false, [this] {
        QString start;
        m_host->getPrefString(start, PREF_KEY_IMPORT_DIR, QVariant());
        const QString folder = chooseFolder(start);
        if (folder.isEmpty())
            return false;
        m_host->setPrefString(PREF_KEY_IMPORT_DIR, folder);
        m_host->setMediaKind(0);
        QStringList patterns;
        for (const QString& suffix : { QStringLiteral("qch"), QStringLiteral("qchx") })
            patterns << QStringLiteral("*.") + suffix << QStringLiteral("*.") + suffix.toUpper();
        QStringList paths;
        QDirIterator files(folder, patterns, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next());
        QCollator collator;
        collator.setNumericMode(true);
        std::sort(paths.begin(), paths.end(), collator);
        m_host->openFiles(paths);
        QList<int> temporary;
        for (int key : m_host->temporaryDocumentKeys(temporary))
            m_host->selectDocument(key);
        return true;
    });
}

void JS_Mediator_FileDialog::importTarget(const QVariantList& dockeyList)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::importTarget"),
        listParameter("dockeyList", dockeyList));
    UTL_Barrier::reported(m_host, [&] {
        QList<int> keys;
        for (const QVariant& entry : dockeyList) {
            bool ok = false;
            const int key = entry.toInt(&ok);
            if (ok && m_host->document(key))
                keys.append(key);
        }
        m_host->importDocuments(keys);
    });
}

template <typename Query>
bool JS_Mediator_FileDialog::documentQuery(const char* name, int docKey, Query&& query)
{
    SYNC_TRACE(QLatin1String(name), parameter("docKey", docKey));
    try {
        return query(requireDocument(docKey));
    } catch (const std::exception& e) {
        qCritical().noquote() << QString::fromUtf8(e.what());
    }
    return false;
}

bool JS_Mediator_FileDialog::canConvertDataName(int docKey)
{
    return documentQuery("JS_Mediator_FileDialog::canConvertDataName", docKey,
        [](DOC_Interface* document) { return document->canConvertVaultPackDataName(0); });
}

bool JS_Mediator_FileDialog::canSavedCheck(int docKey)
{
    return documentQuery("JS_Mediator_FileDialog::canSavedCheck", docKey,
        [](DOC_Interface* document) { return document->canCheckSaved(); });
}

bool JS_Mediator_FileDialog::checkDeleteFile(int docKey)
{
    return documentQuery("JS_Mediator_FileDialog::checkDeleteFile", docKey,
        [](DOC_Interface* document) { return document->canDeleteFile(); });
}

bool JS_Mediator_FileDialog::deleteFile(int docKey)
{
    return documentQuery(
        "JS_Mediator_FileDialog::deleteFile", docKey, [this](DOC_Interface* document) {
            m_host->deterUpdateUI(true);
            const ScopeExit resume([this] {
                UTL_Barrier::logged(
                    "JS_Mediator_FileDialog::deleteFile", [this] { m_host->deterUpdateUI(false); });
            });
            return document->deleteFile();
        });
}

void JS_Mediator_FileDialog::convertDataName(
    int docKey, const QString& dataName, int sequence, bool vp)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::convertDataName"),
        parameter("docKey", docKey) + parameter("dataName", dataName)
            + parameter("sequence", sequence) + parameter("vp", vp));
    UTL_Barrier::reported(m_host, [&] {
        QString name = dataName;
        if (m_host->getPrefBool(PREF_KEYS_CONVERT.vp_datanameaddnumber, QVariant()))
            name = QStringLiteral("%1_%2").arg(dataName).arg(sequence, 6, 10, QLatin1Char('0'));
        requireDocument(docKey)->setDataName(name);
    });
}

bool JS_Mediator_FileDialog::savedCheck(const QVariantList& list)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::savedCheck"), QString());
    return UTL_Barrier::reported(m_host, false, [&] {
        QString start;
        m_host->getPrefString(
            start, m_kind.isConvert() ? PREF_KEYS_CONVERT.dir : PREF_KEYS_EXPORT.dir, QVariant());
        const QString folder = chooseFolder(start);
        if (folder.isEmpty())
            return false;
        QList<QPair<QString, QString>> pairs;
        for (const QVariant& entry : list) {
            const QVariantMap row = entry.toMap();
            pairs.append({ row.value(QStringLiteral("serialno")).toString(),
                row.value(QStringLiteral("datano")).toString() });
        }
        m_savedList = m_host->findSavedData(folder, pairs);
        m_savedCheckDone = true;
        return true;
    });
}

// Dialogs of their own

bool JS_Mediator_FileDialog::openCustumTimeCodeDialog()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::openCustumTimeCodeDialog"), QString());
    return UTL_Barrier::reported(m_host, false, [this] {
        if (refusedWhileConverting())
            return false;
        return PLG_PageRegistry::exec(new GUI_TimeCodeCustomDialog(m_host, m_host->getMainWindow()))
            == QDialog::Accepted;
    });
}

bool JS_Mediator_FileDialog::saveInfoView(const QVariantList& targets)
{
    SYNC_TRACE(
        QStringLiteral("JS_Mediator_FileDialog::saveInfoView"), listParameter("targets", targets));
    return UTL_Barrier::reported(m_host, false, [&] {
        if (refusedWhileConverting())
            return false;
        // The selected document leads: its partition is the one the preview shows.
        DOC_Interface* selected = m_host->document(m_targets.selectDocKey());
        QList<int> keys;
        if (selected)
            keys.append(m_targets.selectDocKey());
        for (const QVariant& target : targets) {
            const int key = target.toInt();
            if (!keys.contains(key) && m_host->document(key))
                keys.append(key);
        }
        return PLG_PageRegistry::exec(new GUI_EditInfoDialog(m_host, m_kind.mode(), true, selected,
                   selected ? m_targets.selectPartitionNo() : -1, keys, m_dateTime))
            == QDialog::Accepted;
    });
}

bool JS_Mediator_FileDialog::openConvertParameterEditDialog(const QVariantList& dockeyList)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::openConvertParameterEditDialog"),
        listParameter("dockeyList", dockeyList));
    return UTL_Barrier::reported(m_host, false, [&] {
        return GUI_ConvertParameterEditDialog::run(m_host, m_host->getMainWindow(), dockeyList,
            m_targets.selectDocKey(), m_targets.selectPartitionNo());
    });
}

void JS_Mediator_FileDialog::setVaultPackPassword(int vpType, int driveNo)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::setVaultPackPassword"),
        parameter("vpType", vpType) + parameter("driveNo", driveNo));
    dialogNotAvailable();
}

bool JS_Mediator_FileDialog::existSetVaultPackPassword(int vpType, int driveNo)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::existSetVaultPackPassword"),
        parameter("vpType", vpType) + parameter("driveNo", driveNo));
    dialogNotAvailable();
    return false;
}

// Drives

QString JS_Mediator_FileDialog::getSDDrives()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getSDDrives"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] { return m_drives.sdDrives(); });
}

QString JS_Mediator_FileDialog::getVPDrives()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getVPDrives"), QString());
    return UTL_Barrier::reported(
        m_host, QString(), [this] { return m_drives.storageUnitDrives(); });
}

QString JS_Mediator_FileDialog::getCFDrives()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getCFDrives"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] { return m_drives.cfastDrives(); });
}

void JS_Mediator_FileDialog::selectSDDrive(int recid)
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_FileDialog::selectSDDrive"), parameter("recid", recid));
    UTL_Barrier::reported(m_host, [&] { m_drives.selectSdDrive(recid); });
}

void JS_Mediator_FileDialog::selectVPDrive(
    int vpType, int driveNo, int slotNo, const QString& driveName)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator_FileDialog::selectVPDrive"),
        parameter("vpType", vpType) + parameter("driveNo", driveNo) + parameter("slotNo", slotNo)
            + parameter("driveName", driveName));
    UTL_Barrier::reported(
        m_host, [&] { m_drives.selectStorageUnit(vpType, driveNo, slotNo, driveName); });
}

void JS_Mediator_FileDialog::selectCFDrive(
    int cfType, int driveNo, int slotNo, const QString& driveName)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator_FileDialog::selectCFDrive"),
        parameter("cfType", cfType) + parameter("driveNo", driveNo) + parameter("slotNo", slotNo)
            + parameter("driveName", driveName));
    UTL_Barrier::reported(m_host, [&] { m_host->openCFast(cfType, driveNo, slotNo, driveName); });
}

QString JS_Mediator_FileDialog::getVPUseRatio(int type, int driveNo, int slotNo)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getVPUseRatio"),
        mediaParameters(type, driveNo, slotNo));
    return UTL_Barrier::reported(
        m_host, QString(), [&] { return m_drives.storageUnitUseRatio(type, driveNo, slotNo); });
}

QString JS_Mediator_FileDialog::getCFUseRatio(int type, int driveNo, int slotNo)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getCFUseRatio"),
        mediaParameters(type, driveNo, slotNo));
    return UTL_Barrier::reported(
        m_host, QString(), [&] { return m_drives.cfastUseRatio(type, driveNo, slotNo); });
}

QString JS_Mediator_FileDialog::getTotalWrittenAmount(int type, int driveNo, int slotNo)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getTotalWrittenAmount"),
        mediaParameters(type, driveNo, slotNo));
    return UTL_Barrier::reported(m_host, QString(), [&] {
        return FileDialogDrives::writtenAmount(m_host->totalWrittenAmount(type, driveNo, slotNo));
    });
}

void JS_Mediator_FileDialog::formatVaultPack(int type, int driveNo, int slotNo)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::formatVaultPack"),
        mediaParameters(type, driveNo, slotNo));
    UTL_Barrier::reported(m_host, [&] { m_drives.formatStorageUnit(type, driveNo, slotNo); });
}

void JS_Mediator_FileDialog::formatCFast(int type, int driveNo, int slotNo)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::formatCFast"),
        mediaParameters(type, driveNo, slotNo));
    UTL_Barrier::reported(m_host, [&] { m_drives.formatCFast(type, driveNo, slotNo); });
}

// Targets

QString JS_Mediator_FileDialog::exportFileName(bool includeOption)
{
    return m_targets.fileName(includeOption);
}

QString JS_Mediator_FileDialog::getExportPath()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getExportPath"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] { return m_targets.exportPath(); });
}

QString JS_Mediator_FileDialog::getExportFile()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getExportFile"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] { return m_targets.exportFile(); });
}

QString JS_Mediator_FileDialog::getExportGroupDir(int docKey, int partitionNo)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getExportGroupDir"),
        parameter("docKey", docKey) + parameter("partitionNo", partitionNo));
    return UTL_Barrier::reported(
        m_host, QString(), [&] { return m_targets.exportGroupDir(docKey, partitionNo); });
}

QString JS_Mediator_FileDialog::getExportGroupDir(int docKey)
{
    return getExportGroupDir(docKey, 1);
}

QString JS_Mediator_FileDialog::getExportGroupDir()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getExportGroupDir"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] { return m_targets.exportGroupDir(); });
}

QString JS_Mediator_FileDialog::getExportSubDir()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileDialog::getExportSubDir"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] { return m_targets.exportSubDir(); });
}
