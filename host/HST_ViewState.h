#pragma once

#include <QJsonObject>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QTransform>

// How a document's window shows its image, and the image's sizes. Positions on the image are
// image coordinates: full-resolution pixels, which binning and the scale factor make coarser on
// screen without changing the coordinates. The image's top-left corner, as turned and mirrored,
// sits at the window's top-left corner.
struct HST_ViewState
{
    // Window pixels per image pixel; 0: whatever fits the window.
    double zoom = 0.0;
    // Clockwise, 0, 90, 180 or 270 degrees.
    int rotation = 0;
    // On screen, after the turn.
    bool mirroredHorizontally = false;
    bool mirroredVertically = false;
    // Each shown pixel covers 2^binning image pixels along each axis.
    int binningExponent = 0;
    // 1: no scale factor.
    int scaleFactor = 1;
    QSize imageSize = QSize(1024, 1024);
    // The camera's whole image, which imageSize may be a part of; empty: imageSize.
    QSize fullImageSize;

    static const int MaxBinningExponent = 3;
    static const int MaxScaleFactor = 8;

    bool isRotatedQuarter() const { return rotation == 90 || rotation == 270; }
    QSize wholeImageSize() const { return fullImageSize.isEmpty() ? imageSize : fullImageSize; }
    // Image pixels along each axis that one shown pixel covers.
    int pixelSize() const { return (1 << binningExponent) * scaleFactor; }
    // The frame a camera delivers at this binning and scale.
    QSize shownFrameSize() const;

    // The zoom in effect in a window of that size; a fitting zoom without a window is 1.
    double effectiveZoom(const QSize& window) const;
    // Image coordinates to window coordinates, as the window draws.
    QTransform imageToView(const QSize& window) const;
    // The image pixel under a window pixel; outside the image too.
    QPoint viewToImage(const QPoint& viewPos, const QSize& window) const;
    // The image as drawn, in window pixels.
    QSize extent(const QSize& window) const;

    QJsonObject toJson() const;
    bool operator==(const HST_ViewState& other) const;
    bool operator!=(const HST_ViewState& other) const { return !(*this == other); }

    // Reads a scenario's "view" object over what out holds; keys left out keep their value.
    // On a bad value: false, with key (path included) and problem set.
    static bool read(const QJsonObject& object, const QString& path, HST_ViewState& out,
        QString& key, QString& problem);
};
