#pragma once

#include "save/JS_Mediator_SaveMedia.h"

// The storage unit page's access to a camera document: the unit's slots as the camera counts
// them, its data sets with their names, free space, formatting (the page has asked), and the
// naming of data sets with the number dialog of their own callback type.
class JS_Mediator_SaveVaultPack : public JS_Mediator_SaveMedia
{
    Q_OBJECT

public:
    JS_Mediator_SaveVaultPack(APP_Host* host, const QString& name);

    // The name the camera is given: with the number key on, "name_000007" for sequence 7; cut
    // at a zero character, which would end it on the camera.
    static QString dataName(bool addNumber, const QString& dataName, int sequence);

public slots:
    bool isManaged(int dockey);
    bool isEnabaleSlot(int dockey, int slot);
    bool isConnected(int dockey, int slot);
    bool isFormatted(int dockey, int slot);
    QString getDataList(int dockey, int slot);
    void format(int dockey, int slot);
    int getSlotNo(int dockey, int headNo);
    // "" when there is no document, no unit or nothing connected in the slot in use.
    QString getFreeSpace(int dockey);
    QString getAddCameraName(int dockey);
    QString getAddNumber();
    QString getAddDateTime(const QString& format);
    void numberSetting();
    void selectedDocCount(int count);
    void selectedDocHeadCount(int count);
    void convertDataName(int dockey, int slot, int dataNo, const QString& dataName, int sequence);
    bool canConvertDataName(int docKey);

private:
    // Without function 163 the camera numbers no more data sets than this.
    static const int defaultDataLimit = 1024;

    int m_selectedDocCount = 0;
    int m_selectedDocHeadCount = 0;
};
