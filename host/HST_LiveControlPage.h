#pragma once

#include "plugin/PLG_Interface.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVariantMap>

class HST_Recorder;

// The host's live control page as the plug-in sees it through currentPage(): a page named
// "livecontrol" whose variable tab and stored variables the select box reaches. The simulation
// records what it is asked; everything else of a plug-in answers neutrally.
class HST_LiveControlPage : public PLG_Interface
{

public:
    explicit HST_LiveControlPage(HST_Recorder* recorder, QObject* parent = nullptr);

    int shownTab() const { return m_tab; }
    QStringList variables() const { return m_variables; }

    QString pageName() override { return m_name; }
    void showTab(int tab) override;
    void registerVariable(const QString& value) override;

    void setHost(APP_Host*) override { }
    void aboutToUnload() override { }
    void update() override { }
    void notify(int, int, const QVariant&, bool) override { }
    void onNotify(int, int, const QVariant&) override { }
    void notify2(const QVariantList&) override { }
    void onNotify2(const QVariantList&) override { }
    void notify3(const QVariantList&) override { }
    void onNotify3(const QVariantList&) override { }
    QString pageSource() override { return QString(); }
    void execute() override { }
    void leaveTool() override { }
    void abortTool() override { }
    void commitTool() override { }
    void commitToolAgain() override { }
    void rollbackTool() override { }
    void stopToolPaused(bool) override { }
    void stopTool() override { }
    void resetToolPaused(bool) override { }
    void resetTool() override { }
    void deselectTool() override { }
    void reserved01() override { }
    void reserved02() override { }
    JS_Mediator* mediator() override { return nullptr; }
    int buttonKind() override { return 0; }
    int attribute1() override { return 0; }
    int attribute2() override { return 0; }
    int attribute3() override { return 0; }
    bool reserved03() override { return false; }
    void setStateForMode(bool) override { }
    void setActive(bool) override { }
    bool isActive() override { return false; }
    bool isAvailableInMode(int) override { return false; }
    bool isAvailable() override { return false; }
    bool closesOnModeChange() override { return false; }
    void setClosesOnModeChange(bool) override { }
    bool stateForMode() override { return false; }
    bool isPagedTool() override { return false; }
    bool flagForMode() override { return false; }
    void prepareEmbedding() override { }
    void clearPageWidget() override { }
    QWidget* pageWidget() override { return nullptr; }
    void mousePressed(const QPoint&, int) override { }
    void reserved04() override { }
    void mouseMoved(const QPoint&, int) override { }
    void mouseLeft(int) override { }
    void mouseReleased(const QPoint&, int) override { }
    void reserved05() override { }
    void reserved06() override { }
    void resetMouseCursor() override { }
    bool isMouseDown() override { return false; }
    QPoint mouseDownPos() override { return QPoint(); }
    QSize documentExtent(int) override { return QSize(); }
    int lastDocumentKey() override { return 0; }
    int pluginType() override { return 0; }
    int editKind() override { return 0; }
    bool isEnabled() override { return false; }
    int selectsTool() override { return 0; }
    int attribute5() override { return 0; }
    int attribute6() override { return 0; }
    quint8 attribute7() override { return 0; }
    bool reserved07() override { return false; }
    void lock() override { }
    void unlock() override { }
    bool isActiveFor(DOC_Interface*, int) override { return false; }
    GUI_ModelessPatternDialog* dialog(bool) override { return nullptr; }
    void showDialog() override { }
    void hideDialog() override { }
    void closeDialog() override { }
    void modeChanged(int) override { }
    int attribute4() override { return 0; }
    void reserved08() override { }
    bool flag0() override { return false; }
    void keyPressed(QKeyEvent*) override { }
    void keyReleased() override { }
    QString acceptPrompt() override { return QString(); }
    bool flag2() override { return false; }
    void reserved09() override { }
    bool reserved10() override { return false; }
    bool reserved11() override { return false; }
    bool reserved12() override { return false; }
    bool reserved13() override { return false; }
    bool reserved14() override { return false; }
    int deselectOthers() override { return 0; }
    bool reserved15() override { return false; }
    bool flag3() override { return false; }
    void reserved16() override { }
    int reserved17() override { return 0; }
    bool reserved18() override { return false; }
    void reserved19() override { }
    void reserved20() override { }
    bool flag4() override { return false; }
    void setFlag4(bool) override { }
    void reserved21() override { }
    void reserved22() override { }
    int reserved23() override { return 0; }
    bool hasRectangle(DOC_Interface*) override { return false; }
    bool hasRectangleFor(DOC_Interface*) override { return false; }
    QRect rectangle(DOC_Interface*) override { return QRect(); }
    void setRectangle(DOC_Interface*, const QRect&, bool) override { }
    QVariantMap rectangleParameters(DOC_Interface*, const QSize&, const QRect&, bool, bool) override
    {
        return QVariantMap();
    }
    void setDefaultRectangle(const QRect&) override { }
    QRect defaultRectangle() override { return QRect(); }
    void resetDefaultRectangle() override { }
    void setFixAspect(bool) override { }
    void setOriginalAspect(bool) override { }
    void setApplyOnChange(bool) override { }
    bool applyOnChange() override { return false; }
    void setApplyToLocked(bool) override { }
    bool applyToLocked() override { return false; }
    bool returnToPrevious() override { return false; }
    void setReturnToPrevious(bool) override { }
    bool isMouseEventFor(const QPoint&, int) override { return false; }
    void updateCursor(DOC_Interface*, int) override { }
    bool isDialogVisible() override { return false; }
    bool isKeyHeld() override { return false; }
    void slotModelessPatternDialogShown() override { }
    void slotModelessPatternDialogClosed() override { }
    GUI_ModelessPatternDialog* createDialog(bool) override { return nullptr; }

private:
    HST_Recorder* m_recorder;
    QString m_name;
    int m_tab = 0;
    QStringList m_variables;
};
