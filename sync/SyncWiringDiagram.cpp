#include "sync/SyncWiringDiagram.h"

#include "plugin/DOC_Camera.h"
#include "sync/SyncCameraOrder.h"
#include "sync/SyncWiringDiagramWidget.h"

#include <QHash>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPen>

#include <cmath>

namespace {

struct SpriteRow
{
    std::initializer_list<int> types;
    QRect side;
    QRect back;
};

const QRect DefaultBack(230, 80, 80, 80);

// Row 0 is the default for every type not listed.
const SpriteRow SpriteRows[] = {
    {{}, QRect(0, 0, 100, 80), DefaultBack},
    {{10}, QRect(0, 80, 100, 80), DefaultBack},
    {{19, 22}, QRect(0, 160, 100, 80), DefaultBack},
    {{6, 8, 11, 26}, QRect(110, 0, 100, 80), DefaultBack},
    {{15, 21}, QRect(110, 80, 100, 80), DefaultBack},
    {{24}, QRect(110, 160, 100, 80), DefaultBack},
    {{34, 45}, QRect(0, 240, 100, 80), DefaultBack},
    {{23, 25, 28, 29, 30, 31, 32}, QRect(330, 80, 75, 80), QRect(330, 0, 60, 80)},
    {{35}, QRect(220, 160, 100, 80), QRect(330, 160, 80, 80)},
    {{36, 37, 38, 39, 40, 42, 43, 44}, QRect(220, 240, 100, 80), QRect(330, 240, 80, 80)},
    {{46, 47}, QRect(0, 320, 100, 80), QRect(120, 320, 80, 80)},
};

const QRect NrackRect(220, 0, 100, 80);

int spriteRow(int cameraType)
{
    for (int row = 1; row < int(std::size(SpriteRows)); ++row) {
        for (const int type : SpriteRows[row].types) {
            if (type == cameraType)
                return row;
        }
    }
    return 0;
}

const char* const BoxStyle = "border: 2px solid black";

QLabel* makeLabel(QWidget* parent, const QString& name, const QRect& geometry)
{
    auto* label = new QLabel(parent);
    if (!name.isEmpty())
        label->setObjectName(name);
    label->setGeometry(geometry);
    return label;
}

QString modelShortText(const QString& model)
{
    QString text = model;
    const int type = text.indexOf(QLatin1String(" type"));
    if (type >= 0)
        text.truncate(type);
    const int modelAt = text.indexOf(QLatin1String(" model"));
    if (modelAt >= 0)
        text.truncate(modelAt);
    return text;
}

} // namespace

