#pragma once

#include "plugin/APP_CameraManager.h"
#include "plugin/APP_DocumentList.h"
#include "plugin/APP_LinkCoreManager.h"
#include "plugin/APP_LiveLoop.h"
#include "plugin/APP_MediaEngine.h"
#include "plugin/APP_PageStack.h"
#include "plugin/APP_Playback.h"
#include "plugin/APP_Recorder.h"
#include "plugin/APP_SaveRegistry.h"
#include "plugin/APP_UndoStack.h"
#include "plugin/APP_View.h"
#include "plugin/APP_WindowList.h"
#include "plugin/SyncGlobal.h"

#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <exception>

class APP_PrefsDialog;
class JS_Mediator;
class QObject;
class QWebView;
class QWidget;
struct APP_CameraTypeRecord;
struct APP_TimeCodeRecord;
template <typename T> class QFutureWatcher;

// The host as the plug-in sees it. The plug-in is built against these interfaces only.
//
// The host's facets are base classes of APP_Host, so a facet is reached by a plain upcast of
// the host pointer, with no lookup and no failure:
//     APP_DocumentList* documents = host;
// A host implements APP_Host and thereby every facet. Operations are declared in the host's own
// order.
class SYNC_SHARED APP_Host : public APP_PageStack,
                             public APP_DocumentList,
                             public APP_LiveLoop,
                             public APP_Recorder,
                             public APP_Playback,
                             public APP_CameraManager,
                             public APP_SaveRegistry,
                             public APP_View,
                             public APP_WindowList,
                             public APP_UndoStack,
                             public APP_LinkCoreManager,
                             public APP_MediaEngine
{
public:
    ~APP_Host() override = default;

    virtual void updateUI(unsigned mask, bool flag) = 0;
    virtual QVariant& defaultVariant(QVariant& out, const QString& key) = 0;
    virtual void restoreDefault(const QString& key) = 0;
    virtual void hideSelectBox() = 0;
    virtual bool isShownDropBox() = 0;
    virtual void showDropDownBox(const QString& key, const QRect& rect) = 0;
    virtual void hideDropDownBoxAt(const QString& key, const QPoint& pos) = 0;
    virtual void hideDropDownBox(const QString& key) = 0;
    virtual bool isModalAnnounced() = 0;
    // 0 live, 1 memory, 2 file.
    virtual int saveTargetKind() = 0;
    virtual bool isCameraMode() = 0;
    virtual bool isMemoryMode() = 0;
    virtual bool isFileMode() = 0;
    virtual QWidget* getMainWindow() = 0;
    virtual QWidget* parentWidget() = 0;
    virtual QObject* scriptObject() = 0;
    virtual QObject* mainScriptObject() = 0;
    virtual QObject* mdiWidget() = 0;
    virtual void attachMediator(QWebView* view, JS_Mediator* mediator) = 0;
    virtual void reportException(const std::exception& e) = 0;
    virtual void showInformation(const QString& text, QWidget* parent) = 0;
    virtual void showInformationList(const QString& text, const QStringList& details,
                                     int reserved = 0) = 0;
    virtual void showWarning(const QString& text, QWidget* parent) = 0;
    virtual void showErrorList(const QString& text, const QStringList& details,
                               int reserved = 0) = 0;
    virtual void showError(const QString& text, QWidget* parent) = 0;
    virtual bool confirm(const QString& text, QWidget* parent, const QVariantMap& options) = 0;
    virtual QStringList& fontList(QStringList& out) = 0;
    virtual QString translate(const QString& sourceText, int reserved = 0) = 0;
    virtual QString& itemLabel(QString& out, const QString& key) = 0;
    virtual void refreshQuickTools() = 0;
    virtual APP_PrefsDialog* prefsDialog() = 0;
    virtual bool isDisplayInfoShowing() = 0;
    virtual void showAbout() = 0;
    virtual void setDisplayInfoShowing(bool show) = 0;
    virtual bool isToolActive(const QString& name) = 0;
    virtual bool appliesTo(const QString& feature, DOC_Interface* doc, int reserved = 0) = 0;
    virtual bool isTracking() = 0;
    // Fills out with records the host owns.
    virtual void syncCapableTypes(QList<APP_CameraTypeRecord*>& out) = 0;
    virtual void getTimeCodeSettings(APP_TimeCodeRecord* record) = 0;
    virtual void setTimeCodeSettings(APP_TimeCodeRecord* record) = 0;
    virtual bool isReady() = 0;
    virtual bool isShuttingDown() = 0;
    virtual bool isUpdateIgnore() = 0;
    virtual void deterUpdateUI(bool deter) = 0;
    // Runs on a worker thread.
    virtual bool exportSupportFile(const QString& zipPath) = 0;
    virtual bool isCameraNameListEnabled() = 0;
    virtual QVariant getPrefVariant(const QString& key, const QVariant& defaultValue) = 0;
    virtual int getPrefInt(const QString& key, const QVariant& defaultValue) = 0;
    virtual bool getPrefBool(const QString& key, const QVariant& defaultValue) = 0;
    virtual float getPrefFloat(const QString& key, const QVariant& defaultValue) = 0;
    virtual QString& getPrefString(QString& out, const QString& key,
                                   const QVariant& defaultValue) = 0;
    virtual void setPrefVariant(const QString& key, const QVariant& value) = 0;
    virtual void setPrefInt(const QString& key, int value) = 0;
    virtual void setPrefBool(const QString& key, bool value) = 0;
    virtual void setPrefFloat(const QString& key, float value) = 0;
    virtual void setPrefString(const QString& key, const QString& value) = 0;
    virtual void setOverlayFont(const QString& font, int set) = 0;
    virtual bool isCycleView() = 0;
    virtual bool isNotCurrentAutoFocus(bool cameraMode) = 0;
    virtual bool isAutoFocussing() = 0;
    virtual bool isNotLivePage(bool withDeviceSetting) = 0;
    virtual bool isPrefDialogOpening() = 0;
    virtual bool isShading() = 0;
    virtual bool isModalDialogOpening() = 0;
    virtual void setModelessTextFocus(bool focus) = 0;
    virtual bool isModalessDialogTextFocussing() = 0;
    virtual void endModalDialog() = 0;
    virtual void beginModalDialog() = 0;
    virtual QString& versionText(QString& out) = 0;
    virtual bool hasRestoredPrefs() = 0;
    virtual void applyRestoredPrefs(bool apply = true) = 0;
    // Shows a modal busy dialog until the watched future has finished, then rethrows what the
    // future stored (APP_ConcurrentException).
    virtual void runWithBusyDialog(const QString& text, QFutureWatcher<void>* watcher) = 0;
    virtual bool isActiveOnRostra() = 0;
    virtual bool isOtherPluginOpen() = 0;
    virtual void openEthernetSettings() = 0;
};
