#include "host/HST_Preview.h"

#include "host/HST_Document.h"
#include "host/HST_DocumentView.h"

#include <QPainter>

QImage HST_Preview::frame(const HST_Document& document, const QSize& size, int)
{
    QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    const QImage source = HST_DocumentView::makeFrame(document.key(), document.title());
    QRect target(QPoint(), source.size().scaled(image.size(), Qt::KeepAspectRatio));
    target.moveCenter(image.rect().center());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, source);
    return image;
}
