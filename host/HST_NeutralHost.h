#pragma once

#include "plugin/APP_Host.h"

#include <QPoint>
#include <QRect>

// The part of the reference host that the simulation doesn't model. The rule, for every
// operation here: a query answers false, 0, an empty value or null; an out argument is
// cleared; a command does nothing. HST_Host gives real behaviour to the rest.
class HST_NeutralHost : public APP_Host
{
public:
    // APP_Host
    void hideSelectBox() override { }
    bool isShownDropBox() override { return false; }
    void showDropDownBox(const QString&, const QRect&) override { }
    void hideDropDownBoxAt(const QString&, const QPoint&) override { }
    void hideDropDownBox(const QString&) override { }
    QObject* mdiWidget() override { return nullptr; }
    QString& itemLabel(QString& out, const QString&) override
    {
        out.clear();
        return out;
    }
    void refreshQuickTools() override { }
    APP_PrefsDialog* prefsDialog() override { return nullptr; }
    bool isDisplayInfoShowing() override { return false; }
    void showAbout() override { }
    void setDisplayInfoShowing(bool) override { }
    bool isToolActive(const QString&) override { return false; }
    bool appliesTo(const QString&, DOC_Interface*, int = 0) override { return false; }
    bool isTracking() override { return false; }
    void getTimeCodeSettings(APP_TimeCodeRecord*) override { }
    void setTimeCodeSettings(APP_TimeCodeRecord*) override { }
    bool isShuttingDown() override { return false; }
    bool isUpdateIgnore() override { return false; }
    void deterUpdateUI(bool) override { }
    bool exportSupportFile(const QString&) override { return false; }
    bool isCameraNameListEnabled() override { return false; }
    void setOverlayFont(const QString&, int) override { }
    bool isCycleView() override { return false; }
    bool isNotCurrentAutoFocus(bool) override { return false; }
    bool isAutoFocussing() override { return false; }
    bool isNotLivePage(bool) override { return false; }
    bool isPrefDialogOpening() override { return false; }
    bool isShading() override { return false; }
    void setModelessTextFocus(bool) override { }
    bool isModalessDialogTextFocussing() override { return false; }
    bool hasRestoredPrefs() override { return false; }
    void applyRestoredPrefs(bool = true) override { }
    bool isActiveOnRostra() override { return false; }
    bool isOtherPluginOpen() override { return false; }
    void openEthernetSettings() override { }

    // APP_PageStack
    PLG_Interface* pluginByName(const QString&) override { return nullptr; }
    void showDefaultPage() override { }
    void showPage(const QString&) override { }
    void pageClosed(const QString&) override { }
    void showPreviousPage() override { }
    PLG_Interface* currentPage() override { return nullptr; }
    QString& activeToolName(QString& out) override
    {
        out.clear();
        return out;
    }
    bool isVariableSetting() override { return false; }
    bool isAutoExposureSetting() override { return false; }
    bool isHwTriggerSetting() override { return false; }
    bool isSendingNodeCommand() override { return false; }
    bool isAdjustingImage() override { return false; }
    bool isDetectingPixelDefect() override { return false; }
    bool isImageTriggerCapturing() override { return false; }
    bool isImageTriggerDetecting() override { return false; }
    bool isRostraRunning() override { return false; }

    // APP_DocumentList
    void selectDocument(int) override { }
    void unselectDocument(int) override { }
    void removeAllDocuments(int, bool) override { }
    void prepareVaultPackFormat(int) override { }
    void prepareCFastFormat(int) override { }
    void selectAllDocuments(JS_Mediator*) override { }
    void selectDocuments(const QList<int>&, int = 0) override { }
    bool isMultiLock() override { return false; }
    void commitToolEdit(bool, const QString&) override { }
    void beginToolEdit(const QString&, bool, bool) override { }
    void abortToolEdit(const QString&) override { }
    void resetTool(const QString&) override { }
    void setToolOption(const QString&, bool) override { }
    void deselectTool(const QString&) override { }
    void selectTool(const QString&, bool) override { }
    bool isWaveDataAcquisition() override { return false; }
    bool hasWaveformData() override { return false; }
    QList<int>& temporaryDocumentKeys(QList<int>& out) override
    {
        out.clear();
        return out;
    }
    bool isConflictPartition(int = 1) override { return false; }
    void refreshAfterPause() override { }
    DOC_Interface* headParent(DOC_Interface*) override { return nullptr; }
    void refreshViewsAfterPause() override { }
    bool isPhaseAdjusting() override { return false; }

    // APP_LiveLoop, APP_Recorder, APP_Playback
    void resumeLive() override { }
    void pauseLiveLoop(bool = false) override { }
    bool needsRestart() override { return false; }
    bool isRecording() override { return false; }
    int recordingStatus() override { return 0; }
    void pausePlayback() override { }
    void resumePlayback() override { }

    // APP_CameraManager
    bool isLensCalibration() override { return false; }
    void selectPartition(int, bool = true) override { }
    QString& defaultCameraName(QString& out, int = 0) override
    {
        out.clear();
        return out;
    }
    bool existsLowLight() override { return false; }
    bool isAllLowLight(bool) override { return false; }
    bool isAllDevicesLocked() override { return false; }
    bool isLowLight() override { return false; }
    void pauseLive() override { }
    void selectVariable(int) override { }
    bool isDirectSaving(int = 1) override { return false; }
    void editDevice(
        int, const QString&, const QString&, const QString&, const QString&, bool) override
    {
    }
    void addDevice(const QString&, const QString&, bool, bool) override { }

    // APP_SaveRegistry
    bool isAutoExporting() override { return false; }
    bool isBackgroundSaving() override { return false; }
    bool isBackgroundConverting() override { return false; }
    void commitPendingNames() override { }
    void beginNamePass() override { }
    void noteGroupDirectory(const QString&) override { }
    void noteDirectory(const QString&) override { }
    void notePath(const QString&) override { }
    bool isDirectoryTaken(const QString&) override { return false; }
    bool isPathTaken(const QString&) override { return false; }
    QString& groupDirectoryOverride(QString& out) override
    {
        out.clear();
        return out;
    }
    QString& directoryOverride(QString& out) override
    {
        out.clear();
        return out;
    }
    void copySelectArea(int = 2) override { }

    // APP_View, APP_WindowList, APP_UndoStack
    bool isCycleViewActive() override { return false; }
    float zoomValue(int = 0) override { return 0.0f; }
    int windowCount(bool, int) override { return 0; }
    void undo() override { }
    bool canUndo() override { return false; }
    bool canRedo() override { return false; }
    void beginMacro(const QString&) override { }
    void endMacro() override { }
};
