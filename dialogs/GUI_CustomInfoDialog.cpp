#include "dialogs/GUI_CustomInfoDialog.h"

#include "dialogs/JS_Mediator_CustomInfoDialog.h"
#include "plugin/APP_Host.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"

namespace {

QWidget* parentOrMainWindow(APP_Host* host, QWidget* parent)
{
    if (parent)
        return parent;
    return UTL_Barrier::reported(
        host, static_cast<QWidget*>(nullptr), [host] { return host->getMainWindow(); });
}

} // namespace

GUI_CustomInfoDialog::GUI_CustomInfoDialog(APP_Host* host, QWidget* parent, bool forTemporary)
    : GUI_WebViewDialog(host, QStringLiteral("Custom info"), QStringLiteral("qrc:/custominfo.html"),
        new JS_Mediator_CustomInfoDialog(host, nullptr, forTemporary),
        parentOrMainWindow(host, parent))
{
    customInfoMediator()->setParentWidget(this);
    setFixedSize(510, 530);
}

void GUI_CustomInfoDialog::setCallbackType(int type)
{
    customInfoMediator()->setCallbackType(type);
}

JS_Mediator_CustomInfoDialog* GUI_CustomInfoDialog::customInfoMediator() const
{
    return static_cast<JS_Mediator_CustomInfoDialog*>(mediator());
}

void GUI_CustomInfoDialog::closeEvent(QCloseEvent* event)
{
    SYNC_TRACE(QStringLiteral("GUI_CustomInfoDialog::closeEvent"), QString());
    customInfoMediator()->cancel();
    GUI_WebViewDialog::closeEvent(event);
}
