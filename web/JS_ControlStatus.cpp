#include "web/JS_ControlStatus.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/PLG_Interface.h"
#include "plugin/SharedKeys.h"
#include "web/JS_OrderedJson.h"

#include <QWidget>

QString JS_ControlStatus::build(APP_Host* host, DOC_Interface* doc)
{
    if (!doc)
        doc = host->currentDocument();
    const int windows = host->windowCount(true, 0);
    const int recordingStatus = host->recordingStatus();
    const bool cameraMode = host->isCameraMode();

    JS_OrderedJson status;
    status.add(STATUS_IS_NONE_WINDOW, windows < 1);
    status.add(STATUS_IS_SINGLE_WINDOW, windows == 1);
    status.add(STATUS_IS_MULTI_WINDOW, windows >= 2);
    status.add(STATUS_IS_RECORDING, host->isRecording());
    status.add(STATUS_IS_BG_SAVING, host->isBackgroundSaving());
    status.add(STATUS_IS_BG_CONVERTING, host->isBackgroundConverting());
    status.add(STATUS_IS_DIRECT_SAVING, host->isDirectSaving());
    status.add(STATUS_IS_NONE_DOCUMENT, host->selectedDocumentCount() < 1);
    // Goes with the windows, not with the selection: the host's own rule.
    status.add(STATUS_IS_SINGLE_SELECTED_DOCUMENT, windows == 1);
    status.add(STATUS_IS_CTS_READY, recordingStatus == 1);
    status.add(STATUS_IS_READY, recordingStatus == 2);
    status.add(STATUS_IS_LIVE_MODE, cameraMode);
    status.add(STATUS_IS_MEMORY_MODE, host->isMemoryMode());
    status.add(STATUS_IS_FILE_MODE, host->isFileMode());
    status.add(STATUS_IS_NOT_RECORDING, recordingStatus == 0);
    status.add(STATUS_IS_RECORDING_ERROR, recordingStatus == 4);
    status.add(STATUS_IS_NOT_UNDO, !host->canUndo());
    status.add(STATUS_IS_NOT_REDO, !host->canRedo());
    status.add(STATUS_IS_LOWLIGHT, host->isLowLight());
    status.add(STATUS_EXIST_LOWLIGHT, host->existsLowLight());
    status.add(STATUS_IS_ALL_LOWLIGHT_ON, host->isAllLowLight(true));
    status.add(STATUS_IS_ALL_LOWLIGHT_OFF, host->isAllLowLight(false));
    status.add(STATUS_IS_AUTO_EXPOSURE_SETTING, host->isAutoExposureSetting());
    status.add(STATUS_IS_HW_TRIGGER_SETTING, host->isHwTriggerSetting());
    status.add(STATUS_IS_VARIABLE_SETTING, host->isVariableSetting());
    status.add(STATUS_IS_TRACKING, host->isTracking());
    status.add(STATUS_IS_LENS_CALIBRATION, host->isLensCalibration());
    status.add(STATUS_IS_NONE_WAVEFORM_DATA, !host->hasWaveformData());
    status.add(STATUS_IS_LIVE_NO_AUTO_DOWNLOAD_SETTING,
        !host->getPrefBool(PREF_KEY_RECORDING_AUTO_DOWNLOAD, QVariant()) && cameraMode);
    status.add(STATUS_IS_CURRENT_DISCONNECTED, doc && !doc->isConnected());
    status.add(STATUS_IS_CONFLICT_PARTITION, host->isConflictPartition());
    status.add(STATUS_IS_SENDING_NODE_COMMAND, host->isSendingNodeCommand());
    status.add(STATUS_IS_ADJUSTING_IMAGE, host->isAdjustingImage());
    status.add(STATUS_IS_DETECTING_PIXEL_DEFECT, host->isDetectingPixelDefect());
    status.add(STATUS_IS_CYCLE_VIEW, host->isCycleView() || host->isCycleViewActive());
    QString tool;
    status.add(STATUS_IS_IMAGE_OVERLAY, host->activeToolName(tool) == TOOL_IMAGEOVERLAY);
    status.add(STATUS_IS_IMAGE_TRIGGER_CAPTURING, host->isImageTriggerCapturing());
    status.add(STATUS_IS_IMAGE_TRIGGER_DETECTING, host->isImageTriggerDetecting());
    PLG_Interface* page = host->currentPage();
    status.add(STATUS_IS_MOUSE_DRAGGING, page && page->isMouseDown());
    status.add(STATUS_IS_AUTO_FOCUSSING, host->isAutoFocussing());
    status.add(STATUS_IS_NOTLIVE_PAGE, host->isNotLivePage(false));
    status.add(STATUS_IS_NOT_LIVE_AND_DEVICE_SETTING_PAGE, host->isNotLivePage(true));
    status.add(STATUS_IS_PREF_DIALOG_OPENING, host->isPrefDialogOpening());
    status.add(STATUS_IS_MODAL_DIALOG_OPENING, host->isModalDialogOpening());
    status.add(STATUS_IS_PHASE_ADJUSTING, host->isPhaseAdjusting());
    const QWidget* mainWindow = host->getMainWindow();
    status.add(STATUS_IS_FULL_SCREEN, mainWindow && mainWindow->isFullScreen());
    status.add(STATUS_IS_MODALESS_DIALOG_TEXT_FOCUSSING, host->isModalessDialogTextFocussing());
    status.add(STATUS_IS_SHADING, host->isShading());
    const bool rostra = host->isRostraRunning();
    status.add(STATUS_IS_ROSTRA, rostra);
    status.add(STATUS_IS_ACTIVE_TARVIX_ON_ROSTRA, host->isActiveOnRostra());
    status.add(STATUS_IS_ROSTRA_LOCK_DEVICE, rostra && cameraMode && doc && doc->isRostraLocked());
    status.add(
        STATUS_IS_ALL_ROSTRA_LOCK_DEVICE, rostra && cameraMode && host->isAllDevicesLocked());
    status.add(STATUS_IS_OTHER_PLUGIN_OPEN, host->isOtherPluginOpen());
    status.add(STATUS_IS_NOT_CURRENT_AUTO_FOCUS, !host->isNotCurrentAutoFocus(true) && cameraMode);
    status.add(STATUS_IS_AUTO_EXPOTING, host->isAutoExporting() && cameraMode);
    return status.text();
}
