#pragma once

#include "plugin/PLG_RectangleConstraints.h"

#include <QPoint>
#include <QRect>
#include <QVariantMap>

#include <optional>

// The arithmetic of the frame's rectangle tool, on plain values: which part of the rectangle
// the mouse is over, where a drag or an arrow key takes it, which cursor shows, what a page
// is told about it. All positions are image coordinates; the frame maps the mouse there and
// gathers the view's state before it calls in.
class PLG_RectangleGeometry
{
public:
    enum Zone {
        TopEdge = 0,
        BottomEdge = 1,
        LeftEdge = 2,
        RightEdge = 3,
        TopLeftCorner = 4,
        TopRightCorner = 5,
        BottomLeftCorner = 6,
        BottomRightCorner = 7,
        Inside = 8,
        Outside = 9
    };

    // Five pixels of the screen in image pixels at that zoom.
    static int tolerance(double zoom);
    // The zone of the rectangle at the point; corners before edges, edges before the inside.
    static int hitTest(const QPoint& point, const QRect& rect, int tolerance);

    // The steps and size limits in the view's image pixels: a binned or scaled image counts
    // coarser pixels, and a quarter turn swaps the axes.
    static PLG_RectangleConstraints scaled(PLG_RectangleConstraints constraints,
        int binningExponent, int scaleFactor, bool rotatedQuarter);
    // Height over width to keep, of the image or of the rectangle; 0 when none is kept.
    static double aspect(const PLG_RectangleConstraints& constraints, const QRect& rect);

    // The rectangle after the mouse moved to pos while dragging zone: the zone's edges follow
    // the mouse (the inside moves the rectangle as it was at the press by the mouse's travel
    // from downPos), then the constraint pass.
    static QRect dragged(const QRect& current, int zone, const QRect& downRect,
        const QPoint& downPos, const QPoint& pos, double aspect,
        const PLG_RectangleConstraints& constraints);
    // Maximum size, confinement, aspect, position grid, size grid, centre locks, in that order.
    // before is the rectangle as it was before the change.
    static QRect constrained(QRect rect, int zone, double aspect, const QRect& before,
        const PLG_RectangleConstraints& constraints);
    // Inside the image at its size, cut to the maximum size.
    static QRect confined(QRect rect, const PLG_RectangleConstraints& constraints);

    // The arrow key in image directions, for a view turned by rotation degrees (0, 90, 180,
    // 270) and mirrored; any other key comes back as it was.
    static int translatedKey(
        int key, int rotation, bool mirroredHorizontally, bool mirroredVertically);
    // The rectangle after an arrow key (in image directions): with shift one edge moves by the
    // size step, outward or, with control, inward; without it the rectangle moves by the
    // position step. Nothing when the key is no arrow or the edge would leave the image or go
    // below the minimum size.
    static std::optional<QRect> keyed(const QRect& current, int key, bool shift, bool control,
        double aspect, const PLG_RectangleConstraints& constraints);

    // The cursor over the zone; nothing for the outside, where the usual cursor returns.
    static std::optional<Qt::CursorShape> cursorShape(
        int zone, bool rotatedQuarter, bool mirroredHorizontally, bool mirroredVertically);

    // The values a page shows and edits: the rectangle, its ranges and the image size.
    static QVariantMap parameters(const QSize& imageSize, bool rotatedQuarter, const QRect& rect,
        bool fixAspect, bool originalAspect);
};
