#include "host/HST_InfoOverlay.h"

#include <QFontMetrics>
#include <QPainter>

#include <cmath>

namespace {

const int margin = 8;

} // namespace

struct HST_InfoOverlay::Layout
{
    QFont font;
    int lineHeight = 0;
    int gapHeight = 0;
    int logoHeight = 0;
    int columnWidth = 0;
    int spacing = 0;
    // Where each column's lines begin in the list, and the block's height.
    QList<int> columnStarts;
    int height = 0;

    int lineHeightOf(const HST_InfoLine& line) const
    {
        switch (line.kind) {
        case HST_InfoLine::Gap:
            return gapHeight;
        case HST_InfoLine::Logo:
            return logoHeight;
        case HST_InfoLine::Text:
        case HST_InfoLine::Blank:
            break;
        }
        return lineHeight;
    }
};

HST_InfoOverlay::Layout HST_InfoOverlay::layOut(
    const QRect& area, const HST_InfoStyle& style, const QList<HST_InfoLine>& lines, double scale)
{
    Layout layout;
    layout.font = style.font;
    layout.font.setPixelSize(qMax(1, int(std::lround(style.fontSize * scale))));
    const QFontMetrics metrics(layout.font);
    layout.lineHeight = metrics.lineSpacing();
    layout.gapHeight = qMax(2, layout.lineHeight / 3);
    layout.logoHeight = qMax(1, int(std::lround(style.iconSize * scale)));
    layout.spacing = int(std::lround(style.columnSpacing * scale));
    const int columns = qBound(1, style.columns, 8);
    const int inner = qMax(1, area.width() - 2 * margin);
    layout.columnWidth = qMax(1, (inner - (columns - 1) * layout.spacing) / columns);
    if (style.width > 0)
        layout.columnWidth = qMin(layout.columnWidth, int(std::lround(style.width * scale)));

    // Columns share the lines evenly, in order.
    const int perColumn = (lines.size() + columns - 1) / columns;
    int tallest = 0;
    for (int column = 0; column < columns; ++column) {
        const int start = column * perColumn;
        if (start >= lines.size() && column > 0)
            break;
        layout.columnStarts.append(start);
        int height = 0;
        for (int i = start; i < qMin(lines.size(), start + perColumn); ++i)
            height += layout.lineHeightOf(lines.at(i));
        tallest = qMax(tallest, height);
    }
    layout.height = tallest + 2 * margin;
    return layout;
}

int HST_InfoOverlay::height(
    const QRect& area, const HST_InfoStyle& style, const QList<HST_InfoLine>& lines, double scale)
{
    return lines.isEmpty() ? 0 : layOut(area, style, lines, scale).height;
}

void HST_InfoOverlay::paint(QPainter& painter, const QRect& area, const HST_InfoStyle& style,
    const QList<HST_InfoLine>& lines, const QImage& logo, double scale)
{
    if (lines.isEmpty() || area.isEmpty())
        return;
    const Layout layout = layOut(area, style, lines, scale);
    const int columns = layout.columnStarts.size();
    const int blockWidth = columns * layout.columnWidth + (columns - 1) * layout.spacing;
    int left = area.left() + margin;
    if (style.alignment == 1)
        left = area.left() + (area.width() - blockWidth) / 2;
    else if (style.alignment == 2)
        left = area.right() - margin - blockWidth;
    const int textAlignment = int(style.alignment == 1       ? Qt::AlignHCenter
                                      : style.alignment == 2 ? Qt::AlignRight
                                                             : Qt::AlignLeft)
        | int(Qt::AlignVCenter);

    painter.save();
    painter.setClipRect(area);
    if (style.useBackground)
        painter.fillRect(QRect(left - margin / 2, area.top(), blockWidth + margin,
                             qMin(layout.height, area.height())),
            style.background);
    painter.setFont(layout.font);
    const QFontMetrics metrics(layout.font);
    const int perColumn = columns > 1 ? layout.columnStarts.value(1) : lines.size();
    for (int column = 0; column < columns; ++column) {
        const int x = left + column * (layout.columnWidth + layout.spacing);
        int y = area.top() + margin;
        const int start = layout.columnStarts.at(column);
        for (int i = start; i < qMin(lines.size(), start + perColumn); ++i) {
            const HST_InfoLine& line = lines.at(i);
            const int height = layout.lineHeightOf(line);
            // Lines below the area can't be seen: the rest isn't drawn either.
            if (y > area.bottom())
                break;
            const QRect box(x, y, layout.columnWidth, height);
            if (line.kind == HST_InfoLine::Text) {
                const QString text
                    = metrics.elidedText(line.text, Qt::ElideRight, layout.columnWidth);
                // A dark shadow keeps light text readable on a light picture.
                painter.setPen(QColor(0, 0, 0, 160));
                painter.drawText(box.translated(1, 1), textAlignment, text);
                painter.setPen(style.foreground);
                painter.drawText(box, textAlignment, text);
            } else if (line.kind == HST_InfoLine::Logo && !logo.isNull()) {
                const QImage scaled = logo.scaledToHeight(height, Qt::SmoothTransformation);
                int logoX = x;
                if (style.alignment == 1)
                    logoX = x + (layout.columnWidth - scaled.width()) / 2;
                else if (style.alignment == 2)
                    logoX = x + layout.columnWidth - scaled.width();
                painter.drawImage(logoX, y, scaled);
            }
            y += height;
        }
    }
    painter.restore();
}
