#pragma once

#include "host/HST_CameraMedia.h"
#include "host/HST_CustomData.h"
#include "host/HST_Scenario.h"
#include "plugin/DOC_Interface.h"

#include <QPointer>
#include <QSize>
#include <QString>
#include <QVariantList>
#include <QWidget>

#include <functional>

struct HST_CameraState;
class HST_Faults;
class HST_HeadGroups;
class HST_Media;
class HST_InfoHost;
class HST_Preferences;
class HST_Recorder;

// What the host lends all its documents; each part may be null.
struct HST_DocumentContext
{
    // Where every operation starts (HST_Faults).
    HST_Faults* faults = nullptr;
    // Where changes are told.
    HST_Recorder* recorder = nullptr;
    // For numberOptionText.
    HST_Preferences* prefs = nullptr;
    // The devices the host has: deviceCount of every document.
    int deviceCount = 1;
    // The multi-head devices among the documents.
    HST_HeadGroups* headGroups = nullptr;
    // The cameras' media, which a recording's document renames.
    HST_Media* media = nullptr;
    // Closes a document whose file was deleted.
    std::function<void(int key)> closeDocument;
    // Draws previews with the information block and reloads logos.
    HST_InfoHost* info = nullptr;
    // A camera formats one of its slots: what is open of it closes, and the format is recorded.
    std::function<void(HST_MediaKind kind, int camera, int index)> formatSlot;
};

// A document of the reference host: one document of a simulated camera, or a file without one.
// Operations the simulation has no data for answer neutrally: false, 0, empty, or nothing.
class HST_Document final : public DOC_Interface
{
public:
    // camera null: a file document. context may be null; it outlives the document.
    HST_Document(int key, HST_CameraState* camera, int documentIndex,
        HST_DocumentContext* context = nullptr, const HST_DocumentSpec& spec = HST_DocumentSpec());

    int key() const { return m_key; }
    HST_CameraState* cameraState() const { return m_camera; }
    // The name of a document without a camera.
    QString fileName() const;
    bool isTemporary() const { return m_spec.temporary; }
    void setTemporary(bool temporary) { m_spec.temporary = temporary; }
    const HST_DocumentSpec& spec() const { return m_spec; }
    int currentPartitionNumber() const { return m_currentPartition; }
    // Frames a second of a partition: the scenario's, else 1000 for a camera and 0 for a file.
    int rateOf(int partition) const;
    // The host's own view, for its window: neither recorded nor faulted.
    QString commentText() const { return m_comment; }
    const QVariantList& customItems() const { return m_customData.items(); }
    QSize resolution() const { return m_view.imageSize; }
    // What the host's window shows for it: the camera's name, or the file's.
    QString title() const;
    // The host's selection; not operations of the plug-in's, so neither recorded nor faulted.
    bool selected() const { return m_selected; }
    void setSelected(bool selected) { m_selected = selected; }
    // How its window shows it (HST_DocumentDisplay.cpp); the host's own, neither recorded nor
    // faulted.
    const HST_ViewState& view() const { return m_view; }
    void setView(const HST_ViewState& view);
    void setViewWidget(QWidget* widget) { m_viewWidget = widget; }
    QWidget* viewWidget() const { return m_viewWidget; }
    // The size of its window, empty without one.
    QSize windowSize() const;
    // Schedules a repaint of its window, if it has one.
    void repaintView() const;

    // DOC_Interface
    DOC_Camera* asCamera() override;
    void heads(QList<DOC_Interface*>& out, bool all = true) override;
    int headCount() override;
    bool isConnected() override;
    void setConnectWanted(bool wanted) override;
    bool connectWanted() const { return m_connectWanted; }
    bool isSelected() override
    {
        hostCall("document.isSelected");
        return m_selected;
    }
    bool isSelectedMulti() override;
    bool holdsCameraMemory() override
    {
        hostCall("document.holdsCameraMemory");
        return m_camera != nullptr;
    }
    QString& filePath(QString& out) override;
    QString& deviceName(QString& out) override;
    QString& baseName(QString& out) override;
    bool isMobile() override;
    QString& partitionName(QString& out, int partition) override;
    // Schedules a repaint of its window.
    void refresh(bool) override;
    QString& sortName(QString& out) override;
    bool isRostraLocked() override;

