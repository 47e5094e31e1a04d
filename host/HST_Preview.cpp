#include "host/HST_Preview.h"

#include "host/HST_Document.h"
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

QImage HST_Preview::letterboxed(const HST_Document& document, const QSize& size, int partition)
{
    QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    const QRect target = frameRect(document, image.size(), partition);
    const HST_PartitionSpec* spec = document.partitionSpec(partition);
    const QImage source = spec
        ? frame(document.key(), document.title(), *spec, 0, target.size().expandedTo(QSize(1, 1)))
        : HST_DocumentView::makeFrame(document.key(), document.title());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, source);
    return image;
}

QRect HST_Preview::frameRect(const HST_Document& document, const QSize& size, int partition)
{
    const HST_PartitionSpec* spec = document.partitionSpec(partition);
    // Without a partition the simulated frame keeps makeFrame's own size.
    const QSize frameSize = spec && spec->width > 0 && spec->height > 0
        ? QSize(spec->width, spec->height)
        : QSize(640, 480);
    QRect target(QPoint(), frameSize.scaled(size, Qt::KeepAspectRatio));
    target.moveCenter(QRect(QPoint(), size).center());
    return target;
}
