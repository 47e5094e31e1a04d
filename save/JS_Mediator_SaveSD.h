#pragma once

#include "save/JS_Mediator_SaveMedia.h"

#include <QVariantMap>

// The SD card page's access to a camera document. The page counts slots from 1 and names the
// slot in use 0; the camera counts from 0 and takes -1 as no slot.
class JS_Mediator_SaveSD : public JS_Mediator_SaveMedia
{
    Q_OBJECT

public:
    JS_Mediator_SaveSD(APP_Host* host, const QString& name);

    // The camera's index of the page's slot: 0 is the first enabled one, -1 when none is.
    static int sdSlotIndex(DOC_Interface* document, int slot);
    static QString speedModeText(int speedMode);

public slots:
    bool isManaged(int dockey);
    bool isEnabaleSlot(int dockey, int slot);
    bool isInserted(int dockey, int slot);
    bool isFormatted(int dockey, int slot);
    bool isProtected(int dockey, int slot);
    // class, speed and size, all texts.
    QVariantMap getSDInfo(int dockey, int slot);
    QString getDataList(int dockey, int slot);
    QString getMemoryMode(int dockey);
    // Asks first; a no leaves the card as it was.
    void format(int dockey, int slot);

private:
    // Inserted, protected, formatted.
    enum class Status { Inserted, Protected, Formatted };
    bool status(const char* method, int dockey, int slot, Status which);
};
