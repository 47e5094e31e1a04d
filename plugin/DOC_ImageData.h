#pragma once

#include "plugin/SyncGlobal.h"

#include <QPoint>
#include <QSize>
#include <QString>

class QDateTime;
class QPixmap;

// Facet of a document: image geometry and comment.
class SYNC_SHARED DOC_ImageData
{
public:
    virtual ~DOC_ImageData() = default;

    virtual QSize imageSize(QSize& out) = 0;
    virtual void setCursorPosition(const QPoint& imagePos) = 0;
    virtual void extent(QSize& out) = 0;
    virtual void viewToImage(QPoint& out, const QPoint& viewPos, bool clip) = 0;
    virtual bool isRotatedQuarter() = 0;
    virtual QString& comment(QString& out) = 0;
    virtual void setComment(const QString& text) = 0;
    // The bit depths of the image format: what the image holds and what the sensor gave.
    // False when the document has no image format.
    virtual bool imageFormat(int& depth, int& realDepth) = 0;
    // A preview drawing of a partition at that size, with the information block of a set of
    // the save form (reserved: the set, 0 to 6).
    virtual QPixmap previewPixmap(int previewMode, int width, int height, int partition,
        int reserved, const QDateTime& dateTime)
        = 0;
};
