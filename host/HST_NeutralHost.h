#pragma once

#include "plugin/APP_Host.h"

#include <QPoint>
#include <QRect>

// The part of the reference host that the simulation doesn't model. The rule, for every
// operation here: a query answers false, 0, an empty value or null; an out argument is
// cleared; a command does nothing. HST_StatusHost and HST_Host give real behaviour to the rest.
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
    void refreshQuickTools() override { hostCall("refreshQuickTools"); }
    bool appliesTo(const QString&, DOC_Interface*, int = 0) override
    {
        hostCall("appliesTo");
        return false;
    }
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
    bool isCameraNameListEnabled() override
    {
        hostCall("isCameraNameListEnabled");
        return false;
    }
    bool hasRestoredPrefs() override
    {
        hostCall("hasRestoredPrefs");
        return false;
    }
    void applyRestoredPrefs(bool = true) override { hostCall("applyRestoredPrefs"); }

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

    // APP_DocumentList
    DOC_Interface* currentDocument(QInputEvent*) override
    {
        hostCall("currentDocument");
        return nullptr;
    }
    void removeAllDocuments(int, bool) override { hostCall("removeAllDocuments"); }
    void prepareVaultPackFormat(int) override { hostCall("prepareVaultPackFormat"); }
    void prepareCFastFormat(int) override { hostCall("prepareCFastFormat"); }
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
    bool isWaveDataAcquisition() override
    {
        hostCall("isWaveDataAcquisition");
        return false;
    }
    QList<int>& temporaryDocumentKeys(QList<int>& out) override
    {
        hostCall("temporaryDocumentKeys");
        out.clear();
        return out;
    }
    void refreshAfterPause() override { hostCall("refreshAfterPause"); }
    DOC_Interface* headParent(DOC_Interface*) override
    {
        hostCall("headParent");
        return nullptr;
    }
    void refreshViewsAfterPause() override { hostCall("refreshViewsAfterPause"); }

    // APP_LiveLoop, APP_Playback
    void resumeLive() override { hostCall("resumeLive"); }
    void pauseLiveLoop(bool = false) override { hostCall("pauseLiveLoop"); }
    bool needsRestart() override
    {
        hostCall("needsRestart");
        return false;
    }
    void pausePlayback() override { hostCall("pausePlayback"); }
    void resumePlayback() override { hostCall("resumePlayback"); }

    // APP_CameraManager
    void selectPartition(int, bool = true) override { hostCall("selectPartition"); }
    QString& defaultCameraName(QString& out, int = 0) override
    {
        hostCall("defaultCameraName");
        out.clear();
        return out;
    }
    void selectVariable(int) override { hostCall("selectVariable"); }
    void editDevice(
        int, const QString&, const QString&, const QString&, const QString&, bool) override
    {
        hostCall("editDevice");
    }
    void addDevice(const QString&, const QString&, bool, bool) override { hostCall("addDevice"); }

    // APP_SaveRegistry
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

    // APP_View
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
};
