#pragma once

#include "plugin/SyncGlobal.h"

#include <QList>
#include <QString>

class DOC_Camera;
class QMutex;

// Facet of the host: the connected cameras as a whole.
class SYNC_SHARED APP_CameraManager
{
public:
    virtual ~APP_CameraManager() = default;

    // Blocking; runs on a worker thread while the GUI thread waits in a modal dialog.
    // Throws a std::exception when the sync failed.
    virtual void applySync(QList<DOC_Camera*> cameras, DOC_Camera* master, int distributor,
                           bool external, bool generatorControl, int syncIn, int frequency,
                           int polarity) = 0;
    virtual bool isSyncRequired() = 0;
    virtual bool isLensCalibration() = 0;
    virtual void selectPartition(int partition, bool update = true) = 0;
    virtual QString& defaultCameraName(QString& out, int reserved = 0) = 0;
    virtual bool existsLowLight() = 0;
    virtual bool isAllLowLight(bool on) = 0;
    virtual bool isAllDevicesLocked() = 0;
    virtual bool isLowLight() = 0;
    virtual void pauseLive() = 0;
    virtual void selectVariable(int number) = 0;
    virtual bool isDirectSaving(int filter = 1) = 0;
    virtual void editDevice(int key, const QString& cameraName, const QString& ip,
                            const QString& subnetmask, const QString& gateway, bool cameraMode) = 0;
    virtual void addDevice(const QString& cameraName, const QString& ip, bool isDummy,
                           bool connect) = 0;

    // Camera settings files and presets.
    virtual QList<int> settingsDocumentKeys() = 0;
    // Held while camera settings are written; tried, never waited for.
    virtual QMutex* cameraMutex() = 0;
    // Blocking; runs on a pool thread while the GUI thread waits in the busy dialog.
    virtual void saveSettingsFile(const QString& path, int reserved = 0) = 0;
    // Applies a settings file to the cameras it names: all of them or, when the file can't be
    // read or names a camera that isn't there, none, with an APP_Exception that says why.
    virtual void loadSettingsFile(const QString& path) = 0;
};
