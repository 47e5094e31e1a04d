#pragma once

#include "host/HST_InfoStyle.h"
#include "host/HST_InfoValues.h"

#include <QImage>
#include <QList>
#include <QRect>

class QPainter;

// Draws the information block: its lines from the top of an area, aligned, cut to the width,
// in columns on a background when the style says so, the logo at its icon size.
class HST_InfoOverlay
{
public:
    HST_InfoOverlay() = delete;

    // scale: how many target pixels a pixel of the style stands for (1 on the screen).
    static void paint(QPainter& painter, const QRect& area, const HST_InfoStyle& style,
        const QList<HST_InfoLine>& lines, const QImage& logo, double scale = 1.0);
    // The height the block takes at that width.
    static int height(const QRect& area, const HST_InfoStyle& style,
        const QList<HST_InfoLine>& lines, double scale = 1.0);

private:
    struct Layout;
    static Layout layOut(const QRect& area, const HST_InfoStyle& style,
        const QList<HST_InfoLine>& lines, double scale);
};
