#include "dialogs/JS_Mediator_SelectBox.h"

#include "plugin/APP_Host.h"
#include "plugin/APP_PauseGuard.h"
#include "plugin/DOC_Interface.h"
#include "plugin/PLG_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "web/OperationEventHandler.h"

namespace {

QString valueParameter(const QString& value)
{
    return FunctionLogGuard::parameter(QStringLiteral("value"), value);
}

} // namespace

JS_Mediator_SelectBox::JS_Mediator_SelectBox(APP_Host* host, const QString& name)
    : JS_Mediator(host, name)
{
}

PLG_Interface* JS_Mediator_SelectBox::liveControlPage()
{
    PLG_Interface* page = m_host->currentPage();
    if (page && page->pageName() == PAGE_OBJECT_LIVECONTROL && m_host->isCameraMode())
        return page;
    return nullptr;
}

void JS_Mediator_SelectBox::slotNotifyPartition(const QString& value)
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_SelectBox::slotNotifyPartition"), valueParameter(value));
    UTL_Barrier::reported(m_host, [&] {
        const int number = value.toInt();
        emit close();
        DOC_Interface* current = m_host->currentDocument();
        if (!current)
            return;
        if (current->partitionCount(0, 0) >= number) {
            m_host->selectPartition(number, true);
            for (int key : m_host->documentKeys(0)) {
                if (DOC_Interface* document = m_host->document(key))
                    document->setPartitionDirty(0);
            }
        } else if (m_host->isCameraMode()) {
            openPrefsDialog(PREFS_PAGE_RECORD);
        }
    });
}

void JS_Mediator_SelectBox::slotNotifyVariable(const QString& value)
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_SelectBox::slotNotifyVariable"), valueParameter(value));
    UTL_Barrier::reported(m_host, [&] {
        emit close();
        if (value == SELECT_BOX_GO_VARIABLE) {
            if (PLG_Interface* page = liveControlPage())
                page->showTab(2);
            return;
        }
        const APP_PauseGuard pause(m_host, false, true);
        m_host->selectVariable(int(value.toUInt()));
    });
}

int JS_Mediator_SelectBox::getCurrentPartition()
{
    return UTL_Barrier::reported(m_host, 0, [this] {
        DOC_Interface* current = m_host->currentDocument();
        return current ? current->currentPartition(true) : 0;
    });
}

void JS_Mediator_SelectBox::slotNotifyVariableRegist(const QString& value)
{
    OperationEventHandler guard(this,
        QStringLiteral("JS_Mediator_SelectBox::slotNotifyVariableRegist"), valueParameter(value));
    UTL_Barrier::reported(m_host, [&] {
        emit close();
        if (PLG_Interface* page = liveControlPage())
            page->registerVariable(value);
    });
}
