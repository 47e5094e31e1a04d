#include "roi/PLG_roi.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "roi/GUI_RoiPanel.h"
#include "util/UTL_Barrier.h"

#include <algorithm>
#include <new>

PLG_roi::PLG_roi(QObject* parent)
    : PLG_Common(parent)
{
    m_name = PLUGIN_NAME_ROI;
    m_pluginType = 4;
    m_isPagedTool = true;
}

PLG_roi::~PLG_roi()
{
    delete m_panel.data();
}

void PLG_roi::update()
{
    PLG_Common::update();
    if (m_panel)
        m_panel->scheduleRefresh();
}

QWidget* PLG_roi::pageWidget()
{
    return UTL_Barrier::logged(
        "PLG_roi::pageWidget", static_cast<QWidget*>(nullptr), [this]() -> QWidget* {
            if (!m_panel && m_host)
                m_panel = new GUI_RoiPanel(this, m_host);
            m_pageWidget = m_panel;
            return m_pageWidget;
        });
}

bool PLG_roi::hasRectangle(DOC_Interface* doc)
{
    return doc != nullptr;
}

QRect PLG_roi::rectangle(DOC_Interface* doc)
{
    return UTL_Barrier::logged("PLG_roi::rectangle", QRect(0, 0, -1, -1), [&]() -> QRect {
        if (!doc || !m_host)
            return QRect(0, 0, -1, -1);
        const auto known = m_rectangles.constFind(m_host->documentKey(doc));
        return known != m_rectangles.constEnd() ? *known : defaultRectangleFor(doc);
    });
}

void PLG_roi::setRectangle(DOC_Interface* doc, const QRect& rect, bool)
{
    UTL_Barrier::logged("PLG_roi::setRectangle", [&] {
        if (!doc || !m_host)
            return;
        m_rectangles.insert(m_host->documentKey(doc), rect);
        if (m_panel)
            m_panel->scheduleRefresh();
    });
}

QRect PLG_roi::defaultRectangleFor(DOC_Interface* doc)
{
    QSize image;
    doc->imageSize(image);
    const QRect whole(QPoint(0, 0), image);
    if (m_defaultRect.isValid() && whole.contains(m_defaultRect))
        return m_defaultRect;
    const QSize size(std::max(1, image.width() / 2), std::max(1, image.height() / 2));
    return QRect(
        QPoint((image.width() - size.width()) / 2, (image.height() - size.height()) / 2), size);
}

void PLG_roi::setSettings(const PLG_RectangleConstraints& settings)
{
    m_positionStep
        = QPoint(std::max(1, settings.positionStep.x()), std::max(1, settings.positionStep.y()));
    m_sizeStep = settings.sizeStep.expandedTo(QSize(1, 1));
    m_minSize = settings.minSize.expandedTo(QSize(1, 1));
    m_maxSize = settings.hasMaxSize() ? settings.maxSize.expandedTo(QSize(1, 1)) : QSize(-1, -1);
    setFixAspect(settings.fixAspect);
    setOriginalAspect(settings.originalAspect);
    m_centerX = settings.centerX;
    m_centerY = settings.centerY;
}

QVariantMap PLG_roi::currentParameters()
{
    if (!m_host)
        return QVariantMap();
    DOC_Interface* doc = m_host->currentDocument();
    if (!doc)
        doc = m_host->document(lastDocumentKey(), true);
    if (!doc)
        return QVariantMap();
    QSize image;
    doc->imageSize(image);
    return rectangleParameters(doc, image, rectangle(doc), m_fixAspect, m_originalAspect);
}

PLG_Interface* makeRoiPlugin()
{
    return new (std::nothrow) PLG_roi;
}