    // DOC_Feed, DOC_Playback
    void restart(bool) override { hostCall("document.restart"); }
    unsigned partitionFrames(int partition, int = 0) override;

    // DOC_ImageData
    QSize imageSize(QSize& out) override;
    void setCursorPosition(const QPoint&) override { hostCall("document.setCursorPosition"); }
    void extent(QSize& out) override;
    void viewToImage(QPoint& out, const QPoint& viewPos, bool) override;
    bool isRotatedQuarter() override;
    QString& comment(QString& out) override
    {
        hostCall("document.comment");
        return out = m_comment;
    }
    void setComment(const QString& text) override;
    bool imageFormat(int& depth, int& realDepth) override;
    QPixmap previewPixmap(int previewMode, int width, int height, int partition, int set,
        const QDateTime& dateTime) override;

    // DOC_Camera
    QString ipAddress(bool current = true) override;
    int cameraType() override;
    QString cameraName(bool current = true) override;
    void fullImageSize(QSize& out) override;
    bool hasScaleFactor() override;
    int scaleFactor() override;
    int partitionRate(int partition) override
    {
        hostCall("document.partitionRate");
        return rateOf(partition);
    }
    int recordingRate(int = 0) override
    {
        hostCall("document.recordingRate");
        return rateOf(m_currentPartition);
    }
    QString modelText(bool full = true) override;
    int deviceNumber() override;
    int headNumber() override;
    QString headName(bool current = true) override
    {
        hostCall("document.headName");
        return cameraName(current);
    }
    QString& recordingDate(QString& out) override;
    QString& recordingTime(QString& out) override;
    int triggerMode() override;
    int currentPartition(bool = true) override
    {
        hostCall("document.currentPartition");
        return m_camera ? m_currentPartition : 0;
    }
    void setPartitionDirty(int = 0) override { hostCall("document.setPartitionDirty"); }
    int partitionCount(int = 0, int = 0) override;
    bool isFunctionSupported(int functionId, bool current = true) override;
    bool hasSiblingHeads() override;
    void firmwareVersion(QString& out) override;
    void firmwareVersion2(QString& out) override;
    void firmwareVersion3(QString& out) override;
    QVariantList& customData(QVariantList& out) override
    {
        hostCall("document.customData");
        return out = m_customData.items();
    }
    void clearCustomData() override
    {
        hostCall("document.clearCustomData");
        m_customData.clear();
    }
    void addCustomData(const QString& name, const QString& value, const QString& unit, bool display,
        bool usefilename) override;
    void setCustomData(const QString& name, const QString& value, const QString& unit, bool display,
        bool usefilename) override;
    void removeCustomData(const QString& name) override;
    void renameCustomData(const QString& oldName, const QString& newName) override;
    bool isFitMemoryMode() override
    {
        hostCall("document.isFitMemoryMode");
        return false;
    }
    int exposureTimingFlag() override;
    int exposureTimingClass() override;
    bool isSdManaged() override
    {
        hostCall("document.isSdManaged");
        return m_cameraMedia.managed(HST_MediaKind::Sd);
    }
    bool isVaultPackManaged() override
    {
        hostCall("document.isVaultPackManaged");
        return m_cameraMedia.managed(HST_MediaKind::StorageUnit);
    }
    bool isCFastManaged() override
    {
        hostCall("document.isCFastManaged");
        return m_cameraMedia.managed(HST_MediaKind::CFast);
    }
    bool isSdSlotEnabled(int index) override
    {
        hostCall("document.isSdSlotEnabled");
        return m_cameraMedia.slotEnabled(HST_MediaKind::Sd, index);
    }
    void sdCardInfo(int index, int& speedMode, int& speedClass, int& megabytes) override
    {
        hostCall("document.sdCardInfo");
        m_cameraMedia.sdCardInfo(index, speedMode, speedClass, megabytes);
    }
    void sdSlotStatus(int index, int& inserted, int& isProtected, int& formatted) override
    {
        hostCall("document.sdSlotStatus");
        m_cameraMedia.status(HST_MediaKind::Sd, index, inserted, isProtected, formatted);
    }
    void sdDataFrames(int index, int number, int& frames) override
    {
        hostCall("document.sdDataFrames");
        frames = m_cameraMedia.frames(HST_MediaKind::Sd, index, number);
    }
    void sdDataDateTime(int index, int number, int& date, int& time) override
    {
        hostCall("document.sdDataDateTime");
        m_cameraMedia.dateTime(HST_MediaKind::Sd, index, number, date, time);
    }
    // The first step of a format empties the medium and is recorded as formatMedia.
    void formatSdSlot(int index) override
    {
        hostCall("document.formatSdSlot");
        m_cameraMedia.format(HST_MediaKind::Sd, index);
    }
    void finishSdFormat(int index) override
    {
        hostCall("document.finishSdFormat");
        m_cameraMedia.finishFormat(HST_MediaKind::Sd, index);
    }
    bool isVaultPackSlotEnabled(int slot) override
    {
        hostCall("document.isVaultPackSlotEnabled");
        return m_cameraMedia.slotEnabled(HST_MediaKind::StorageUnit, slot);
    }
    bool canConvertVaultPackDataName(int = 0) override
    {
        hostCall("document.canConvertVaultPackDataName");
        // A recording on the unit, or a camera that names the data on its own unit.
        return m_spec.media.kind == HST_MediaKind::StorageUnit
            || m_cameraMedia.managed(HST_MediaKind::StorageUnit);
    }
    void vaultPackSpace(int slot, int& total, int& freeMegabytes) override
    {
        hostCall("document.vaultPackSpace");
        m_cameraMedia.vaultPackSpace(slot, total, freeMegabytes);
    }
    void vaultPackSlotStatus(int slot, int& connected, int& formatted) override
    {
        hostCall("document.vaultPackSlotStatus");
        int unused = 0;
        m_cameraMedia.status(HST_MediaKind::StorageUnit, slot, connected, unused, formatted);
    }
    // Recorded.
    void setVaultPackDataName(int slot, int dataNo, const QString& name, int = 0) override;
    QString& vaultPackDataName(QString& out, int slot, int number) override
    {
        hostCall("document.vaultPackDataName");
        return out = m_cameraMedia.dataName(slot, number);
    }
    void vaultPackDataFrames(int slot, int number, int& frames) override
    {
        hostCall("document.vaultPackDataFrames");
        frames = m_cameraMedia.frames(HST_MediaKind::StorageUnit, slot, number);
    }
    void vaultPackDataDateTime(int slot, int number, int& date, int& time) override
    {
        hostCall("document.vaultPackDataDateTime");
        m_cameraMedia.dateTime(HST_MediaKind::StorageUnit, slot, number, date, time);
    }
    void formatVaultPackSlot(int slot) override
    {
        hostCall("document.formatVaultPackSlot");
        m_cameraMedia.format(HST_MediaKind::StorageUnit, slot);
    }
    void finishVaultPackFormat(int slot) override
    {
        hostCall("document.finishVaultPackFormat");
        m_cameraMedia.finishFormat(HST_MediaKind::StorageUnit, slot);
    }
    quint64 vaultPackDataLimit(int slot) override
    {
        hostCall("document.vaultPackDataLimit");
        return m_cameraMedia.dataLimit(slot);
    }
    int vaultPackSlotNo() override
    {
        hostCall("document.vaultPackSlotNo");
        return m_cameraMedia.vaultPackSlotNo();
    }
    bool isCFastSlotEnabled(int slot) override
    {
        hostCall("document.isCFastSlotEnabled");
        return m_cameraMedia.slotEnabled(HST_MediaKind::CFast, slot);
    }
    void cfastSpace(int slot, quint64& total, quint64& freeBytes, int& dataCount) override
    {
        hostCall("document.cfastSpace");
        m_cameraMedia.cfastSpace(slot, total, freeBytes, dataCount);
    }
    void cfastSlotStatus(int slot, int& inserted, int& formatted) override
    {
        hostCall("document.cfastSlotStatus");
        int unused = 0;
        m_cameraMedia.status(HST_MediaKind::CFast, slot, inserted, unused, formatted);
    }
    // The camera numbers a card's data sets from 1.
    void cfastDataFrames(int slot, int number, int& frames) override
    {
        hostCall("document.cfastDataFrames");
        frames = m_cameraMedia.frames(HST_MediaKind::CFast, slot, number - 1);
    }
    void cfastDataDateTime(int slot, int number, int& date, int& time) override
    {
        hostCall("document.cfastDataDateTime");
        m_cameraMedia.dateTime(HST_MediaKind::CFast, slot, number - 1, date, time);
    }
    void formatCFastSlot(int slot) override
    {
        hostCall("document.formatCFastSlot");
        m_cameraMedia.format(HST_MediaKind::CFast, slot);
    }
    void finishCFastFormat(int slot) override
    {
        hostCall("document.finishCFastFormat");
        m_cameraMedia.finishFormat(HST_MediaKind::CFast, slot);
    }
    bool isDummy() override;
    bool hasRecordedData() override;
    void eraseRecordedData(int = 0) override;
    int supportsWifiConnected() override;
    int etherType() override;
    void setEtherType(int type) override;
    void networkAddresses(QString& ip, QString& subnetmask, QString& gateway) override;
    quint64 serialNumber(bool device) override;
    int supportsLinkSpeed() override;
    int dualSlopeShutter() override;
    int automaticExposureControl() override;
    int lowLightMode() override;

