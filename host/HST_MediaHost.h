#pragma once

#include "host/HST_DocumentHost.h"
#include "host/HST_Media.h"
#include "host/HST_SaveWriter.h"

#include <memory>

// The reference host's removable media and saving: the drives the PC sees of the cameras'
// slots, recordings opened from them as temporary documents, folders of files opened the
// same way and imported, and the writer behind a save. Every change is recorded.
class HST_MediaHost : public HST_DocumentHost
{
public:
    explicit HST_MediaHost(HST_Recorder* recorder);
    ~HST_MediaHost() override;

    // The media of the cameras, the writer and the loop save of a scenario.
    void setSaveWorld(const HST_Scenario& scenario);
    // The cameras' media as the scenario gives them; what was open of them closes.
    void resetMedia(const QList<HST_CameraSpec>& cameras);
    void setLoopSave(bool mode, bool active);
    HST_Media* media() const { return m_media.get(); }
    int mediaKind() const { return m_mediaKind; }

    // APP_MediaEngine
    unsigned sdDriveMask() override;
    int currentSdDrive() override;
    void setMediaKind(int kind) override;
    void openSdDrive(const QString& driveName) override;
    void closeMedia() override;
    QVariantList storageUnitDrives() override;
    QVariantList cfastDrives() override;
    void openStorageUnit(int type, int driveNo, int slotNo, const QString& driveName) override;
    bool unlockStorageUnit(int type, int driveNo, int slotNo, const QString& password) override;
    void openCFast(int type, int driveNo, int slotNo, const QString& driveName) override;
    void formatStorageUnit(int type, int driveNo, int slotNo) override;
    void formatCFast(int type, int driveNo, int slotNo) override;
    void storageUnitUsage(
        int type, int driveNo, int slotNo, quint64& used, quint64& capacity) override;
    void cfastUsage(int type, int driveNo, int slotNo, quint64& used, quint64& capacity) override;
    quint64 totalWrittenAmount(int type, int driveNo, int slotNo) override;

    // APP_DocumentList
    QList<int> deviceKeys() override;
    void openFiles(const QStringList& paths) override;
    void importDocuments(const QList<int>& keys) override;

    // APP_SaveRegistry
    bool isLoopSaveMode() override;
    bool isLoopSaveActive() override;
    QList<QPair<QString, QString>> findSavedData(
        const QString& folder, const QList<QPair<QString, QString>>& pairs) override;
    void saveDocument(
        int key, const QMap<int, QString>& paths, const APP_SaveRequest& request) override;

private:
    // Closes what is open and opens the slot's recordings.
    void openSlot(const HST_Media::Slot& slot);
    void closeOpenMedia();
    void format(HST_Media::Slot& slot);
    HST_SaveWriter::Source sourceOf(HST_Document* document) const;

    HST_Recorder* m_mediaRecorder;
    std::unique_ptr<HST_Media> m_media;
    std::unique_ptr<HST_SaveWriter> m_writer;
    bool m_loopSaveMode = false;
    bool m_loopSaveActive = false;
    int m_mediaKind = 0;
    // The documents of the open slot's recordings.
    QList<int> m_mediaKeys;
    HST_MediaKind m_openKind = HST_MediaKind::None;
    QString m_openDrive;
};
