#pragma once

#include <QPoint>
#include <QSize>

// What limits a document's rectangle while the user drags it or moves it with the keys. The
// frame fills it from its settings and the document's view; the grid values are in the view's
// image pixels once PLG_RectangleGeometry::scaled has run.
struct PLG_RectangleConstraints
{
    // The document image; the rectangle never leaves it.
    QSize image;
    // The camera's whole image, on whose middle the centre locks hold the rectangle; empty:
    // the document image.
    QSize wholeImage;
    QPoint positionStep = QPoint(1, 1);
    QSize sizeStep = QSize(1, 1);
    // Negative in either value: no limit.
    QSize maxSize = QSize(-1, -1);
    QSize minSize = QSize(1, 1);
    bool fixAspect = false;
    // The aspect to keep is the image's rather than the rectangle's.
    bool originalAspect = false;
    bool centerX = false;
    bool centerY = false;

    bool hasMaxSize() const { return maxSize.width() >= 0 && maxSize.height() >= 0; }
    QSize lockImage() const { return wholeImage.isEmpty() ? image : wholeImage; }
};
