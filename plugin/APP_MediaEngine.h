#pragma once

#include "plugin/SyncGlobal.h"

#include <QString>
#include <QVariantList>

// Facet of the host: the cameras' removable media as the PC sees them (SD cards, the storage
// unit, CFast cards), what is open of them, and their formatting. A drive is named by its type,
// its drive number and the slot of the camera it belongs to, as the drive lists give them.
class SYNC_SHARED APP_MediaEngine
{
public:
    virtual ~APP_MediaEngine() = default;

    // Bit n set: the PC sees an SD card as the drive of the n-th letter.
    virtual unsigned sdDriveMask() = 0;
    // The open SD drive, counted among the drives of the mask from 0; -1 when none is open.
    virtual int currentSdDrive() = 0;
    // What the host reads documents from: 0 files, 1 and 2 the storage unit after a format,
    // 5 an SD card, 7 the storage unit.
    virtual void setMediaKind(int kind) = 0;
    // Opens the drive's recordings as temporary documents.
    virtual void openSdDrive(const QString& driveName) = 0;
    // Closes the documents of whatever drive is open.
    virtual void closeMedia() = 0;
    // One map per drive: driveno, slotno, drivename, drivetype.
    virtual QVariantList storageUnitDrives() = 0;
    virtual QVariantList cfastDrives() = 0;
    // Throws APP_Exception with the code 407 while a password locks the unit.
    virtual void openStorageUnit(int type, int driveNo, int slotNo, const QString& driveName) = 0;
    virtual bool unlockStorageUnit(int type, int driveNo, int slotNo, const QString& password) = 0;
    virtual void openCFast(int type, int driveNo, int slotNo, const QString& driveName) = 0;
    // Both leave the medium empty.
    virtual void formatStorageUnit(int type, int driveNo, int slotNo) = 0;
    virtual void formatCFast(int type, int driveNo, int slotNo) = 0;
    // Bytes in use and in all.
    virtual void storageUnitUsage(
        int type, int driveNo, int slotNo, quint64& used, quint64& capacity)
        = 0;
    virtual void cfastUsage(int type, int driveNo, int slotNo, quint64& used, quint64& capacity)
        = 0;
    // Gigabytes ever written to the medium.
    virtual quint64 totalWrittenAmount(int type, int driveNo, int slotNo) = 0;
};
