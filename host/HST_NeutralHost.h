#pragma once

#include "plugin/APP_Host.h"

#include <QPoint>
#include <QRect>

// The part of the reference host that the simulation doesn't model. The rule, for every
// operation here: a query answers false, 0, an empty value or null; an out argument is
// cleared; a command does nothing. HST_Host gives real behaviour to the rest.
class HST_NeutralHost : public APP_Host
{
protected:
    // Every operation the plug-in may call starts here (HST_Faults).
    virtual void hostCall(const char* operation) = 0;

public:
    // APP_Host
    void hideSelectBox() override { hostCall("hideSelectBox"); }
    bool isShownDropBox() override
    {
        hostCall("isShownDropBox");
        return false;
    }
    void showDropDownBox(const QString&, const QRect&) override { hostCall("showDropDownBox"); }
    void hideDropDownBoxAt(const QString&, const QPoint&) override
    {
        hostCall("hideDropDownBoxAt");
    }
    void hideDropDownBox(const QString&) override { hostCall("hideDropDownBox"); }
    QObject* mdiWidget() override
    {
        hostCall("mdiWidget");
        return nullptr;
    }
    QString& itemLabel(QString& out, const QString&) override
    {
        hostCall("itemLabel");
        out.clear();
        return out;
    }
    void refreshQuickTools() override { hostCall("refreshQuickTools"); }
    APP_PrefsDialog* prefsDialog() override
    {
        hostCall("prefsDialog");
        return nullptr;
    }
    bool isDisplayInfoShowing() override
    {
        hostCall("isDisplayInfoShowing");
        return false;
    }
    void showAbout() override { hostCall("showAbout"); }
    void setDisplayInfoShowing(bool) override { hostCall("setDisplayInfoShowing"); }
    bool isToolActive(const QString&) override
    {
        hostCall("isToolActive");
        return false;
    }
    bool appliesTo(const QString&, DOC_Interface*, int = 0) override
    {
        hostCall("appliesTo");
        return false;
    }
    bool isTracking() override
    {
        hostCall("isTracking");
        return false;
    }
    void getTimeCodeSettings(APP_TimeCodeRecord*) override { hostCall("getTimeCodeSettings"); }
    void setTimeCodeSettings(APP_TimeCodeRecord*) override { hostCall("setTimeCodeSettings"); }
    bool isShuttingDown() override
    {
        hostCall("isShuttingDown");
        return false;
    }
    bool isUpdateIgnore() override
    {
        hostCall("isUpdateIgnore");
        return false;
    }
    void deterUpdateUI(bool) override { hostCall("deterUpdateUI"); }
    bool exportSupportFile(const QString&) override
    {
        hostCall("exportSupportFile");
        return false;
    }
    bool isCameraNameListEnabled() override
    {
        hostCall("isCameraNameListEnabled");
        return false;
    }
    void setOverlayFont(const QString&, int) override { hostCall("setOverlayFont"); }
    bool isCycleView() override
    {
        hostCall("isCycleView");
        return false;
    }
    bool isNotCurrentAutoFocus(bool) override
    {
        hostCall("isNotCurrentAutoFocus");
        return false;
    }
    bool isAutoFocussing() override
    {
        hostCall("isAutoFocussing");
        return false;
    }
    bool isNotLivePage(bool) override
    {
        hostCall("isNotLivePage");
        return false;
    }
    bool isPrefDialogOpening() override
    {
        hostCall("isPrefDialogOpening");
        return false;
    }
    bool isShading() override
    {
        hostCall("isShading");
        return false;
    }
    void setModelessTextFocus(bool) override { hostCall("setModelessTextFocus"); }
    bool isModalessDialogTextFocussing() override
    {
        hostCall("isModalessDialogTextFocussing");
        return false;
    }
    bool hasRestoredPrefs() override
    {
        hostCall("hasRestoredPrefs");
        return false;
    }
    void applyRestoredPrefs(bool = true) override { hostCall("applyRestoredPrefs"); }
    bool isActiveOnRostra() override
    {
        hostCall("isActiveOnRostra");
        return false;
    }
    bool isOtherPluginOpen() override
    {
        hostCall("isOtherPluginOpen");
        return false;
    }
    void openEthernetSettings() override { hostCall("openEthernetSettings"); }

