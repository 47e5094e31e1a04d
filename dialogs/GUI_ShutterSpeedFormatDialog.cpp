#include "dialogs/GUI_ShutterSpeedFormatDialog.h"

#include "dialogs/JS_Mediator_ShutterSpeedFormatDialog.h"

GUI_ShutterSpeedFormatDialog::GUI_ShutterSpeedFormatDialog(APP_Host* host, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("Shutter speed disp"),
        QStringLiteral("qrc:/shutterspeed_format_dialog.html"),
        new JS_Mediator_ShutterSpeedFormatDialog(host), parent)
{
    setWindowFlags(windowFlags() & ~Qt::WindowCloseButtonHint);
    setFixedSize(300, 150);
}
