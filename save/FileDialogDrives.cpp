#include "save/FileDialogDrives.h"

#include "plugin/APP_Host.h"
#include "util/APP_Exception.h"
#include "util/UTL_Exception.h"
#include "util/UTL_Messages.h"

#include <QDebug>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVariantMap>

namespace {

QString compact(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

FileDialogDrives::FileDialogDrives(APP_Host* host)
    : m_host(host)
{
}

QString FileDialogDrives::sdDrives()
{
    m_sdDrives.clear();
    const unsigned mask = m_host->sdDriveMask();
    for (unsigned bit = 0; bit < 26; ++bit) {
        if (mask & (1u << bit))
            m_sdDrives.insert(1u << bit, QString(QChar('A' + bit)) + QLatin1Char(':'));
    }
    QJsonArray records;
    int recid = 0;
    for (const QString& name : qAsConst(m_sdDrives))
        records.append(QJsonObject {
            { QStringLiteral("recid"), recid++ }, { QStringLiteral("drivename"), name } });
    int select = -1;
    if (!m_sdDrives.isEmpty()) {
        const int current = m_host->currentSdDrive();
        select = current >= 0 && current < m_sdDrives.size() ? current : 0;
    }
    return compact(QJsonObject {
        { QStringLiteral("record"), records }, { QStringLiteral("select"), select } });
}

QString FileDialogDrives::sdDriveName(int recid) const
{
    if (recid < 0 || recid >= m_sdDrives.size())
        throw UTL_Exception(QStringLiteral("There is no SD drive %1.").arg(recid), 0);
    return (m_sdDrives.begin() + recid).value();
}

QString FileDialogDrives::openSdDriveName() const
{
    const int current = m_host->currentSdDrive();
    if (current < 0 || current >= m_sdDrives.size())
        return QString();
    return (m_sdDrives.begin() + current).value();
}

QString FileDialogDrives::driveList(const QVariantList& drives)
{
    QJsonArray records;
    int recid = 0;
    for (const QVariant& drive : drives) {
        const QVariantMap map = drive.toMap();
        records.append(QJsonObject { { QStringLiteral("recid"), recid++ },
            { QStringLiteral("driveno"), map.value(QStringLiteral("driveno")).toInt() },
            { QStringLiteral("slotno"), map.value(QStringLiteral("slotno")).toInt() },
            { QStringLiteral("drivename"), map.value(QStringLiteral("drivename")).toString() },
            { QStringLiteral("drivetype"), map.value(QStringLiteral("drivetype")).toInt() } });
    }
    return compact(QJsonObject { { QStringLiteral("record"), records },
        { QStringLiteral("select"), records.isEmpty() ? -1 : 0 } });
}

QString FileDialogDrives::storageUnitDrives()
{
    return driveList(m_host->storageUnitDrives());
}

QString FileDialogDrives::cfastDrives()
{
    return driveList(m_host->cfastDrives());
}

QString FileDialogDrives::useRatio(quint64 used, quint64 capacity)
{
    const double percent = capacity == 0 ? 0.0 : double(used) * 100.0 / double(capacity);
    return QString::number(percent, 'f', 2);
}

QString FileDialogDrives::writtenAmount(quint64 amount)
{
    return QString::number(double(amount) / 1024.0 * 100.0, 'f', 1);
}

void FileDialogDrives::selectSdDrive(int recid)
{
    const QString chosen = sdDriveName(recid);
    const QString open = openSdDriveName();
    if (!open.isEmpty() && open != chosen) {
        const QString question = UTL_Messages::translate(m_host,
            QStringLiteral("Multiple SD cards can not be opened at the same time. Are you sure "
                           "you want to close all data of %1?"));
        if (!m_host->confirm(question.arg(open), nullptr, QVariantMap()))
            return;
        m_host->closeMedia();
    }
    m_host->setMediaKind(5);
    m_host->openSdDrive(chosen);
}

void FileDialogDrives::selectStorageUnit(
    int type, int driveNo, int slotNo, const QString& driveName)
{
    if (type < 2)
        m_host->setMediaKind(7);
    try {
        m_host->openStorageUnit(type, driveNo, slotNo, driveName);
    } catch (const APP_Exception& e) {
        if (e.errorCode() != 407)
            throw;
        throw APP_Exception(QStringLiteral("The dialog is not available."), 0);
    }
}

template <typename Format, typename Reopen>
void FileDialogDrives::format(const char* name, int type, Format&& format, Reopen&& reopen)
{
    try {
        format();
        if (type == 0) {
            m_host->setMediaKind(2);
            reopen();
        } else if (type == 1) {
            m_host->setMediaKind(1);
        }
        m_host->showInformation(
            UTL_Messages::translate(m_host, QStringLiteral("Formatting is completed.")), nullptr);
    } catch (const std::exception& e) {
        qCritical().noquote() << QLatin1String(name) << QString::fromUtf8(e.what());
        m_host->showWarning(
            UTL_Messages::translate(m_host, QStringLiteral("Formatting failed.")), nullptr);
    }
}

void FileDialogDrives::formatStorageUnit(int type, int driveNo, int slotNo)
{
    format(
        "FileDialogDrives::formatStorageUnit", type,
        [&] { m_host->formatStorageUnit(type, driveNo, slotNo); },
        [&] { m_host->openStorageUnit(type, driveNo, slotNo, QString()); });
}

void FileDialogDrives::formatCFast(int type, int driveNo, int slotNo)
{
    format(
        "FileDialogDrives::formatCFast", type, [&] { m_host->formatCFast(type, driveNo, slotNo); },
        [&] { m_host->openCFast(type, driveNo, slotNo, QString()); });
}

QString FileDialogDrives::storageUnitUseRatio(int type, int driveNo, int slotNo)
{
    quint64 used = 0;
    quint64 capacity = 0;
    m_host->storageUnitUsage(type, driveNo, slotNo, used, capacity);
    return useRatio(used, capacity);
}

QString FileDialogDrives::cfastUseRatio(int type, int driveNo, int slotNo)
{
    quint64 used = 0;
    quint64 capacity = 0;
    m_host->cfastUsage(type, driveNo, slotNo, used, capacity);
    return useRatio(used, capacity);
}
