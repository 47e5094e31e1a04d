#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

class HST_Document;

// The preview drawing of a document: its simulated frame for a partition, fitted into the size
// asked for on black.
class HST_Preview
{
public:
    HST_Preview() = delete;

    static QImage frame(const HST_Document& document, const QSize& size, int partition);
    // Where the frame lies within a preview of that size.
    static QRect frameRect(const QSize& size);
};
