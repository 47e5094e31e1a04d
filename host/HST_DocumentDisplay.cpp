// HST_Document's image and display operations: answered from the document's view state and
// the size of its window, so that they agree with what the window draws.
#include "host/HST_Document.h"

void HST_Document::setView(const HST_ViewState& view)
{
    m_view = view;
    repaintView();
}

QSize HST_Document::windowSize() const
{
    return m_viewWidget ? m_viewWidget->size() : QSize();
}

void HST_Document::repaintView() const
{
    if (m_viewWidget)
        m_viewWidget->update();
}

void HST_Document::refresh(bool)
{
    hostCall("document.refresh");
    repaintView();
}

QSize HST_Document::imageSize(QSize& out)
{
    hostCall("document.imageSize");
    out = m_view.imageSize;
    return out;
}

void HST_Document::extent(QSize& out)
{
    hostCall("document.extent");
    out = m_view.extent(windowSize());
}

void HST_Document::viewToImage(QPoint& out, const QPoint& viewPos, bool)
{
    hostCall("document.viewToImage");
    out = m_view.viewToImage(viewPos, windowSize());
}

bool HST_Document::isRotatedQuarter()
{
    hostCall("document.isRotatedQuarter");
    return m_view.isRotatedQuarter();
}

void HST_Document::fullImageSize(QSize& out)
{
    hostCall("document.fullImageSize");
    out = m_view.wholeImageSize();
}

bool HST_Document::hasScaleFactor()
{
    hostCall("document.hasScaleFactor");
    return m_view.scaleFactor > 1;
}

int HST_Document::scaleFactor()
{
    hostCall("document.scaleFactor");
    return m_view.scaleFactor;
}

float HST_Document::rotationFraction()
{
    hostCall("document.rotationFraction");
    return float(m_view.rotation) / 360.0f;
}

bool HST_Document::isMirroredHorizontally()
{
    hostCall("document.isMirroredHorizontally");
    return m_view.mirroredHorizontally;
}

bool HST_Document::isMirroredVertically()
{
    hostCall("document.isMirroredVertically");
    return m_view.mirroredVertically;
}

float HST_Document::zoomFactor(bool)
{
    hostCall("document.zoomFactor");
    return float(m_view.effectiveZoom(windowSize()));
}

int HST_Document::binningExponent()
{
    hostCall("document.binningExponent");
    return m_view.binningExponent;
}