    // DOC_Partitions
    // Recorded when it changes.
    void selectPartition(int partition) override;
    QList<int>& partitions(QList<int>& out) override;
    QString& numberOptionText(
        QString& out, int, int, int, bool* usesSession, const QDateTime*) override;
    int deviceCount() override
    {
        hostCall("document.deviceCount");
        return m_context ? m_context->deviceCount : 1;
    }

    // DOC_Display
    bool hasToolMark(const QString&, bool) override
    {
        hostCall("document.hasToolMark");
        return false;
    }
    bool isToolSet(const QString&) override
    {
        hostCall("document.isToolSet");
        return false;
    }
    float rotationFraction() override;
    bool isMirroredHorizontally() override;
    bool isMirroredVertically() override;
    float zoomFactor(bool) override;
    int binningExponent() override;
    void reloadLogo() override;

    // DOC_HeadGroup
    bool isHeadGroupOwner() override;
    bool isHeadOfGroup() override;
    void selectHead(DOC_Interface* head) override;
    void unselectHead(DOC_Interface* head) override;
    void unselectAllHeads() override;
    void selectAllHeads() override;

    // DOC_Camera: presets
    int presetCount() override;
    QStringList& presetTexts(QStringList& out) override;
    void writePreset(int preset) override;
    bool presetNeedsReboot(int preset) override;

