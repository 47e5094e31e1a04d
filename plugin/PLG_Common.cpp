#include "plugin/PLG_Common.h"

#include "plugin/APP_Host.h"
#include "plugin/APP_PauseGuard.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/UTL_Barrier.h"
#include "web/GUI_ModelessPatternDialog.h"
#include "web/JS_Mediator.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QMutex>
#include <QTextStream>
#include <QWidget>

#include <memory>

PLG_Common::PLG_Common(QObject* parent)
    : PLG_Interface(parent)
    , m_mutex(std::make_unique<QMutex>(QMutex::Recursive))
{
}

PLG_Common::~PLG_Common()
{
    delete m_dialog.data();
}

void PLG_Common::setHost(APP_Host* host)
{
    m_host = host;
}

void PLG_Common::aboutToUnload()
{
    UTL_Barrier::reported(m_host, [&] {
        if (pluginType() == 6)
            closeDialog();
    });
}

void PLG_Common::update()
{
    if (QWidget* widget = pageWidget()) {
        if (widget->window() == QApplication::activeWindow())
            widget->update();
    }
    if (JS_Mediator* pageMediator = mediator())
        emit pageMediator->update();
}

void PLG_Common::notify(int a, int b, const QVariant& c, bool lock)
{
    UTL_Barrier::reported(m_host, [&] {
        if (!lock) {
            onNotify(a, b, c);
            return;
        }
        this->lock();
        const std::unique_ptr<PLG_Common, void (*)(PLG_Common*)> unlocker(
            this, [](PLG_Common* plugin) { plugin->unlock(); });
        onNotify(a, b, c);
    });
}

void PLG_Common::onNotify(int, int, const QVariant&) { }

void PLG_Common::notify2(const QVariantList& arguments)
{
    UTL_Barrier::reported(m_host, [&] { onNotify2(arguments); });
}

void PLG_Common::onNotify2(const QVariantList&) { }

void PLG_Common::notify3(const QVariantList& arguments)
{
    UTL_Barrier::reported(m_host, [&] { onNotify3(arguments); });
}

void PLG_Common::onNotify3(const QVariantList&) { }

QString PLG_Common::pageSource()
{
    QString source;
    const QString path = QStringLiteral(":/") + pageName() + QStringLiteral(".html");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        QMessageLogger().warning() << "Not Found" << path;
        return source;
    }
    source = QTextStream(&file).readAll();
    return source;
}

bool PLG_Common::isMultiLockTool() const
{
    return m_name == TOOL_MULTILOCK;
}

void PLG_Common::execute()
{
    UTL_Barrier::reported(m_host, [&] {
        const QString name = pageName();
        if (!isMultiLockTool()) {
            if (selectsTool() != 0) {
                m_host->selectTool(name, true);
            } else if (isPagedTool()) {
                if (deselectOthers() != 1) {
                    m_host->selectTool(name, false);
                } else {
                    m_host->deselectTool(QString());
                    m_host->selectTool(name, true);
                }
            }
        }
        if (isPagedTool()) {
            if (isEditingType()) {
                if (editKind() == 0)
                    m_host->beginToolEdit(name, true, true);
                else if (editKind() == 1)
                    m_host->beginToolEdit(name, false, true);
                m_toolEditOpen = true;
            }
        } else if (!isMultiLockTool() && selectsTool() == 1) {
            m_host->setToolOption(name, true);
        }
    });
}

void PLG_Common::leavePage()
{
    if (returnToPrevious())
        m_host->showPreviousPage();
    else
        m_host->showDefaultPage();
}

void PLG_Common::leaveTool()
{
    UTL_Barrier::reported(m_host, [&] {
        clearPageWidget();
        if (isPagedTool()) {
            setActive(false);
            leavePage();
        } else if (!isMultiLockTool() && selectsTool() == 1) {
            m_host->setToolOption(pageName(), false);
        }
        setFixAspect(false);
        setOriginalAspect(false);
    });
}

void PLG_Common::abortTool()
{
    UTL_Barrier::reported(m_host, [&] {
        if (!isPagedTool())
            return;
        clearPageWidget();
        m_host->undo();
        if (isEditingType() && m_toolEditOpen) {
            m_host->abortToolEdit(pageName());
            m_toolEditOpen = false;
        }
    });
}

void PLG_Common::commitTool()
{
    UTL_Barrier::reported(m_host, [&] {
        if (!isPagedTool())
            return;
        if (isEditingType()) {
            m_host->commitToolEdit(true, pageName());
            m_toolEditOpen = false;
        }
        setActive(false);
        leavePage();
    });
}

void PLG_Common::commitToolAgain()
{
    commitTool();
}

void PLG_Common::rollbackTool()
{
    UTL_Barrier::reported(m_host, [&] {
        if (!isPagedTool())
            return;
        if (isEditingType()) {
            m_host->abortToolEdit(pageName());
            m_toolEditOpen = false;
        }
        setActive(false);
        leavePage();
    });
}

void PLG_Common::stopToolPaused(bool pause)
{
    UTL_Barrier::reported(m_host, [&] {
        if (!pause) {
            stopTool();
            return;
        }
        const APP_PauseGuard guard(m_host, true, true);
        stopTool();
    });
}

void PLG_Common::stopTool()
{
    UTL_Barrier::reported(m_host, [&] {
        if (!isPagedTool())
            return;
        setActive(false);
        m_host->undo();
    });
}

