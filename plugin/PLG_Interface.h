#pragma once

#include "plugin/SyncGlobal.h"

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVariant>
#include <QVariantMap>

class APP_Host;
class DOC_Interface;
class GUI_ModelessPatternDialog;
class JS_Mediator;
class QKeyEvent;
class QWidget;

// Root of every plug-in the host loads. The host calls a plug-in only through these virtual
// operations, in exactly this order; the reservedNN operations hold the places of operations
// that have no name on this side, so that the order stays the host's.
class SYNC_SHARED PLG_Interface : public QObject
{
public:
    explicit PLG_Interface(QObject* parent = nullptr) : QObject(parent) {}
    ~PLG_Interface() override = default;

    virtual void setHost(APP_Host* host) = 0;
    virtual void aboutToUnload() = 0;
    virtual void update() = 0;
    virtual void notify(int a, int b, const QVariant& c, bool lock) = 0;
    virtual void onNotify(int a, int b, const QVariant& c) = 0;
    virtual void notify2(const QVariantList& arguments) = 0;
    virtual void onNotify2(const QVariantList& arguments) = 0;
    virtual void notify3(const QVariantList& arguments) = 0;
    virtual void onNotify3(const QVariantList& arguments) = 0;
    virtual QString pageSource() = 0;
    virtual void execute() = 0;
    virtual void leaveTool() = 0;
    virtual void abortTool() = 0;
    virtual void commitTool() = 0;
    virtual void commitToolAgain() = 0;
    virtual void rollbackTool() = 0;
    virtual void stopToolPaused(bool pause) = 0;
    virtual void stopTool() = 0;
    virtual void resetToolPaused(bool pause) = 0;
    virtual void resetTool() = 0;
    virtual void deselectTool() = 0;
    virtual void reserved01() = 0;
    virtual void reserved02() = 0;
    virtual JS_Mediator* mediator() = 0;
    virtual QString pageName() = 0;
    virtual int buttonKind() = 0;
    virtual int attribute1() = 0;
    virtual int attribute2() = 0;
    virtual int attribute3() = 0;
    virtual bool reserved03() = 0;
    virtual void setStateForMode(bool state) = 0;
    virtual void setActive(bool active) = 0;
    virtual bool isActive() = 0;
    virtual bool isAvailableInMode(int mode) = 0;
    virtual bool isAvailable() = 0;
    virtual bool closesOnModeChange() = 0;
    virtual void setClosesOnModeChange(bool closes) = 0;
    virtual bool stateForMode() = 0;
    virtual bool isPagedTool() = 0;
    virtual bool flagForMode() = 0;
    virtual void prepareEmbedding() = 0;
    virtual void clearPageWidget() = 0;
    virtual QWidget* pageWidget() = 0;
    virtual void mousePressed(const QPoint& pos, int docKey) = 0;
    virtual void reserved04() = 0;
    virtual void mouseMoved(const QPoint& pos, int docKey) = 0;
    virtual void mouseLeft(int docKey) = 0;
    virtual void mouseReleased(const QPoint& pos, int docKey) = 0;
    virtual void reserved05() = 0;
    virtual void reserved06() = 0;
    virtual void resetMouseCursor() = 0;
    virtual bool isMouseDown() = 0;
    virtual QPoint mouseDownPos() = 0;
    virtual QSize documentExtent(int docKey) = 0;
    virtual int lastDocumentKey() = 0;
    virtual int pluginType() = 0;
    virtual int editKind() = 0;
    virtual bool isEnabled() = 0;
    virtual int selectsTool() = 0;
    virtual int attribute5() = 0;
    virtual int attribute6() = 0;
    virtual quint8 attribute7() = 0;
    virtual bool reserved07() = 0;
    virtual void lock() = 0;
    virtual void unlock() = 0;
    virtual bool isActiveFor(DOC_Interface* doc, int flag) = 0;
    virtual GUI_ModelessPatternDialog* dialog(bool create) = 0;
    virtual void showDialog() = 0;
    virtual void hideDialog() = 0;
    virtual void closeDialog() = 0;
    virtual void modeChanged(int mode) = 0;
    virtual int attribute4() = 0;
    virtual void reserved08() = 0;
    virtual bool flag0() = 0;
    virtual void showTab(int tab) = 0;
    virtual void registerVariable(const QString& value) = 0;
    virtual void keyPressed(QKeyEvent* event) = 0;
    virtual void keyReleased() = 0;
    virtual QString acceptPrompt() = 0;
    virtual bool flag2() = 0;
    virtual void reserved09() = 0;
    virtual bool reserved10() = 0;
    virtual bool reserved11() = 0;
    virtual bool reserved12() = 0;
    virtual bool reserved13() = 0;
    virtual bool reserved14() = 0;
    virtual int deselectOthers() = 0;
    virtual bool reserved15() = 0;
    virtual bool flag3() = 0;
    virtual void reserved16() = 0;
    virtual int reserved17() = 0;
    virtual bool reserved18() = 0;
    virtual void reserved19() = 0;
    virtual void reserved20() = 0;
    virtual bool flag4() = 0;
    virtual void setFlag4(bool flag) = 0;
    virtual void reserved21() = 0;
    virtual void reserved22() = 0;
    virtual int reserved23() = 0;
    virtual bool hasRectangle(DOC_Interface* doc) = 0;
    virtual bool hasRectangleFor(DOC_Interface* doc) = 0;
    virtual QRect rectangle(DOC_Interface* doc) = 0;
    virtual void setRectangle(DOC_Interface* doc, const QRect& rect, bool apply) = 0;
    virtual QVariantMap rectangleParameters(DOC_Interface* doc, const QSize& imageSize,
                                            const QRect& rect, bool fixAspect,
                                            bool originalAspect) = 0;
    virtual void setDefaultRectangle(const QRect& rect) = 0;
    virtual QRect defaultRectangle() = 0;
    virtual void resetDefaultRectangle() = 0;
    virtual void setFixAspect(bool fix) = 0;
    virtual void setOriginalAspect(bool original) = 0;
    virtual void setApplyOnChange(bool apply) = 0;
    virtual bool applyOnChange() = 0;
    virtual void setApplyToLocked(bool apply) = 0;
    virtual bool applyToLocked() = 0;
    virtual bool returnToPrevious() = 0;
    virtual void setReturnToPrevious(bool back) = 0;
    virtual bool isMouseEventFor(const QPoint& pos, int docKey) = 0;
    virtual void updateCursor(DOC_Interface* doc, int zone) = 0;
    virtual bool isDialogVisible() = 0;
    virtual bool isKeyHeld() = 0;
    virtual void slotModelessPatternDialogShown() = 0;
    virtual void slotModelessPatternDialogClosed() = 0;
    virtual GUI_ModelessPatternDialog* createDialog(bool create) = 0;
};

// Type of the one entry that a plug-in file exports under the name "makeButtonPlugin".
using PLG_MakeButtonPlugin = PLG_Interface* (*)();
