#pragma once

#include "plugin/DOC_Interface.h"

#include <QSize>
#include <QString>
#include <QVariantList>

struct HST_CameraState;

// A document of the reference host: one document of a simulated camera, or a file without one.
// Operations the simulation has no data for answer neutrally: false, 0, empty, or nothing.
class HST_Document final : public DOC_Interface
{
public:
    // camera null: a file document.
    HST_Document(int key, HST_CameraState* camera, int documentIndex);

    int key() const { return m_key; }
    HST_CameraState* cameraState() const { return m_camera; }

    // DOC_Interface
    DOC_Camera* asCamera() override;
    void heads(QList<DOC_Interface*>& out, bool all = true) override;
    int headCount() override { return 1; }
    bool isConnected() override { return m_camera != nullptr; }
    void setConnectWanted(bool) override { }
    bool isSelected() override { return false; }
    bool isSelectedMulti() override { return false; }
    bool holdsCameraMemory() override { return m_camera != nullptr; }
    QString& filePath(QString& out) override;
    QString& deviceName(QString& out) override;
    QString& baseName(QString& out) override;
    bool isMobile() override { return false; }
    QString& partitionName(QString& out, int partition) override;
    void refresh(bool) override { }
    QString& sortName(QString& out) override;

    // DOC_Feed, DOC_Playback
    void restart(bool) override { }
    unsigned partitionFrames(int, int = 0) override { return 1000; }

    // DOC_ImageData
    QSize imageSize(QSize& out) override;
    void setCursorPosition(const QPoint&) override { }
    void extent(QSize& out) override { out = imageSizeValue(); }
    void viewToImage(QPoint& out, const QPoint& viewPos, bool) override { out = viewPos; }
    bool isRotatedQuarter() override { return false; }
    QString& comment(QString& out) override { return out = m_comment; }
    void setComment(const QString& text) override { m_comment = text; }

