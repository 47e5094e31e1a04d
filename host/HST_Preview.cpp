#include "host/HST_Preview.h"

#include "host/HST_Document.h"
#include "host/HST_DocumentView.h"

#include <QPainter>

QImage HST_Preview::frame(const HST_Document& document, const QSize& size, int)
{
    QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    const QImage source = HST_DocumentView::makeFrame(document.key(), document.title());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(frameRect(image.size()), source);
    return image;
}

QRect HST_Preview::frameRect(const QSize& size)
{
    // The size of the simulated frame, makeFrame's own.
    const QSize frameSize(640, 480);
    QRect target(QPoint(), frameSize.scaled(size, Qt::KeepAspectRatio));
    target.moveCenter(QRect(QPoint(), size).center());
    return target;
}