    // What a save takes of it (HST_DocumentDescription, HST_Preview, HST_SaveWriter).
    QVariantMap documentDescription(bool convert) override;
    // The scenario's partition, or null for a number out of range.
    const HST_PartitionSpec* partitionSpec(int partition) const;
    bool isMultiSkipA() override;
    bool isMultiSkipB() override;
    bool isOnSd() override;
    bool isOnStorageUnit() override;
    bool isOnCFast() override;
    // A file on disk behind a document that isn't a recording on a medium.
    bool canDeleteFile() override;
    // Removes exactly that file, then the host closes the document.
    bool deleteFile() override;
    void prepareSaveRange() override { hostCall("document.prepareSaveRange"); }
    bool isSavable() override;
    // The three options are recorded when they change.
    void setSaveInfo(bool on) override;
    void setSaveCorrect(bool on) override;
    void setSaveScale(bool on) override;
    // A recording's name follows, on its medium too.
    void setDataName(const QString& name) override;
    // Recordings know their serial and data numbers.
    bool canCheckSaved() override;

private:
    void hostCall(const char* operation) const;
    void record(const QString& call, QJsonObject fields) const;
    QString firmwarePart(int index) const;
    void setSaveOption(const char* operation, const char* name, bool& option, bool on);

    int m_key;
    HST_CameraState* m_camera;
    int m_documentIndex;
    HST_DocumentContext* m_context;
    HST_DocumentSpec m_spec;
    QString m_comment;
    HST_CustomData m_customData;
    HST_CameraMedia m_cameraMedia;
    bool m_selected = false;
    bool m_connectWanted = false;
    int m_currentPartition = 1;
    bool m_saveInfo = false;
    bool m_saveCorrect = false;
    bool m_saveScale = false;
    HST_ViewState m_view;
    QPointer<QWidget> m_viewWidget;
};