    // DOC_Camera
    QString ipAddress(bool current = true) override;
    int cameraType() override;
    QString cameraName(bool current = true) override;
    void fullImageSize(QSize& out) override { out = imageSizeValue(); }
    bool hasScaleFactor() override { return false; }
    int scaleFactor() override { return 1; }
    int partitionRate(int) override { return m_camera ? 1000 : 0; }
    int recordingRate(int = 0) override { return m_camera ? 1000 : 0; }
    QString modelText(bool full = true) override;
    int deviceNumber() override;
    int headNumber() override { return m_camera ? 1 : 0; }
    QString headName(bool current = true) override { return cameraName(current); }
    QString& recordingDate(QString& out) override;
    QString& recordingTime(QString& out) override;
    int triggerMode() override;
    int currentPartition(bool = true) override { return m_camera ? 1 : 0; }
    void setPartitionDirty(int = 0) override { }
    int partitionCount(int = 0, int = 0) override { return m_camera ? 1 : 0; }
    bool isFunctionSupported(int functionId, bool current = true) override;
    bool hasSiblingHeads() override { return false; }
    void firmwareVersion(QString& out) override;
    void firmwareVersion2(QString& out) override { out.clear(); }
    void firmwareVersion3(QString& out) override { out.clear(); }
    QVariantList& customData(QVariantList& out) override { return out = m_customData; }
    void clearCustomData() override { m_customData.clear(); }
    void addCustomData(const QString& name, const QString& value, const QString& unit, bool display,
        bool usefilename) override;
    void setCustomData(const QString& name, const QString& value, const QString& unit, bool display,
        bool usefilename) override;
    void removeCustomData(const QString& name) override;
    void renameCustomData(const QString& oldName, const QString& newName) override;
    bool isFitMemoryMode() override { return false; }
    int exposureTimingFlag() override;
    int exposureTimingClass() override;
    bool isSdManaged() override { return false; }
    bool isVaultPackManaged() override { return false; }
    bool isCFastManaged() override { return false; }
    bool isSdSlotEnabled(int) override { return false; }
    void sdCardInfo(int, int& speedMode, int& speedClass, int& megabytes) override
    {
        speedMode = speedClass = megabytes = 0;
    }
    void sdSlotStatus(int, int& inserted, int& isProtected, int& formatted) override
    {
        inserted = isProtected = formatted = 0;
    }
    void sdDataFrames(int, int, int& frames) override { frames = 0; }
    void sdDataDateTime(int, int, int& date, int& time) override { date = time = 0; }
    void formatSdSlot(int) override { }
    void finishSdFormat(int) override { }
    bool isVaultPackSlotEnabled(int) override { return false; }
    bool canConvertVaultPackDataName(int = 0) override { return false; }
    void vaultPackSpace(int, int& total, int& freeMegabytes) override { total = freeMegabytes = 0; }
    void vaultPackSlotStatus(int, int& connected, int& formatted) override
    {
        connected = formatted = 0;
    }
    void setVaultPackDataName(int, int, const QString&, int = 0) override { }
    QString& vaultPackDataName(QString& out, int, int) override
    {
        out.clear();
        return out;
    }
    void vaultPackDataFrames(int, int, int& frames) override { frames = 0; }
    void vaultPackDataDateTime(int, int, int& date, int& time) override { date = time = 0; }
    void formatVaultPackSlot(int) override { }
    void finishVaultPackFormat(int) override { }
    quint64 vaultPackDataLimit(int) override { return 0; }
    int vaultPackSlotNo() override { return 0; }
    bool isCFastSlotEnabled(int) override { return false; }
    void cfastSpace(int, quint64& total, quint64& freeBytes, int& dataCount) override
    {
        total = freeBytes = 0;
        dataCount = 0;
    }
    void cfastSlotStatus(int, int& inserted, int& formatted) override { inserted = formatted = 0; }
    void cfastDataFrames(int, int, int& frames) override { frames = 0; }
    void cfastDataDateTime(int, int, int& date, int& time) override { date = time = 0; }
    void formatCFastSlot(int) override { }
    void finishCFastFormat(int) override { }
    bool isDummy() override;
    bool hasRecordedData() override;
    void eraseRecordedData(int = 0) override;
    int supportsWifiConnected() override { return 0; }
    int etherType() override { return m_etherType; }
    void setEtherType(int type) override { m_etherType = type; }
    void networkAddresses(QString& ip, QString& subnetmask, QString& gateway) override;
    quint64 serialNumber(bool device) override;
    int supportsLinkSpeed() override { return 0; }
    int dualSlopeShutter() override;
    int automaticExposureControl() override;
    int lowLightMode() override;

    // DOC_Partitions
    void selectPartition(int) override { }
    QList<int>& partitions(QList<int>& out) override;
    QString& numberOptionText(
        QString& out, int, int, int, bool* usesSession, const QDateTime*) override;
    int deviceCount() override { return 1; }

    // DOC_Display
    bool hasToolMark(const QString&, bool) override { return false; }
    bool isToolSet(const QString&) override { return false; }
    float rotationFraction() override { return 0.0f; }
    bool isMirroredHorizontally() override { return false; }
    bool isMirroredVertically() override { return false; }
    float zoomFactor(bool) override { return 1.0f; }
    int binningExponent() override { return 0; }

    // DOC_HeadGroup
    bool isHeadGroupOwner() override { return false; }
    bool isHeadOfGroup() override { return false; }
    void selectHead(DOC_Interface*) override { }
    void unselectHead(DOC_Interface*) override { }
    void unselectAllHeads() override { }
    void selectAllHeads() override { }

private:
    QSize imageSizeValue() const;
    int customIndex(const QString& name) const;

    int m_key;
    HST_CameraState* m_camera;
    int m_documentIndex;
    QString m_comment;
    QVariantList m_customData;
    int m_etherType = 0;
};
