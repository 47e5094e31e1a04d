#pragma once

#include "plugin/DOC_Camera.h"
#include "plugin/DOC_Display.h"
#include "plugin/DOC_Feed.h"
#include "plugin/DOC_HeadGroup.h"
#include "plugin/DOC_ImageData.h"
#include "plugin/DOC_Partitions.h"
#include "plugin/DOC_Playback.h"
#include "plugin/DOC_SaveRange.h"

#include <QList>
#include <QString>
#include <QVariantMap>

class QDateTime;
class QPixmap;

// One document: a connected camera head or a file.
//
// A document's facets are its base classes, so a facet is reached by a plain upcast:
//     DOC_Camera* camera = doc;          // always answers, camera or not
//     DOC_Camera* real = doc->asCamera(); // null for a document without a camera
class SYNC_SHARED DOC_Interface : public DOC_Feed,
                                  public DOC_Playback,
                                  public DOC_ImageData,
                                  public DOC_Camera,
                                  public DOC_Partitions,
                                  public DOC_Display,
                                  public DOC_HeadGroup,
                                  public DOC_SaveRange
{
public:
    ~DOC_Interface() override = default;

    virtual DOC_Camera* asCamera() = 0;
    virtual void heads(QList<DOC_Interface*>& out, bool all = true) = 0;
    // Also a DOC_Camera operation; one override answers both.
    int headCount() override = 0;
    virtual bool isConnected() = 0;
    virtual void setConnectWanted(bool wanted) = 0;
    virtual bool isSelected() = 0;
    virtual bool isSelectedMulti() = 0;
    virtual bool holdsCameraMemory() = 0;
    virtual QString& filePath(QString& out) = 0;
    virtual QString& deviceName(QString& out) = 0;
    virtual QString& baseName(QString& out) = 0;
    virtual bool isMobile() = 0;
    virtual QString& partitionName(QString& out, int partition) = 0;
    virtual void refresh(bool now) = 0;
    virtual QString& sortName(QString& out) = 0;
    // The multi-camera add-on holds this document's device locked.
    virtual bool isRostraLocked() = 0;
    // The record fields of the document for lists, with the list "partitions" of a map per
    // partition; convert: as a conversion lists it.
    virtual QVariantMap documentDescription(bool convert) = 0;
    virtual bool isMultiSkipA() = 0;
    virtual bool isMultiSkipB() = 0;
    // The document is a recording on a medium of that kind.
    virtual bool isOnSd() = 0;
    virtual bool isOnStorageUnit() = 0;
    virtual bool isOnCFast() = 0;
    // Whether the file behind the document may go, and deleting it; false when it didn't.
    virtual bool canDeleteFile() = 0;
    virtual bool deleteFile() = 0;
};
