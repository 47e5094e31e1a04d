#include "plugin/PLG_RectangleView.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/PLG_RectangleGeometry.h"
#include "plugin/SharedKeys.h"

#include <QtGlobal>

PLG_RectangleView::PLG_RectangleView(APP_Host* host, DOC_Interface* doc)
    : m_host(host)
    , m_doc(doc)
{
}

QPoint PLG_RectangleView::imagePosition(const QPoint& viewPos) const
{
    QPoint imagePos;
    m_doc->viewToImage(imagePos, viewPos, false);
    return imagePos;
}

int PLG_RectangleView::zoneAt(const QPoint& imagePos, const QRect& rect) const
{
    return PLG_RectangleGeometry::hitTest(
        imagePos, rect, PLG_RectangleGeometry::tolerance(m_doc->zoomFactor(true)));
}

PLG_RectangleConstraints PLG_RectangleView::constraints(PLG_RectangleConstraints settings) const
{
    m_doc->imageSize(settings.image);
    m_doc->fullImageSize(settings.wholeImage);
    const int binning = m_host->appliesTo(FEATURE_BINNING, m_doc) ? m_doc->binningExponent() : 0;
    const int scale = m_doc->hasScaleFactor() ? m_doc->scaleFactor() : 1;
    return PLG_RectangleGeometry::scaled(settings, binning, scale, m_doc->isRotatedQuarter());
}

int PLG_RectangleView::imageKey(int key) const
{
    const int rotation = qRound(m_doc->rotationFraction() * 360.0f);
    return PLG_RectangleGeometry::translatedKey(
        key, rotation, m_doc->isMirroredHorizontally(), m_doc->isMirroredVertically());
}

std::optional<Qt::CursorShape> PLG_RectangleView::cursorShape(int zone) const
{
    if (!m_doc)
        return PLG_RectangleGeometry::cursorShape(zone, false, false, false);
    return PLG_RectangleGeometry::cursorShape(zone, m_doc->isRotatedQuarter(),
        m_doc->isMirroredHorizontally(), m_doc->isMirroredVertically());
}
