#include "dialogs/GUI_FrameFormatDialog.h"

#include "dialogs/JS_Mediator_FrameFormatDialog.h"

GUI_FrameFormatDialog::GUI_FrameFormatDialog(APP_Host* host, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("frame disp"),
        QStringLiteral("qrc:/frame_format_dialog.html"), new JS_Mediator_FrameFormatDialog(host),
        parent)
{
    setWindowFlags(windowFlags() & ~Qt::WindowCloseButtonHint);
    setFixedSize(300, 100);
}
