// The rectangle tool of the frame: PLG_Common's mouse and key operations, which move and
// resize the rectangle of a plug-in that has one, and what a page is told about it.
#include "plugin/PLG_Common.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/PLG_RectangleGeometry.h"
#include "plugin/PLG_RectangleView.h"
#include "plugin/SharedKeys.h"
#include "util/UTL_Barrier.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>

#include <optional>

bool PLG_Common::rectangleToolApplies(DOC_Interface* doc)
{
    return doc && hasRectangle(doc) && !m_host->isToolActive(TOOL_CROSSCURSOR);
}

PLG_RectangleConstraints PLG_Common::rectangleSettings() const
{
    PLG_RectangleConstraints settings;
    settings.positionStep = m_positionStep;
    settings.sizeStep = m_sizeStep;
    settings.maxSize = m_maxSize;
    settings.minSize = m_minSize;
    settings.fixAspect = m_fixAspect;
    settings.originalAspect = m_originalAspect;
    settings.centerX = m_centerX;
    settings.centerY = m_centerY;
    return settings;
}

void PLG_Common::changeRectangle(DOC_Interface* doc, const QRect& rect)
{
    if (rect.width() <= 0 || rect.height() <= 0)
        return;
    setRectangle(doc, rect, true);
    if (applyOnChange())
        sendChangeNotice(doc);
}

void PLG_Common::sendChangeNotice(DOC_Interface* doc)
{
    if (applyToLocked() && m_host->isMultiLock()) {
        m_host->updateUI(1, false);
        m_host->updateUI(4, false);
    } else {
        doc->refresh(true);
        m_host->updateUI(4, false);
    }
}

void PLG_Common::mousePressed(const QPoint& pos, int docKey)
{
    UTL_Barrier::reported(m_host, [&] {
        if (!isMouseEventFor(pos, docKey))
            return;
        // One macro per press: a press whose release went astray must not open a second.
        if (!m_mouseDown)
            m_host->beginMacro(QString());
        m_mouseDown = true;
        m_mouseDownPos = pos;
        m_lastMousePos = pos;
        m_dragZone = PLG_RectangleGeometry::Outside;
        DOC_Interface* doc = m_host->document(docKey, true);
        if (!rectangleToolApplies(doc))
            return;
        const PLG_RectangleView view(m_host, doc);
        m_mouseDownRect = rectangle(doc);
        m_dragZone = view.zoneAt(view.imagePosition(pos), m_mouseDownRect);
    });
}

// Logged, not reported: the mouse keeps moving, and a box for every move would bury the user.
void PLG_Common::mouseMoved(const QPoint& pos, int docKey)
{
    UTL_Barrier::logged("PLG_Common::mouseMoved", [&] {
        if (!isMouseEventFor(pos, docKey))
            return;
        DOC_Interface* doc = m_host->document(docKey, true);
        if (!doc)
            return;
        m_lastMousePos = pos;
        const PLG_RectangleView view(m_host, doc);
        const QPoint imagePos = view.imagePosition(pos);
        doc->setCursorPosition(imagePos);
        m_lastDocumentKey = docKey;
        if (!rectangleToolApplies(doc))
            return;
        const QRect current = rectangle(doc);
        if (!m_mouseDown) {
            updateCursor(doc, view.zoneAt(imagePos, current));
            return;
        }
        if (m_dragZone == PLG_RectangleGeometry::Outside)
            return;
        const PLG_RectangleConstraints constraints = view.constraints(rectangleSettings());
        // The aspect of the rectangle as the drag began, so that rounding doesn't drift it.
        const double aspect = PLG_RectangleGeometry::aspect(constraints, m_mouseDownRect);
        changeRectangle(doc,
            PLG_RectangleGeometry::dragged(current, m_dragZone, m_mouseDownRect,
                view.imagePosition(m_mouseDownPos), imagePos, aspect, constraints));
    });
}

void PLG_Common::mouseLeft(int docKey)
{
    mouseReleased(m_lastMousePos, docKey);
}

void PLG_Common::mouseReleased(const QPoint& pos, int docKey)
{
    UTL_Barrier::reported(m_host, [&] {
        const bool forDocument = isMouseEventFor(pos, docKey);
        // A document closed during a drag still ends the drag and the host's undo macro.
        if (!forDocument && !m_mouseDown)
            return;
        const bool wasDown = m_mouseDown;
        m_mouseDown = false;
        m_dragZone = PLG_RectangleGeometry::Outside;
        QGuiApplication::restoreOverrideCursor();
        if (wasDown)
            m_host->endMacro();
        DOC_Interface* doc = forDocument ? m_host->document(docKey, true) : nullptr;
        if (doc && applyOnChange())
            sendChangeNotice(doc);
    });
}

void PLG_Common::keyPressed(QKeyEvent* event)
{
    UTL_Barrier::reported(m_host, [&] {
        m_keyHeld = true;
        if (!event || !m_host)
            return;
        DOC_Interface* doc = m_host->currentDocument(event);
        if (!rectangleToolApplies(doc))
            return;
        const PLG_RectangleView view(m_host, doc);
        const PLG_RectangleConstraints constraints = view.constraints(rectangleSettings());
        const QRect current = rectangle(doc);
        const std::optional<QRect> next
            = PLG_RectangleGeometry::keyed(current, view.imageKey(event->key()),
                event->modifiers() & Qt::ShiftModifier, event->modifiers() & Qt::ControlModifier,
                PLG_RectangleGeometry::aspect(constraints, current), constraints);
        if (next)
            changeRectangle(doc, *next);
    });
}

QVariantMap PLG_Common::rectangleParameters(DOC_Interface* doc, const QSize& imageSize,
    const QRect& rect, bool fixAspect, bool originalAspect)
{
    return UTL_Barrier::logged("PLG_Common::rectangleParameters", QVariantMap(), [&] {
        const bool rotated = doc && doc->isRotatedQuarter();
        return PLG_RectangleGeometry::parameters(
            imageSize, rotated, rect, fixAspect, originalAspect);
    });
}

bool PLG_Common::isMouseEventFor(const QPoint&, int docKey)
{
    return UTL_Barrier::logged("PLG_Common::isMouseEventFor", false,
        [&]() -> bool { return m_host && m_host->document(docKey, true) != nullptr; });
}

void PLG_Common::updateCursor(DOC_Interface* doc, int zone)
{
    UTL_Barrier::logged("PLG_Common::updateCursor", [&] {
        const std::optional<Qt::CursorShape> shape
            = PLG_RectangleView(m_host, doc).cursorShape(zone);
        if (QGuiApplication::overrideCursor())
            QGuiApplication::restoreOverrideCursor();
        if (shape)
            QGuiApplication::setOverrideCursor(QCursor(*shape));
    });
}