    // APP_PageStack
    PLG_Interface* pluginByName(const QString&) override
    {
        hostCall("pluginByName");
        return nullptr;
    }
    void showDefaultPage() override { hostCall("showDefaultPage"); }
    void showPage(const QString&) override { hostCall("showPage"); }
    void pageClosed(const QString&) override { hostCall("pageClosed"); }
    void showPreviousPage() override { hostCall("showPreviousPage"); }
    PLG_Interface* currentPage() override
    {
        hostCall("currentPage");
        return nullptr;
    }
    QString& activeToolName(QString& out) override
    {
        hostCall("activeToolName");
        out.clear();
        return out;
    }
    bool isVariableSetting() override
    {
        hostCall("isVariableSetting");
        return false;
    }
    bool isAutoExposureSetting() override
    {
        hostCall("isAutoExposureSetting");
        return false;
    }
    bool isHwTriggerSetting() override
    {
        hostCall("isHwTriggerSetting");
        return false;
    }
    bool isSendingNodeCommand() override
    {
        hostCall("isSendingNodeCommand");
        return false;
    }
    bool isAdjustingImage() override
    {
        hostCall("isAdjustingImage");
        return false;
    }
    bool isDetectingPixelDefect() override
    {
        hostCall("isDetectingPixelDefect");
        return false;
    }
    bool isImageTriggerCapturing() override
    {
        hostCall("isImageTriggerCapturing");
        return false;
    }
    bool isImageTriggerDetecting() override
    {
        hostCall("isImageTriggerDetecting");
        return false;
    }
    bool isRostraRunning() override
    {
        hostCall("isRostraRunning");
        return false;
    }

    // APP_DocumentList
    DOC_Interface* currentDocument(QInputEvent*) override
    {
        hostCall("currentDocument");
        return nullptr;
    }
    void selectDocument(int) override { hostCall("selectDocument"); }
    void unselectDocument(int) override { hostCall("unselectDocument"); }
    void removeAllDocuments(int, bool) override { hostCall("removeAllDocuments"); }
    void prepareVaultPackFormat(int) override { hostCall("prepareVaultPackFormat"); }
    void prepareCFastFormat(int) override { hostCall("prepareCFastFormat"); }
    void selectAllDocuments(JS_Mediator*) override { hostCall("selectAllDocuments"); }
    void selectDocuments(const QList<int>&, int = 0) override { hostCall("selectDocuments"); }
    bool isMultiLock() override
    {
        hostCall("isMultiLock");
        return false;
    }
    void commitToolEdit(bool, const QString&) override { hostCall("commitToolEdit"); }
    void beginToolEdit(const QString&, bool, bool) override { hostCall("beginToolEdit"); }
    void abortToolEdit(const QString&) override { hostCall("abortToolEdit"); }
    void resetTool(const QString&) override { hostCall("resetTool"); }
    void setToolOption(const QString&, bool) override { hostCall("setToolOption"); }
    void deselectTool(const QString&) override { hostCall("deselectTool"); }
    void selectTool(const QString&, bool) override { hostCall("selectTool"); }
    bool isWaveDataAcquisition() override
    {
        hostCall("isWaveDataAcquisition");
        return false;
    }
    bool hasWaveformData() override
    {
        hostCall("hasWaveformData");
        return false;
    }
    QList<int>& temporaryDocumentKeys(QList<int>& out) override
    {
        hostCall("temporaryDocumentKeys");
        out.clear();
        return out;
    }
    bool isConflictPartition(int = 1) override
    {
        hostCall("isConflictPartition");
        return false;
    }
    void refreshAfterPause() override { hostCall("refreshAfterPause"); }
    DOC_Interface* headParent(DOC_Interface*) override
    {
        hostCall("headParent");
        return nullptr;
    }
    void refreshViewsAfterPause() override { hostCall("refreshViewsAfterPause"); }
    bool isPhaseAdjusting() override
    {
        hostCall("isPhaseAdjusting");
        return false;
    }

