#pragma once

#include "plugin/PLG_RectangleConstraints.h"

#include <QPoint>
#include <QRect>

#include <optional>

class APP_Host;
class DOC_Interface;

// A document's view as the rectangle tool sees it for one event: the host's answers about
// zoom, turn, mirroring, binning and scale, put to PLG_RectangleGeometry. Borrows both
// pointers for the length of the event.
class PLG_RectangleView
{
public:
    PLG_RectangleView(APP_Host* host, DOC_Interface* doc);

    QPoint imagePosition(const QPoint& viewPos) const;
    // The zone of rect under an image position, with the tolerance of the view's zoom.
    int zoneAt(const QPoint& imagePos, const QRect& rect) const;
    // The settings with the document's image and in its pixels.
    PLG_RectangleConstraints constraints(PLG_RectangleConstraints settings) const;
    // An arrow key as the user sees it, in image directions.
    int imageKey(int key) const;
    std::optional<Qt::CursorShape> cursorShape(int zone) const;

private:
    APP_Host* m_host;
    DOC_Interface* m_doc;
};
