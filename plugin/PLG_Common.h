#pragma once

#include "plugin/PLG_Interface.h"
#include "plugin/PLG_RectangleConstraints.h"

#include <QMutex>
#include <QPointer>

#include <memory>

class QMutex;

// The frame shared by all plug-ins of the host: a tool or button with a name, a kind and a
// state, an optional modeless dialog, a page in the host's panel, a rectangle on a document.
class PLG_Common : public PLG_Interface
{
    Q_OBJECT

public:
    explicit PLG_Common(QObject* parent = nullptr);
    ~PLG_Common() override;

    void setHost(APP_Host* host) override;
    void aboutToUnload() override;
    void update() override;
    void notify(int a, int b, const QVariant& c, bool lock) override;
    void onNotify(int a, int b, const QVariant& c) override;
    void notify2(const QVariantList& arguments) override;
    void onNotify2(const QVariantList& arguments) override;
    void notify3(const QVariantList& arguments) override;
    void onNotify3(const QVariantList& arguments) override;
    QString pageSource() override;
    void execute() override;
    void leaveTool() override;
    void abortTool() override;
    void commitTool() override;
    void commitToolAgain() override;
    void rollbackTool() override;
    void stopToolPaused(bool pause) override;
    void stopTool() override;
    void resetToolPaused(bool pause) override;
    void resetTool() override;
    void deselectTool() override;
    void reserved01() override { }
    void reserved02() override { }
    JS_Mediator* mediator() override { return m_mediator.get(); }
    QString pageName() override { return m_name; }
    int buttonKind() override { return m_buttonKind; }
    int attribute1() override { return m_attribute1; }
    int attribute2() override { return m_attribute2; }
    int attribute3() override { return m_attribute3; }
    bool reserved03() override { return true; }
    void setStateForMode(bool state) override;
    void setActive(bool active) override { m_active = active; }
    bool isActive() override { return m_active; }
    bool isAvailableInMode(int mode) override;
    bool isAvailable() override;
    bool closesOnModeChange() override { return m_closesOnModeChange; }
    void setClosesOnModeChange(bool closes) override { m_closesOnModeChange = closes; }
    bool stateForMode() override;
    bool isPagedTool() override { return m_isPagedTool; }
    bool flagForMode() override;
    void prepareEmbedding() override { }
    void clearPageWidget() override { m_pageWidget = nullptr; }
    QWidget* pageWidget() override { return m_pageWidget; }
    void mousePressed(const QPoint& pos, int docKey) override;
    void reserved04() override { }
    void mouseMoved(const QPoint& pos, int docKey) override;
    void mouseLeft(int docKey) override;
    void mouseReleased(const QPoint& pos, int docKey) override;
    void reserved05() override { }
    void reserved06() override { }
    void resetMouseCursor() override;
    bool isMouseDown() override { return m_mouseDown; }
    QPoint mouseDownPos() override { return m_mouseDownPos; }
    QSize documentExtent(int docKey) override;
    int lastDocumentKey() override { return m_lastDocumentKey; }
    int pluginType() override { return m_pluginType; }
    int editKind() override { return m_editKind; }
    bool isEnabled() override { return true; }
    int selectsTool() override { return m_selectsTool; }
    int attribute5() override { return m_attribute5; }
    int attribute6() override { return m_attribute6; }
    quint8 attribute7() override { return m_attribute7; }
    bool reserved07() override { return false; }
    void lock() override;
    void unlock() override;
    bool isActiveFor(DOC_Interface* doc, int flag) override;
    GUI_ModelessPatternDialog* dialog(bool create) override;
    void showDialog() override;
    void hideDialog() override;
    void closeDialog() override;
    void modeChanged(int mode) override;
    int attribute4() override { return m_attribute4; }
    void reserved08() override { }
    bool flag0() override { return m_flag0; }
    void showTab(int) override { }
    void registerVariable(const QString&) override { }
    void keyPressed(QKeyEvent* event) override;
    void keyReleased() override { m_keyHeld = false; }
    QString acceptPrompt() override { return QStringLiteral("Do you want to accept?"); }
    bool flag2() override { return m_flag2; }
    void reserved09() override { }
    bool reserved10() override { return false; }
    bool reserved11() override { return false; }
    bool reserved12() override { return false; }
    bool reserved13() override { return false; }
    bool reserved14() override { return false; }
    int deselectOthers() override { return m_deselectOthers; }
    bool reserved15() override { return false; }
    bool flag3() override { return m_flag3; }
    void reserved16() override { }
    int reserved17() override { return 0; }
    bool reserved18() override { return true; }
    void reserved19() override { }
    void reserved20() override { }
    bool flag4() override { return m_flag4; }
    void setFlag4(bool flag) override { m_flag4 = flag; }
    void reserved21() override { }
    void reserved22() override { }
    int reserved23() override { return 0; }
    bool hasRectangle(DOC_Interface*) override { return false; }
    bool hasRectangleFor(DOC_Interface* doc) override { return hasRectangle(doc); }
    QRect rectangle(DOC_Interface*) override { return QRect(0, 0, -1, -1); }
    void setRectangle(DOC_Interface*, const QRect&, bool) override { }
    QVariantMap rectangleParameters(DOC_Interface* doc, const QSize& imageSize, const QRect& rect,
        bool fixAspect, bool originalAspect) override;
    void setDefaultRectangle(const QRect& rect) override { m_defaultRect = rect; }
    QRect defaultRectangle() override { return m_defaultRect; }
    void resetDefaultRectangle() override { m_defaultRect = QRect(0, 0, -1, -1); }
    void setFixAspect(bool fix) override { m_fixAspect = fix; }
    void setOriginalAspect(bool original) override { m_originalAspect = original; }
    void setApplyOnChange(bool apply) override { m_applyOnChange = apply; }
    bool applyOnChange() override { return m_applyOnChange; }
    void setApplyToLocked(bool apply) override { m_applyToLocked = apply; }
    bool applyToLocked() override { return m_applyToLocked; }
    bool returnToPrevious() override { return m_returnToPrevious; }
    void setReturnToPrevious(bool back) override { m_returnToPrevious = back; }
    bool isMouseEventFor(const QPoint& pos, int docKey) override;
    void updateCursor(DOC_Interface* doc, int zone) override;
    bool isDialogVisible() override;
    bool isKeyHeld() override { return m_keyHeld; }
    GUI_ModelessPatternDialog* createDialog(bool) override { return nullptr; }

signals:
    void signalRecord();
    void signalSaveFile();
    void signalSaveLayout();
    void signalEndRecording();
    void signalDisconnect();

public slots:
    void slotModelessPatternDialogShown() override { }
    void slotModelessPatternDialogClosed() override;

protected:
    bool isEditingType() const { return m_pluginType == 2 || m_pluginType == 3; }
    bool isMultiLockTool() const;
    // The page change of leaveTool: previous or default page of the host's panel.
    void leavePage();

