#include "dialogs/GUI_RectimeFormatDialog.h"

#include "dialogs/JS_Mediator_RectimeFormatDialog.h"

GUI_RectimeFormatDialog::GUI_RectimeFormatDialog(APP_Host* host, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("Recording time disp"),
        QStringLiteral("qrc:/rectime_format_dialog.html"),
        new JS_Mediator_RectimeFormatDialog(host), parent)
{
    setWindowFlags(windowFlags() & ~Qt::WindowCloseButtonHint);
    setFixedSize(330, 110);
}
