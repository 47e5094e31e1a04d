#pragma once

#include "plugin/PLG_Common.h"

#include <QHash>
#include <QPointer>

class GUI_RoiPanel;

// A region of interest: a page in the host's panel whose plug-in keeps one rectangle per
// document, moved and resized on the image through the frame's rectangle tool, with the
// tool's settings and the rectangle's figures on the page.
class PLG_roi : public PLG_Common
{
public:
    explicit PLG_roi(QObject* parent = nullptr);
    ~PLG_roi() override;

    void update() override;
    QWidget* pageWidget() override;
    bool hasRectangle(DOC_Interface* doc) override;
    QRect rectangle(DOC_Interface* doc) override;
    void setRectangle(DOC_Interface* doc, const QRect& rect, bool apply) override;

    // Grid, limits, aspect and centre locks as the user set them, before any view scales them.
    PLG_RectangleConstraints settings() const { return rectangleSettings(); }
    // Steps and the minimum below 1 count as 1; a maximum with a value below 0 is no limit.
    void setSettings(const PLG_RectangleConstraints& settings);
    // rectangleParameters of the host's current document; empty without one.
    QVariantMap currentParameters();

private:
    // The default rectangle where it fits the image, else the middle quarter of the image.
    QRect defaultRectangleFor(DOC_Interface* doc);

    QHash<int, QRect> m_rectangles;
    // Made on demand; the host's panel may become its parent, and whichever of the two
    // deletes it first, the other sees it gone.
    QPointer<GUI_RoiPanel> m_panel;
};

// Makes the plug-in object the exported entry hands to the host; null if allocation failed.
PLG_Interface* makeRoiPlugin();
