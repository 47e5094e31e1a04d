#pragma once

#include "plugin/SyncGlobal.h"

#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariantList>

// Facet of a document: the camera behind it. A document without a camera still answers.
class SYNC_SHARED DOC_Camera
{
public:
    virtual ~DOC_Camera() = default;

    virtual QString ipAddress(bool current = true) = 0;
    virtual int cameraType() = 0;
    virtual QString cameraName(bool current = true) = 0;
    virtual void fullImageSize(QSize& out) = 0;
    virtual bool hasScaleFactor() = 0;
    virtual int scaleFactor() = 0;
    virtual int partitionRate(int partition) = 0;
    virtual int recordingRate(int reserved = 0) = 0;
    virtual QString modelText(bool full = true) = 0;
    virtual int deviceNumber() = 0;
    virtual int headNumber() = 0;
    virtual QString headName(bool current = true) = 0;
    virtual QString& recordingDate(QString& out) = 0;
    virtual QString& recordingTime(QString& out) = 0;
    virtual int triggerMode() = 0;
    virtual int currentPartition(bool current = true) = 0;
    virtual void setPartitionDirty(int reserved = 0) = 0;
    virtual int partitionCount(int first = 0, int second = 0) = 0;
    // 116: recorded data must be erased before a sync; 117 shutdown; 112 wifi.
    virtual bool isFunctionSupported(int functionId, bool current = true) = 0;
    virtual bool hasSiblingHeads() = 0;
    virtual void firmwareVersion(QString& out) = 0;
    virtual void firmwareVersion2(QString& out) = 0;
    virtual void firmwareVersion3(QString& out) = 0;
    virtual QVariantList& customData(QVariantList& out) = 0;
    virtual void clearCustomData() = 0;
    virtual void addCustomData(const QString& name, const QString& value, const QString& unit,
                               bool display, bool usefilename) = 0;
    virtual void setCustomData(const QString& name, const QString& value, const QString& unit,
                               bool display, bool usefilename) = 0;
    virtual void removeCustomData(const QString& name) = 0;
    virtual void renameCustomData(const QString& oldName, const QString& newName) = 0;
    virtual bool isFitMemoryMode() = 0;
    virtual int exposureTimingFlag() = 0;
    virtual int exposureTimingClass() = 0;
    virtual bool isSdManaged() = 0;
    virtual bool isVaultPackManaged() = 0;
    virtual bool isCFastManaged() = 0;
    virtual bool isSdSlotEnabled(int index) = 0;
    virtual void sdCardInfo(int index, int& speedMode, int& speedClass, int& megabytes) = 0;
    virtual void sdSlotStatus(int index, int& inserted, int& isProtected, int& formatted) = 0;
    virtual void sdDataFrames(int index, int number, int& frames) = 0;
    virtual void sdDataDateTime(int index, int number, int& date, int& time) = 0;
    virtual void formatSdSlot(int index) = 0;
    virtual void finishSdFormat(int index) = 0;
    virtual bool isVaultPackSlotEnabled(int slot) = 0;
    virtual bool canConvertVaultPackDataName(int reserved = 0) = 0;
    virtual void vaultPackSpace(int slot, int& total, int& freeMegabytes) = 0;
    virtual void vaultPackSlotStatus(int slot, int& connected, int& formatted) = 0;
    virtual void setVaultPackDataName(int slot, int dataNo, const QString& name, int reserved = 0) = 0;
    virtual QString& vaultPackDataName(QString& out, int slot, int number) = 0;
    virtual void vaultPackDataFrames(int slot, int number, int& frames) = 0;
    virtual void vaultPackDataDateTime(int slot, int number, int& date, int& time) = 0;
    virtual void formatVaultPackSlot(int slot) = 0;
    virtual void finishVaultPackFormat(int slot) = 0;
    virtual quint64 vaultPackDataLimit(int slot) = 0;
    virtual int vaultPackSlotNo() = 0;
    virtual bool isCFastSlotEnabled(int slot) = 0;
    virtual void cfastSpace(int slot, quint64& total, quint64& freeBytes, int& dataCount) = 0;
    virtual void cfastSlotStatus(int slot, int& inserted, int& formatted) = 0;
    virtual void cfastDataFrames(int slot, int number, int& frames) = 0;
    virtual void cfastDataDateTime(int slot, int number, int& date, int& time) = 0;
    virtual void formatCFastSlot(int slot) = 0;
    virtual void finishCFastFormat(int slot) = 0;
    virtual bool isDummy() = 0;
    virtual int headCount() = 0;
    virtual bool hasRecordedData() = 0;
    virtual void eraseRecordedData(int reserved = 0) = 0;
    virtual int supportsWifiConnected() = 0;
    virtual int etherType() = 0;
    virtual void setEtherType(int type) = 0;
    virtual void networkAddresses(QString& ip, QString& subnetmask, QString& gateway) = 0;
    virtual quint64 serialNumber(bool device) = 0;
    virtual int supportsLinkSpeed() = 0;
    virtual int dualSlopeShutter() = 0;
    virtual int automaticExposureControl() = 0;
    virtual int lowLightMode() = 0;
    // Names the data set the document stands for.
    virtual void setDataName(const QString& name) = 0;
    // The camera can tell which of its data were saved already.
    virtual bool canCheckSaved() = 0;

    // Preset slots, numbered from 1.
    virtual int presetCount() = 0;
    // The texts of the slots, one per slot.
    virtual QStringList& presetTexts(QStringList& out) = 0;
    virtual void writePreset(int preset) = 0;
    // The camera takes that preset only after a reboot.
    virtual bool presetNeedsReboot(int preset) = 0;
};
