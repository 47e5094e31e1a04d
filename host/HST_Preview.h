#pragma once

#include "host/HST_Scenario.h"

#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QSize>
#include <QString>

class HST_Document;

// What a document's partitions look like: the picture the scenario gives a partition, or the
// document's simulated frame marked with the partition and frame number. Previews, saved
// files and thumbnails are all drawn from it.
class HST_Preview
{
public:
    HST_Preview() = delete;

    static constexpr int largest = 4096;

    // One frame of the partition at its resolution (or the size given).
    static QImage frame(int key, const QString& title, const HST_PartitionSpec& partition,
        unsigned frameNumber, const QSize& size = QSize());
    // The partition's first frame fitted into width x height; null for a size outside 1 to
    // largest.
    static QPixmap preview(
        int key, const QString& title, const HST_PartitionSpec& partition, int width, int height);
    // The partition's first frame fitted into size on black, where the information block of a
    // saved picture is drawn over or below it.
    static QImage letterboxed(const HST_Document& document, const QSize& size, int partition);
    // Where that frame lies within a picture of that size.
    static QRect frameRect(const HST_Document& document, const QSize& size, int partition);
};
