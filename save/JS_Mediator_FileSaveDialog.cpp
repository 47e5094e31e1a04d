#include "save/JS_Mediator_FileSaveDialog.h"

#include "plugin/DOC_Interface.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"

JS_Mediator_FileSaveDialog::JS_Mediator_FileSaveDialog(APP_Host* host, const QString& name)
    : JS_Mediator_FileDialog(host, name)
{
}

void JS_Mediator_FileSaveDialog::exportDocCount(int count)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileSaveDialog::exportDocCount"),
        FunctionLogGuard::parameter(QStringLiteral("count"), count));
    m_exportCount = count;
}

int JS_Mediator_FileSaveDialog::getHeadNo(int dockey)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_FileSaveDialog::getHeadNo"),
        FunctionLogGuard::parameter(QStringLiteral("docKey"), dockey));
    return UTL_Barrier::reported(m_host, 0, [&] { return requireDocument(dockey)->headNumber(); });
}
