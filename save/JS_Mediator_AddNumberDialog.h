#pragma once

#include "web/JS_Mediator_Dialog.h"

// The number dialog's bridge ("addnumberdialog"): which naming field it sets, the sample of a
// number text for the page's digit counts, and the counts "auto" stands for. The page writes
// the counts itself, on OK.
class JS_Mediator_AddNumberDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    JS_Mediator_AddNumberDialog(APP_Host* host, int callbackType, int deviceCount, int headCount);

    // The decimal width of the device count; of the head count from 2 heads on, else 0.
    static int autoDeviceDigits(int deviceCount);
    static int autoHeadDigits(int headCount);

public slots:
    void ok();
    void cancel();
    // Conversions number their output as files do.
    bool isFileMode() override;
    int getCallbackType();
    QString preview(int deviceDigits, int headDigits, int sessionDigits);
    int getAutoDeviceDigits();
    int getAutoHeadDigits();

private:
    int m_callbackType;
    int m_autoDeviceDigits;
    int m_autoHeadDigits;
};
