#pragma once

#include "host/HST_NeutralHost.h"
#include "plugin/SharedKeys.h"

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QUndoStack>

class HST_Recorder;

// The host's answers to the status queries behind the control status map: the scenario's
// "status" table (defaults of an idle host in camera mode), the recording status, and the state
// the host keeps itself (undo stack, active tool, the text focus of a modeless dialog).
// HST_Host adds what depends on its documents and windows.
class HST_StatusHost : public HST_NeutralHost
{
public:
    explicit HST_StatusHost(HST_Recorder* recorder);

    // Takes the scenario's names over those set before; undo and redo, the active tool and the
    // text focus take their state from their names.
    void applyStatus(const QMap<QString, bool>& status);
    void setRecordingStatus(int status) { m_recordingStatus = status; }
    // The answer to a plain status name, as the scenario set it or its default.
    bool status(const QString& name) const;
    QUndoStack* undoStack() { return &m_undoStack; }
    QString activeTool() const { return m_activeTool; }

    // APP_Host
    bool isToolActive(const QString& name) override;
    bool isTracking() override { return query("isTracking", STATUS_IS_TRACKING); }
    bool isCycleView() override { return query("isCycleView", STATUS_IS_CYCLE_VIEW); }
    // The map's entry is this query's negation.
    bool isNotCurrentAutoFocus(bool) override
    {
        return !query("isNotCurrentAutoFocus", STATUS_IS_NOT_CURRENT_AUTO_FOCUS);
    }
    bool isAutoFocussing() override { return query("isAutoFocussing", STATUS_IS_AUTO_FOCUSSING); }
    bool isNotLivePage(bool withDeviceSetting) override
    {
        return query("isNotLivePage",
            withDeviceSetting ? STATUS_IS_NOT_LIVE_AND_DEVICE_SETTING_PAGE
                              : STATUS_IS_NOTLIVE_PAGE);
    }
    bool isShading() override { return query("isShading", STATUS_IS_SHADING); }
    void setModelessTextFocus(bool focus) override;
    bool isModalessDialogTextFocussing() override
    {
        return query("isModalessDialogTextFocussing", STATUS_IS_MODALESS_DIALOG_TEXT_FOCUSSING);
    }
    bool isActiveOnRostra() override
    {
        return query("isActiveOnRostra", STATUS_IS_ACTIVE_TARVIX_ON_ROSTRA);
    }

    // APP_PageStack
    QString& activeToolName(QString& out) override;
    bool isVariableSetting() override
    {
        return query("isVariableSetting", STATUS_IS_VARIABLE_SETTING);
    }
    bool isAutoExposureSetting() override
    {
        return query("isAutoExposureSetting", STATUS_IS_AUTO_EXPOSURE_SETTING);
    }
    bool isHwTriggerSetting() override
    {
        return query("isHwTriggerSetting", STATUS_IS_HW_TRIGGER_SETTING);
    }
    bool isSendingNodeCommand() override
    {
        return query("isSendingNodeCommand", STATUS_IS_SENDING_NODE_COMMAND);
    }
    bool isAdjustingImage() override
    {
        return query("isAdjustingImage", STATUS_IS_ADJUSTING_IMAGE);
    }
    bool isDetectingPixelDefect() override
    {
        return query("isDetectingPixelDefect", STATUS_IS_DETECTING_PIXEL_DEFECT);
    }
    bool isImageTriggerCapturing() override
    {
        return query("isImageTriggerCapturing", STATUS_IS_IMAGE_TRIGGER_CAPTURING);
    }
    bool isImageTriggerDetecting() override
    {
        return query("isImageTriggerDetecting", STATUS_IS_IMAGE_TRIGGER_DETECTING);
    }
    bool isRostraRunning() override { return query("isRostraRunning", STATUS_IS_ROSTRA); }

    // APP_DocumentList
    void deselectTool(const QString& name) override;
    void selectTool(const QString& name, bool on) override;
    bool hasWaveformData() override
    {
        return !query("hasWaveformData", STATUS_IS_NONE_WAVEFORM_DATA);
    }
    bool isConflictPartition(int = 1) override
    {
        return query("isConflictPartition", STATUS_IS_CONFLICT_PARTITION);
    }
    bool isPhaseAdjusting() override
    {
        return query("isPhaseAdjusting", STATUS_IS_PHASE_ADJUSTING);
    }

    // APP_Recorder
    bool isRecording() override { return query("isRecording", STATUS_IS_RECORDING); }
    int recordingStatus() override
    {
        hostCall("recordingStatus");
        return m_recordingStatus;
    }

    // APP_CameraManager
    bool isLensCalibration() override
    {
        return query("isLensCalibration", STATUS_IS_LENS_CALIBRATION);
    }
    bool existsLowLight() override { return query("existsLowLight", STATUS_EXIST_LOWLIGHT); }
    bool isAllLowLight(bool on) override
    {
        return query("isAllLowLight", on ? STATUS_IS_ALL_LOWLIGHT_ON : STATUS_IS_ALL_LOWLIGHT_OFF);
    }
    bool isAllDevicesLocked() override
    {
        return query("isAllDevicesLocked", STATUS_IS_ALL_ROSTRA_LOCK_DEVICE);
    }
    bool isLowLight() override { return query("isLowLight", STATUS_IS_LOWLIGHT); }
    bool isDirectSaving(int = 1) override
    {
        return query("isDirectSaving", STATUS_IS_DIRECT_SAVING);
    }

    // APP_SaveRegistry
    bool isAutoExporting() override { return query("isAutoExporting", STATUS_IS_AUTO_EXPOTING); }
    bool isBackgroundSaving() override { return query("isBackgroundSaving", STATUS_IS_BG_SAVING); }
    bool isBackgroundConverting() override
    {
        return query("isBackgroundConverting", STATUS_IS_BG_CONVERTING);
    }

    // APP_UndoStack
    void undo() override;
    bool canUndo() override;
    bool canRedo() override;
    void beginMacro(const QString& text) override;
    void endMacro() override;

protected:
    // The host's state changed in a way its windows show.
    virtual void hostStateChanged() { }
    // Undo macros open now, nested ones counted.
    int macroDepth() const { return m_macroDepth; }

private:
    bool query(const char* operation, const QString& name);
    void record(const char* call, const QJsonObject& fields);
    void setActiveTool(const QString& name);

    HST_Recorder* m_stateRecorder;
    QMap<QString, bool> m_status;
    int m_recordingStatus = 0;
    QUndoStack m_undoStack;
    int m_macroDepth = 0;
    QString m_activeTool;
};