SyncWiringDiagram::SyncWiringDiagram()
{
    // A missing picture is not an error: the labels stay empty and the wires are drawn.
    QImage image;
    image.load(QStringLiteral(":/is_devices.png"));
    for (const SpriteRow& row : SpriteRows) {
        m_sides.append(QPixmap::fromImage(image.copy(row.side)));
        m_backs.append(QPixmap::fromImage(image.copy(row.back)));
    }
    m_nrack = QPixmap::fromImage(image.copy(NrackRect));
    if (image.load(QStringLiteral(":/is_devices_newnrack.png")))
        m_hub = QPixmap::fromImage(image).scaled(m_hubItemWidth, m_hubItemHeight,
                                                 Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

SyncWiringDiagram::CameraPixmaps SyncWiringDiagram::cameraPixmaps(int cameraType) const
{
    const int row = spriteRow(cameraType);
    return {m_sides.at(row), m_backs.at(row)};
}

int SyncWiringDiagram::connectorFamily(int cameraType)
{
    switch (cameraType) {
    case 23: case 25: case 28: case 29: case 30: case 31: case 32:
        return 1;
    case 35:
        return 2;
    case 36: case 37: case 38: case 39: case 40: case 42: case 43: case 44: case 46: case 47:
        return 3;
    default:
        return 0;
    }
}

QStringList SyncWiringDiagram::connectorNames(int cameraType)
{
    switch (connectorFamily(cameraType)) {
    case 1:
    case 3:
        return {QStringLiteral("INPUT1"), QStringLiteral("INPUT2"), QStringLiteral("OUTPUT1")};
    case 2:
        return {QStringLiteral("SYNC IN"), QStringLiteral("TRIGGER IN"), QStringLiteral("SYNC OUT")};
    default:
        return {QStringLiteral("SYNC IN"), QStringLiteral("TRIG TTL IN"),
                QStringLiteral("GENERAL OUT1")};
    }
}

QWidget* SyncWiringDiagram::findChildByName(const QWidget* parent, const QString& name)
{
    if (!parent)
        return nullptr;
    for (QObject* child : parent->children()) {
        if (child->objectName() == name)
            return qobject_cast<QWidget*>(child);
    }
    return nullptr;
}

int SyncWiringDiagram::widgetEdge(const QWidget* widget, Edge edge)
{
    if (!widget)
        return 0;
    const QRect g = widget->geometry();
    switch (edge) {
    case Edge::Top:
        return g.y();
    case Edge::Bottom:
        return g.y() + g.height();
    case Edge::Left:
        return g.x();
    case Edge::Right:
        return g.x() + g.width();
    case Edge::CenterX:
        return g.x() + g.width() / 2;
    case Edge::CenterY:
        return g.y() + g.height() / 2;
    }
    return 0;
}

void SyncWiringDiagram::paintWire(QPainter& painter, QPoint from, QPoint to, bool arrow)
{
    painter.drawLine(from, to);
    if (!arrow)
        return;
    const double dx = to.x() - from.x();
    const double dy = to.y() - from.y();
    const double length = std::sqrt(dx * dx + dy * dy);
    if (length == 0.0)
        return;
    const double ux = dx / length;
    const double uy = dy / length;
    const double x = to.x();
    const double y = to.y();
    painter.drawLine(to, QPoint(int(x - 10 * ux - 10 * uy), int(y + 10 * ux - 10 * uy)));
    painter.drawLine(to, QPoint(int(x - 10 * ux + 10 * uy), int(y - 10 * ux - 10 * uy)));
}

QStringList SyncWiringDiagram::signalTexts(const Choices& choices, bool isMaster,
                                           bool mixedTypes, int family) const
{
    const QString polarity =
        choices.polarity != 0 ? QStringLiteral("TRIG NEG") : QStringLiteral("TRIG POS");
    const QString onCam = QStringLiteral("ON CAM POS");
    const QString onOthers = QStringLiteral("ON OTHERS POS");
    if (choices.external)
        return {choices.syncIn != 0 && family != 2 ? onOthers : onCam, polarity};
    if (isMaster)
        return {QStringLiteral("OFF"), polarity, QStringLiteral("SYNC POS")};
    return {mixedTypes && family != 2 ? onOthers : onCam, polarity, QStringLiteral("SYNC POS")};
}

void SyncWiringDiagram::buildDistributorPanel(QWidget* diagram, const Choices& choices, int x,
                                              int y) const
{
    const bool hub = choices.distributor == 2;
    auto* panel = new QWidget(diagram);
    panel->setObjectName(QStringLiteral("nrackPanel"));
    panel->setGeometry(x, y, hub ? m_hubPanelWidth : m_nrackPanelWidth,
                       hub ? m_hubPanelHeight : m_nrackPanelHeight);

    QLabel* last = nullptr;
    if (hub) {
        last = makeLabel(panel, QStringLiteral("nrackItem"),
                         QRect((m_hubPanelWidth - m_hubItemWidth) / 2,
                               (m_hubPanelHeight - m_hubItemHeight) / 2 + 10, m_hubItemWidth,
                               m_hubItemHeight));
        last->setPixmap(m_hub);
    } else {
        for (int i = 0; i < 3; ++i) {
            last = makeLabel(panel, QStringLiteral("nrackItem%1").arg(i),
                             QRect((m_nrackPanelWidth - m_nrackItemWidth) / 2,
                                   10 + i * ((m_nrackPanelHeight - 50) / 3), m_nrackItemWidth,
                                   m_nrackItemHeight));
            last->setPixmap(m_nrack);
        }
    }
    panel->setStyleSheet(QStringLiteral(
        "QWidget#nrackPanel{border-style: dotted;border-width: 2px;border-radius: 10px;"
        "border-color: black;font: bold 14px;min-width: 10em;padding: 6px; }"));
    QLabel* caption = makeLabel(panel, QString(),
                                QRect(5, widgetEdge(last, Edge::Bottom) + 5, panel->width() - 10,
                                      34));
    caption->setText(QStringLiteral("Lumerra %1 Network").arg(choices.distributorName));
    caption->setAlignment(Qt::AlignCenter);
}

void SyncWiringDiagram::build(SyncWiringDiagramWidget* widget, const Choices& choices) const
{
    QLabel* trigger = makeLabel(
        widget, QStringLiteral("eTriggerLabel"),
        QRect(m_busGap + (m_cameraPictureWidth + 15) * 2 + m_leftMargin + m_portLabelWidth, 0,
              m_signalLabelWidth, m_signalLabelHeight));
    trigger->setText(choices.translate(QStringLiteral("External trigger")));
    trigger->setStyleSheet(QLatin1String(BoxStyle));
    trigger->setAlignment(Qt::AlignCenter);
    const int y0 = widgetEdge(trigger, Edge::Bottom) + 50;

    if (choices.external
        && !(choices.distributor == 2 && choices.connectedInternalHubs() >= 1)) {
        QLabel* sync = makeLabel(widget, QStringLiteral("syncLabel"),
                                 trigger->geometry().translated(trigger->width() + 10, 0));
        sync->setText(choices.translate(QStringLiteral("Sync signal")));
        sync->setStyleSheet(QLatin1String(BoxStyle));
        sync->setAlignment(Qt::AlignCenter);
    }
    if (choices.distributor == 1 || choices.distributor == 2)
        buildDistributorPanel(widget, choices, trigger->x(), y0);

    widget->resize(300, 90 * choices.cameras.size());

    bool mixedTypes = false;
    int y = y0;
    for (int i = 0; i < choices.cameras.size(); ++i) {
        DOC_Camera* camera = choices.cameras.at(i);
        const int type = camera->cameraType();
        const CameraPixmaps pictures = cameraPixmaps(type);
        QLabel* side = makeLabel(widget, sideName(i),
                                 QRect(m_leftMargin, y, m_cameraPictureWidth, m_cameraPictureHeight));
        side->setPixmap(pictures.side);

        const bool isMaster = !choices.external && choices.master == cameraAddress(camera);
        if (isMaster) {
            QLabel* badge = makeLabel(widget, QStringLiteral("masterLabel"),
                                      QRect(side->x(), side->y(), side->width() / 2,
                                            side->height() / 2));
            badge->setText(QStringLiteral("master"));
            badge->setStyleSheet(QStringLiteral(
                "QWidget#masterLabel{background-color: red;color:white ;border-radius: 10px;}"));
            badge->setAlignment(Qt::AlignCenter);
            for (DOC_Camera* other : choices.cameras)
                mixedTypes = mixedTypes || other->cameraType() != type;
        }

        if (choices.distributor == 0) {
            QLabel* back = makeLabel(widget, backName(i),
                                     side->geometry().translated(side->width(), 0));
            back->setPixmap(pictures.back);
            const int family = connectorFamily(type);
            const QStringList names = connectorNames(type);
            const QStringList texts = signalTexts(choices, isMaster, mixedTypes, family);
            for (int j = 0; j < texts.size(); ++j) {
                QLabel* port = makeLabel(widget, portName(i, j),
                                         QRect(widgetEdge(back, Edge::Right),
                                               y + j * m_portLabelHeight, m_portLabelWidth,
                                               m_portLabelHeight));
                port->setText(names.at(j) + QLatin1Char('\n') + texts.at(j));
                port->setStyleSheet(QLatin1String(BoxStyle));
            }
        }

        QLabel* name = makeLabel(widget, QString(),
                                 QRect(m_leftMargin, widgetEdge(side, Edge::Bottom),
                                       m_nameLabelWidth, m_nameLabelHeight));
        name->setText(camera->cameraName(true) + QLatin1Char('\n') + camera->ipAddress(true)
                      + QLatin1Char('\n') + modelShortText(camera->modelText(true)));
        name->setAlignment(Qt::AlignHCenter | Qt::AlignTop | Qt::AlignVCenter);
        name->setFont(QFont(QStringLiteral("Arial"), 8));
        y = widgetEdge(name, Edge::Bottom);
    }
    widget->resize(300, y);
    widget->setMinimumSize(300, y + 30);
}

void SyncWiringDiagram::paint(SyncWiringDiagramWidget* widget, const Choices& choices) const
{
    // One pass over the children instead of a search per wire end.
    QHash<QString, QWidget*> byName;
    for (QObject* child : widget->children()) {
        if (!child->objectName().isEmpty() && !byName.contains(child->objectName()))
            byName.insert(child->objectName(), qobject_cast<QWidget*>(child));
    }
    const auto at = [&byName](const QString& name) { return byName.value(name); };
    using E = Edge;
    const auto edge = [](const QWidget* w, E e) { return widgetEdge(w, e); };

    QPainter painter(widget);
    QPen pen(Qt::green, 3.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    painter.setPen(pen);
    const auto setColour = [&painter, &pen](Qt::GlobalColor colour) {
        pen.setColor(colour);
        painter.setPen(pen);
    };

    const QWidget* trigger = at(QStringLiteral("eTriggerLabel"));
    const QWidget* sync = at(QStringLiteral("syncLabel"));
    const int n = choices.cameras.size();

    if (choices.distributor == 0) {
        const QWidget* lastTrigger = at(portName(n - 1, 1));
        if (trigger && lastTrigger) {
            const int busX = edge(trigger, E::CenterX);
            paintWire(painter, QPoint(busX, edge(trigger, E::Bottom)),
                      QPoint(busX, edge(lastTrigger, E::CenterY)), false);
            for (int i = 0; i < n; ++i) {
                const QWidget* port = at(portName(i, 1));
                paintWire(painter, QPoint(busX, edge(port, E::CenterY)),
                          QPoint(edge(port, E::Right), edge(port, E::CenterY)), true);
            }
        }
        setColour(Qt::red);
        if (!choices.external) {
            for (int i = 0; i + 1 < n; ++i) {
                const QWidget* a = at(portName(i, 2));
                const QWidget* b = at(portName(i + 1, 0));
                const QPoint out(edge(a, E::Right), edge(a, E::CenterY));
                const QPoint turnOut(out.x() + 50, out.y());
                const QPoint in(edge(b, E::Right), edge(b, E::CenterY));
                const QPoint turnIn(in.x() + 50, in.y());
                paintWire(painter, out, turnOut, false);
                paintWire(painter, turnOut, turnIn, false);
                paintWire(painter, turnIn, in, true);
            }
        } else if (sync) {
            const int busX = edge(sync, E::CenterX);
            paintWire(painter, QPoint(busX, edge(sync, E::Bottom)),
                      QPoint(busX, edge(at(portName(n - 1, 0)), E::CenterY)), false);
            for (int i = 0; i < n; ++i) {
                const QWidget* port = at(portName(i, 0));
                paintWire(painter, QPoint(busX, edge(port, E::CenterY)),
                          QPoint(edge(port, E::Right), edge(port, E::CenterY)), true);
            }
        }
        return;
    }

    const QWidget* panel = at(QStringLiteral("nrackPanel"));
    paintWire(painter, QPoint(edge(trigger, E::CenterX), edge(trigger, E::Bottom)),
              QPoint(edge(trigger, E::CenterX), edge(panel, E::Top)), false);
    if (choices.external
        && (choices.distributor == 1 || choices.connectedInternalHubs() < 1)) {
        setColour(Qt::red);
        paintWire(painter, QPoint(edge(sync, E::CenterX), edge(sync, E::Bottom)),
                  QPoint(edge(sync, E::CenterX), edge(panel, E::Top)), false);
    }
    setColour(Qt::blue);
    const QWidget* first = at(sideName(0));
    const QWidget* last = at(sideName(n - 1));
    const int mid = (edge(panel, E::Left) - edge(first, E::Right)) / 2;
    const int busX = edge(first, E::Right) + mid;
    paintWire(painter, QPoint(edge(panel, E::Left), edge(panel, E::CenterY)),
              QPoint(busX, edge(panel, E::CenterY)), false);
    paintWire(painter, QPoint(busX, edge(first, E::CenterY)),
              QPoint(busX, edge(last, E::CenterY)), false);
    for (int i = 0; i < n; ++i) {
        const QWidget* side = at(sideName(i));
        paintWire(painter, QPoint(busX, edge(side, E::CenterY)),
                  QPoint(edge(side, E::Right), edge(side, E::CenterY)), true);
    }
}
