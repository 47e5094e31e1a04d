#pragma once

#include "web/JS_Mediator_Dialog.h"

// The page object "shutter_format_dlg": how shutter speeds are written. Every change is
// written at once, so the views follow it; cancel writes back the values of the start.
class JS_Mediator_ShutterSpeedFormatDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    explicit JS_Mediator_ShutterSpeedFormatDialog(APP_Host* host);

public slots:
    void ok();
    void cancel();
    int getShutterSpeedFormat();
    void setShutterSpeedFormat(int format);
    int getShutterSpeedTimeUnit();
    void setShutterSpeedTimeUnit(int unit);
    bool isShutterSpeedInsertDelimiter();
    void setShutterSpeedInsertDelimiter(bool val);

private:
    int m_format;
    int m_timeUnit;
    bool m_insertDelimiter;
};
