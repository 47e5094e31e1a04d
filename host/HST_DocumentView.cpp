#include "host/HST_DocumentView.h"

#include <QLinearGradient>
#include <QPainter>

HST_DocumentView::HST_DocumentView(int key, const QString& title, QWidget* parent)
    : QWidget(parent)
    , m_key(key)
    , m_frame(makeFrame(key, title))
{
    setObjectName(QStringLiteral("documentView_%1").arg(key));
    setWindowTitle(title);
    setMinimumSize(160, 120);
}

QImage HST_DocumentView::makeFrame(int key, const QString& title, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // A grey ramp with a key-dependent tint, so frames of different documents differ.
    QLinearGradient ramp(0, 0, size.width(), size.height());
    ramp.setColorAt(0.0, QColor::fromHsv((key * 47) % 360, 60, 40));
    ramp.setColorAt(1.0, QColor::fromHsv((key * 47) % 360, 30, 200));
    painter.fillRect(image.rect(), ramp);
    painter.setPen(QColor(255, 255, 255, 60));
    for (int x = 0; x < size.width(); x += 40)
        painter.drawLine(x, 0, x, size.height());
    for (int y = 0; y < size.height(); y += 40)
        painter.drawLine(0, y, size.width(), y);
    painter.setPen(QPen(QColor(255, 255, 255, 160), 2));
    const QPoint centre = image.rect().center();
    painter.drawEllipse(centre, size.height() / 4, size.height() / 4);
    painter.drawLine(centre.x() - 12, centre.y(), centre.x() + 12, centre.y());
    painter.drawLine(centre.x(), centre.y() - 12, centre.x(), centre.y() + 12);
    QFont font = painter.font();
    font.setPixelSize(qMax(12, size.height() / 12));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(image.rect().adjusted(12, 12, -12, -12), Qt::AlignLeft | Qt::AlignTop, title);
    painter.drawText(image.rect().adjusted(12, 12, -12, -12), Qt::AlignRight | Qt::AlignBottom,
        QStringLiteral("#%1").arg(key));
    return image;
}

void HST_DocumentView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    const QSize fitted = m_frame.size().scaled(size(), Qt::KeepAspectRatio);
    QRect target(QPoint(), fitted);
    target.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, m_frame);
    if (m_overlay)
        m_overlay(painter, target);
}
