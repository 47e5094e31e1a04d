#pragma once

#include "web/JS_Mediator_Dialog.h"

// The page object "rectime_format_dlg": the unit of recording times. A recording time stands
// in the documents' information, so a change tells the documents as well as writing the
// preference; cancel writes back the value of the start.
class JS_Mediator_RectimeFormatDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    explicit JS_Mediator_RectimeFormatDialog(APP_Host* host);

public slots:
    void ok();
    void cancel();
    int getRecTimeUnit();
    void setRecTimeUnit(int unit);

private:
    int m_recTimeUnit;
};
