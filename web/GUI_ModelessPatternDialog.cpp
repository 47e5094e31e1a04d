#include "web/GUI_ModelessPatternDialog.h"

#include "web/JS_Mediator_ModelessPatternDialog.h"

GUI_ModelessPatternDialog::GUI_ModelessPatternDialog(APP_Host* host, const QString& title,
    const QString& url, JS_Mediator_ModelessPatternDialog* mediator, QWidget* parent)
    : GUI_WebViewDialog(host, title, url, mediator, parent)
{
}

void GUI_ModelessPatternDialog::showEvent(QShowEvent* event)
{
    GUI_WebViewDialog::showEvent(event);
    emit shown();
}

void GUI_ModelessPatternDialog::closeEvent(QCloseEvent* event)
{
    GUI_WebViewDialog::closeEvent(event);
    emit closed();
}
