#include "dialogs/GUI_RecordRateFormatDialog.h"

#include "dialogs/JS_Mediator_RecordRateFormatDialog.h"

GUI_RecordRateFormatDialog::GUI_RecordRateFormatDialog(APP_Host* host, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("recordrate disp"),
        QStringLiteral("qrc:/recordrate_format_dialog.html"),
        new JS_Mediator_RecordRateFormatDialog(host), parent)
{
    setWindowFlags(windowFlags() & ~Qt::WindowCloseButtonHint);
    setFixedSize(300, 100);
}
