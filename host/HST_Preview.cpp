#include "host/HST_Preview.h"

#include "host/HST_DocumentView.h"

#include <QPainter>

QImage HST_Preview::frame(int key, const QString& title, const HST_PartitionSpec& partition,
    unsigned frameNumber, const QSize& size)
{
    const QSize resolution = size.isValid() ? size : QSize(partition.width, partition.height);
    if (!partition.image.isEmpty()) {
        const QImage picture(partition.image);
        if (!picture.isNull())
            return picture.scaled(resolution, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32);
    }
    QImage image = HST_DocumentView::makeFrame(
        key, QStringLiteral("%1 / %2").arg(title, partition.name), resolution);
    QPainter painter(&image);
    QFont font = painter.font();
    font.setPixelSize(qMax(10, resolution.height() / 16));
    painter.setFont(font);
    painter.setPen(Qt::yellow);
    painter.drawText(image.rect().adjusted(8, 8, -8, -8), Qt::AlignLeft | Qt::AlignBottom,
        QStringLiteral("F%1").arg(frameNumber));
    return image;
}

QPixmap HST_Preview::preview(
    int key, const QString& title, const HST_PartitionSpec& partition, int width, int height)
{
    if (width < 1 || height < 1 || width > largest || height > largest)
        return QPixmap();
    const QSize resolution(partition.width, partition.height);
    const QSize fitted = resolution.scaled(width, height, Qt::KeepAspectRatio);
    return QPixmap::fromImage(frame(key, title, partition, 0, fitted.expandedTo(QSize(1, 1))));
}
