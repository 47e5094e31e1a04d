#pragma once

#include "save/JS_Mediator_SaveMedia.h"

// The CFast page's access to a camera document. The camera numbers a card's data sets from 1,
// and the page's row ids are one more than those numbers.
class JS_Mediator_SaveCFast : public JS_Mediator_SaveMedia
{
    Q_OBJECT

public:
    JS_Mediator_SaveCFast(APP_Host* host, const QString& name);

public slots:
    bool isManaged(int dockey);
    bool isEnabaleSlot(int dockey, int slot);
    bool isInserted(int dockey, int slot);
    bool isFormatted(int dockey, int slot);
    QString getDataList(int dockey, int slot);
    void format(int dockey, int slot);
    // Of the first slot; "" when there is no document, no card handled or none inserted.
    QString getFreeSpace(int dockey);
    void selectedDocCount(int count);
    void selectedDocHeadCount(int count);

private:
    int m_selectedDocCount = 0;
    int m_selectedDocHeadCount = 0;
};
