#pragma once

#include "web/JS_Mediator_Dialog.h"

// The page object "recordRateFormatDialog": whether record rates are written with a thousands
// separator. A change is written at once; cancel writes back the value of the start.
class JS_Mediator_RecordRateFormatDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    explicit JS_Mediator_RecordRateFormatDialog(APP_Host* host);

public slots:
    void ok();
    void cancel();
    bool isRecordRateInsertDelimiter();
    void setRecordRateInsertDelimiter(bool val);

private:
    bool m_insertDelimiter;
};