    // APP_LiveLoop, APP_Recorder, APP_Playback
    void resumeLive() override { hostCall("resumeLive"); }
    void pauseLiveLoop(bool = false) override { hostCall("pauseLiveLoop"); }
    bool needsRestart() override
    {
        hostCall("needsRestart");
        return false;
    }
    bool isRecording() override
    {
        hostCall("isRecording");
        return false;
    }
    int recordingStatus() override
    {
        hostCall("recordingStatus");
        return 0;
    }
    void pausePlayback() override { hostCall("pausePlayback"); }
    void resumePlayback() override { hostCall("resumePlayback"); }

    // APP_CameraManager
    bool isLensCalibration() override
    {
        hostCall("isLensCalibration");
        return false;
    }
    void selectPartition(int, bool = true) override { hostCall("selectPartition"); }
    QString& defaultCameraName(QString& out, int = 0) override
    {
        hostCall("defaultCameraName");
        out.clear();
        return out;
    }
    bool existsLowLight() override
    {
        hostCall("existsLowLight");
        return false;
    }
    bool isAllLowLight(bool) override
    {
        hostCall("isAllLowLight");
        return false;
    }
    bool isAllDevicesLocked() override
    {
        hostCall("isAllDevicesLocked");
        return false;
    }
    bool isLowLight() override
    {
        hostCall("isLowLight");
        return false;
    }
    void pauseLive() override { hostCall("pauseLive"); }
    void selectVariable(int) override { hostCall("selectVariable"); }
    bool isDirectSaving(int = 1) override
    {
        hostCall("isDirectSaving");
        return false;
    }
    void editDevice(
        int, const QString&, const QString&, const QString&, const QString&, bool) override
    {
        hostCall("editDevice");
    }
    void addDevice(const QString&, const QString&, bool, bool) override { hostCall("addDevice"); }

    // APP_SaveRegistry
    bool isAutoExporting() override
    {
        hostCall("isAutoExporting");
        return false;
    }
    bool isBackgroundSaving() override
    {
        hostCall("isBackgroundSaving");
        return false;
    }
    bool isBackgroundConverting() override
    {
        hostCall("isBackgroundConverting");
        return false;
    }
    void commitPendingNames() override { hostCall("commitPendingNames"); }
    void beginNamePass() override { hostCall("beginNamePass"); }
    void noteGroupDirectory(const QString&) override { hostCall("noteGroupDirectory"); }
    void noteDirectory(const QString&) override { hostCall("noteDirectory"); }
    void notePath(const QString&) override { hostCall("notePath"); }
    bool isDirectoryTaken(const QString&) override
    {
        hostCall("isDirectoryTaken");
        return false;
    }
    bool isPathTaken(const QString&) override
    {
        hostCall("isPathTaken");
        return false;
    }
    QString& groupDirectoryOverride(QString& out) override
    {
        hostCall("groupDirectoryOverride");
        out.clear();
        return out;
    }
    QString& directoryOverride(QString& out) override
    {
        hostCall("directoryOverride");
        out.clear();
        return out;
    }
    void copySelectArea(int = 2) override { hostCall("copySelectArea"); }

    // APP_View, APP_WindowList, APP_UndoStack
    bool isCycleViewActive() override
    {
        hostCall("isCycleViewActive");
        return false;
    }
    float zoomValue(int = 0) override
    {
        hostCall("zoomValue");
        return 0.0f;
    }
    int windowCount(bool, int) override
    {
        hostCall("windowCount");
        return 0;
    }
    void undo() override { hostCall("undo"); }
    bool canUndo() override
    {
        hostCall("canUndo");
        return false;
    }
    bool canRedo() override
    {
        hostCall("canRedo");
        return false;
    }
    void beginMacro(const QString&) override { hostCall("beginMacro"); }
    void endMacro() override { hostCall("endMacro"); }
};
