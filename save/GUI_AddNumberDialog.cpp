#include "save/GUI_AddNumberDialog.h"

#include "save/JS_Mediator_AddNumberDialog.h"

GUI_AddNumberDialog::GUI_AddNumberDialog(
    APP_Host* host, QWidget* parent, int callbackType, int deviceCount, int headCount)
    : GUI_WebViewDialog(host, QStringLiteral("Adding a number"),
        QStringLiteral("qrc:/addnumberdialog.html"),
        new JS_Mediator_AddNumberDialog(host, callbackType, deviceCount, headCount), parent)
{
    setFixedSize(540, 270);
}

int GUI_AddNumberDialog::run(
    APP_Host* host, QWidget* parent, int callbackType, int deviceCount, int headCount)
{
    GUI_AddNumberDialog dialog(host, parent, callbackType, deviceCount, headCount);
    return dialog.exec();
}
