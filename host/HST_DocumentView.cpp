#include "host/HST_DocumentView.h"

#include "host/HST_Document.h"
#include "host/HST_ViewHost.h"

#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

HST_DocumentView::HST_DocumentView(HST_ViewHost* host, HST_Document* document, QWidget* parent)
    : QWidget(parent)
    , m_host(host)
    , m_document(document)
    , m_key(document->key())
    , m_title(document->title())
    , m_frame(makeFrame(m_key, m_title, document->view().shownFrameSize()))
{
    setObjectName(QStringLiteral("documentView_%1").arg(m_key));
    setWindowTitle(m_title);
    setMinimumSize(160, 120);
    // Plug-ins follow the mouse with the button up too: the cursor tells what a press would do.
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    document->setViewWidget(this);
}

void HST_DocumentView::setFrame(const QImage& frame)
{
    m_frame = frame;
    m_frameGiven = true;
    update();
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

const QImage& HST_DocumentView::shownFrame()
{
    const QSize size = m_document->view().shownFrameSize();
    if (!m_frameGiven && m_frame.size() != size)
        m_frame = makeFrame(m_key, m_title, size);
    return m_frame;
}

void HST_DocumentView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    const HST_ViewState& view = m_document->view();
    painter.setTransform(view.imageToView(size()));
    // Unsmoothed: a binned or scaled frame shows its coarse pixels, and each window pixel shows
    // the image pixel that viewToImage names.
    painter.drawImage(QRectF(QPointF(0, 0), QSizeF(view.imageSize)), shownFrame());
    paintRectangle(painter);
    painter.resetTransform();
    paintOverlay(painter);
}

void HST_DocumentView::paintRectangle(QPainter& painter)
{
    const std::optional<QRect> rect = m_host->rectangleFor(m_key);
    if (!rect || rect->isEmpty())
        return;
    // Around the pixels the rectangle holds, a line of the same width at any zoom.
    const QRectF outline(*rect);
    QPen dark(QColor(0, 0, 0, 160), 3);
    dark.setCosmetic(true);
    painter.setPen(dark);
    painter.drawRect(outline);
    QPen bright(QColor(255, 214, 0), 1);
    bright.setCosmetic(true);
    painter.setPen(bright);
    painter.drawRect(outline);
}

void HST_DocumentView::paintOverlay(QPainter& painter)
{
    // The information block lies upright over the image as the window shows it, at any turn.
    const HST_ViewState& view = m_document->view();
    const QRect image = view.imageToView(size())
                            .mapRect(QRectF(QPointF(0, 0), QSizeF(view.imageSize)))
                            .toAlignedRect()
                            .intersected(rect());
    m_host->paintInformation(m_key, painter, image);
}

void HST_DocumentView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_host->passMousePress(m_key, event->pos());
}

void HST_DocumentView::mouseMoveEvent(QMouseEvent* event)
{
    // The host's cross cursor takes the mouse for itself.
    setCursor(m_host->crossCursor() ? Qt::CrossCursor : Qt::ArrowCursor);
    m_host->passMouseMove(m_key, event->pos());
}

void HST_DocumentView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    m_host->passMouseRelease(m_key, event->pos());
}

void HST_DocumentView::leaveEvent(QEvent* event)
{
    m_host->passMouseLeave(m_key);
    QWidget::leaveEvent(event);
}

void HST_DocumentView::keyPressEvent(QKeyEvent* event)
{
    m_host->passKeyPress(m_key, event);
}

void HST_DocumentView::keyReleaseEvent(QKeyEvent* event)
{
    m_host->passKeyRelease(m_key, event);
}