void PLG_Common::resetToolPaused(bool pause)
{
    UTL_Barrier::reported(m_host, [&] {
        if (!pause) {
            resetTool();
            return;
        }
        const APP_PauseGuard guard(m_host, true, true);
        resetTool();
    });
}

void PLG_Common::resetTool()
{
    UTL_Barrier::reported(m_host, [&] {
        if (isPagedTool())
            m_host->resetTool(pageName());
    });
}

void PLG_Common::deselectTool()
{
    UTL_Barrier::reported(m_host, [&] {
        if (deselectOthers() == 1)
            m_host->deselectTool(pageName());
    });
}

void PLG_Common::setStateForMode(bool state)
{
    UTL_Barrier::logged("PLG_Common::setStateForMode",
        [&] { m_stateForMode[m_host && m_host->isFileMode() ? 1 : 0] = state; });
}

bool PLG_Common::stateForMode()
{
    return UTL_Barrier::logged("PLG_Common::stateForMode", false,
        [&]() -> bool { return m_stateForMode[m_host && m_host->isFileMode() ? 1 : 0]; });
}

bool PLG_Common::flagForMode()
{
    return UTL_Barrier::logged("PLG_Common::flagForMode", false,
        [&]() -> bool { return m_flagForMode[m_host && m_host->isFileMode() ? 1 : 0]; });
}

bool PLG_Common::isAvailableInMode(int mode)
{
    if (mode < 0 || mode > 2)
        return false;
    return (m_modeMask >> mode) & 1;
}

bool PLG_Common::isAvailable()
{
    return UTL_Barrier::logged("PLG_Common::isAvailable", false,
        [&]() -> bool { return m_host && isAvailableInMode(m_host->saveTargetKind()); });
}

void PLG_Common::resetMouseCursor()
{
    m_lastDocumentKey = -1;
    QGuiApplication::restoreOverrideCursor();
}

QSize PLG_Common::documentExtent(int docKey)
{
    return UTL_Barrier::logged("PLG_Common::documentExtent", QSize(0, 0), [&]() -> QSize {
        QSize extent(0, 0);
        if (DOC_Interface* doc = m_host ? m_host->document(docKey, true) : nullptr)
            static_cast<DOC_ImageData*>(doc)->extent(extent);
        return extent;
    });
}

void PLG_Common::lock()
{
    m_mutex->lock();
}

void PLG_Common::unlock()
{
    m_mutex->unlock();
}

bool PLG_Common::isActiveFor(DOC_Interface* doc, int)
{
    return UTL_Barrier::logged("PLG_Common::isActiveFor", false, [&]() -> bool {
        if (!doc || !isAvailable())
            return false;
        switch (pluginType()) {
        case 1:
        case 5:
            return true;
        case 2:
        case 3:
            return doc->isToolSet(pageName());
        case 4: {
            PLG_Interface* page = m_host->currentPage();
            return page && page->pageName() == pageName();
        }
        case 6:
            return isDialogVisible();
        default:
            if (isMultiLockTool())
                return m_host->isMultiLock();
            if (m_name == TOOL_ZOOMFIT)
                return m_host->zoomValue(0) <= 0;
            return doc->isToolSet(pageName());
        }
    });
}

GUI_ModelessPatternDialog* PLG_Common::dialog(bool create)
{
    if (!m_dialog && create) {
        m_dialog = createDialog(create);
        if (m_dialog) {
            connect(m_dialog, &GUI_ModelessPatternDialog::shown, this,
                &PLG_Common::slotModelessPatternDialogShown);
            connect(m_dialog, &GUI_ModelessPatternDialog::closed, this,
                &PLG_Common::slotModelessPatternDialogClosed);
        }
    }
    return m_dialog;
}

void PLG_Common::showDialog()
{
    UTL_Barrier::reported(m_host, [&] {
        if (!m_dialog || !(m_dialog->isHidden() || m_dialog->isMinimized()))
            return;
        if (m_dialog->isMinimized())
            m_dialog->setWindowState(m_dialog->windowState() & ~Qt::WindowMinimized);
        if (JS_Mediator* pageMediator = mediator())
            emit pageMediator->open();
        m_dialog->show();
        if (deselectOthers() == 1) {
            m_host->deselectTool(QString());
            m_host->selectTool(pageName(), true);
        }
    });
}

void PLG_Common::hideDialog()
{
    if (m_dialog && m_dialog->isVisible())
        m_dialog->hide();
}

void PLG_Common::closeDialog()
{
    if (m_dialog && !m_dialog->isHidden())
        m_dialog->close();
}

void PLG_Common::modeChanged(int mode)
{
    UTL_Barrier::reported(m_host, [&] {
        if (!m_dialog || !m_dialog->isVisible())
            return;
        m_dialog->modeChanged(mode);
        if (!isAvailableInMode(mode) && closesOnModeChange())
            closeDialog();
    });
}

bool PLG_Common::isDialogVisible()
{
    return m_dialog && m_dialog->isVisible();
}

void PLG_Common::slotModelessPatternDialogClosed()
{
    UTL_Barrier::reported(m_host, [&] {
        if (m_dialog && !m_dialog->canClose())
            return;
        m_host->deterUpdateUI(true);
        if (m_dialog)
            m_dialog->hide();
        m_host->pageClosed(pageName());
        m_host->deterUpdateUI(false);
        m_host->updateUI(~0u, true);
    });
}