    // The rectangle tool works on this document: it has a rectangle, and the host's cross
    // cursor, which takes the mouse for itself, is off.
    bool rectangleToolApplies(DOC_Interface* doc);
    // The rectangle's grid, limits, aspect and centre locks, before the view scales them.
    PLG_RectangleConstraints rectangleSettings() const;
    // Takes a rectangle of positive size and tells the host, as applyOnChange asks.
    void changeRectangle(DOC_Interface* doc, const QRect& rect);
    // The views that show the rectangle repaint: all locked documents in multi-lock.
    void sendChangeNotice(DOC_Interface* doc);

    APP_Host* m_host = nullptr;
    // Owned here; the pointer also sees a parent window deleting it first.
    QPointer<GUI_ModelessPatternDialog> m_dialog;
    bool m_keyHeld = false;
    QPoint m_lastMousePos;
    int m_buttonKind = 0;
    int m_attribute1 = 0;
    QString m_name;
    bool m_active = false;
    int m_modeMask = 7;
    bool m_stateForMode[2] = { false, false };
    int m_attribute3 = 0;
    int m_attribute2 = 0;
    bool m_isPagedTool = false;
    bool m_flagForMode[2] = { false, false };
    std::unique_ptr<JS_Mediator> m_mediator;
    QWidget* m_pageWidget = nullptr;
    int m_pluginType = 0;
    int m_editKind = 0;
    int m_attribute4 = 3;
    bool m_mouseDown = false;
    QPoint m_mouseDownPos;
    QRect m_mouseDownRect = QRect(0, 0, -1, -1);
    int m_dragZone = 9;
    bool m_fixAspect = false;
    bool m_originalAspect = false;
    int m_lastDocumentKey = -1;
    int m_selectsTool = 0;
    int m_deselectOthers = 0;
    int m_attribute5 = 0;
    int m_attribute6 = 2;
    quint8 m_attribute7 = 0;
    std::unique_ptr<QMutex> m_mutex;
    bool m_flag0 = false;
    bool m_toolEditOpen = false;
    bool m_flag2 = false;
    bool m_flag3 = false;
    bool m_flag4 = false;
    QRect m_defaultRect = QRect(0, 0, -1, -1);
    bool m_applyOnChange = true;
    bool m_applyToLocked = true;
    bool m_centerX = false;
    bool m_centerY = false;
    QPoint m_positionStep = QPoint(1, 1);
    QSize m_sizeStep = QSize(1, 1);
    QSize m_maxSize = QSize(-1, -1);
    QSize m_minSize = QSize(1, 1);
    bool m_returnToPrevious = false;
    bool m_closesOnModeChange = true;
};
