// Draws the host's device pictures, which the plug-in's wiring diagram cuts and scales:
// is_devices.png (camera side views, back panels, the distributor box, each in its own
// rectangle of a transparent sprite) and is_devices_newnrack.png (the network hub).
// Usage: draw_devices OUTPUT-DIRECTORY

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

struct SideStyle
{
    QColor body;
    QColor accent;
    int bodyWidth;
    int bodyHeight;
    int lensLength;
    int lensDiameter;
    bool handle;
    int fins;
    bool rounded;
};

struct BackStyle
{
    QColor panel;
    QStringList labels;
    int columns;
};

QLinearGradient verticalShade(const QRectF& rect, const QColor& colour)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0.0, colour.lighter(135));
    gradient.setColorAt(0.5, colour);
    gradient.setColorAt(1.0, colour.darker(140));
    return gradient;
}

// A camera seen from its left side: the lens points left, the back with its sockets faces
// right, where the diagram's wires arrive.
void drawSide(QPainter& p, const QRect& cell, const SideStyle& s)
{
    p.save();
    p.setClipRect(cell);
    const qreal midY = cell.center().y() + (s.handle ? 6 : 0);
    const QRectF body(
        cell.right() - 3 - s.bodyWidth, midY - s.bodyHeight / 2.0, s.bodyWidth, s.bodyHeight);
    p.setPen(QPen(s.body.darker(200), 1.2));
    p.setBrush(verticalShade(body, s.body));
    p.drawRoundedRect(body, s.rounded ? 8 : 3, s.rounded ? 8 : 3);

    // Lens: mount ring, barrel, focus ring, front element.
    const qreal lensRight = body.left();
    const QRectF mount(lensRight - 5, midY - s.lensDiameter / 2.0 - 4, 5, s.lensDiameter + 8);
    const QRectF barrel(
        mount.left() - s.lensLength, midY - s.lensDiameter / 2.0, s.lensLength, s.lensDiameter);
    p.setBrush(verticalShade(mount, QColor(90, 90, 95)));
    p.drawRect(mount);
    p.setBrush(verticalShade(barrel, QColor(40, 40, 44)));
    p.drawRect(barrel);
    const QRectF focusRing(barrel.left() + barrel.width() * 0.35, barrel.top() - 2,
        barrel.width() * 0.3, barrel.height() + 4);
    p.setBrush(verticalShade(focusRing, QColor(70, 70, 76)));
    p.drawRect(focusRing);
    p.setPen(QPen(QColor(150, 150, 150), 0.8));
    for (qreal x = focusRing.left() + 2; x < focusRing.right() - 1; x += 2.5)
        p.drawLine(QPointF(x, focusRing.top() + 1), QPointF(x, focusRing.bottom() - 1));
    p.setPen(QPen(QColor(20, 20, 20), 1));
    p.setBrush(QColor(70, 110, 170));
    p.drawEllipse(QRectF(barrel.left() - 3, barrel.top() + 1, 6, barrel.height() - 2));

    if (s.handle) {
        p.setPen(QPen(s.body.darker(220), 1.2));
        p.setBrush(verticalShade(QRectF(0, body.top() - 14, 1, 10), QColor(55, 55, 60)));
        const qreal left = body.left() + s.bodyWidth * 0.2;
        const qreal right = body.right() - s.bodyWidth * 0.15;
        p.drawRect(QRectF(left, body.top() - 6, 4, 6));
        p.drawRect(QRectF(right - 4, body.top() - 6, 4, 6));
        p.drawRoundedRect(QRectF(left - 2, body.top() - 12, right - left + 4, 6), 3, 3);
    }

    // Cooling fins at the rear, an accent stripe and a status lamp make the models tell apart.
    p.setPen(QPen(s.body.darker(170), 1.4));
    for (int i = 0; i < s.fins; ++i) {
        const qreal x = body.right() - 5 - i * 4;
        p.drawLine(QPointF(x, body.top() + 5), QPointF(x, body.bottom() - 5));
    }
    p.setPen(Qt::NoPen);
    p.setBrush(s.accent);
    p.drawRect(QRectF(body.left() + 3, body.bottom() - 9, s.bodyWidth * 0.45, 3));
    p.setBrush(QColor(60, 220, 90));
    p.drawEllipse(QRectF(body.left() + 5, body.top() + 5, 4, 4));

    // A tripod foot under the body.
    p.setBrush(QColor(60, 60, 64));
    p.drawRect(QRectF(body.center().x() - 8, body.bottom(), 16, 3));
    p.restore();
}

// A round coaxial socket: outer ring, insulator, centre pin.
void drawSocket(QPainter& p, const QPointF& centre, qreal radius)
{
    p.setPen(QPen(QColor(60, 60, 60), 1));
    p.setBrush(QColor(200, 200, 205));
    p.drawEllipse(centre, radius, radius);
    p.setBrush(QColor(245, 240, 220));
    p.drawEllipse(centre, radius * 0.6, radius * 0.6);
    p.setBrush(QColor(190, 150, 60));
    p.drawEllipse(centre, radius * 0.2, radius * 0.2);
}

// A camera's rear panel: signal sockets with their names, a network port and the power input.
void drawBack(QPainter& p, const QRect& cell, const BackStyle& s)
{
    p.save();
    p.setClipRect(cell);
    const QRectF panel = QRectF(cell).adjusted(3, 3, -3, -3);
    p.setPen(QPen(s.panel.darker(220), 1.5));
    p.setBrush(verticalShade(panel, s.panel));
    p.drawRoundedRect(panel, 5, 5);
    // Screws in the corners.
    p.setBrush(QColor(170, 170, 175));
    p.setPen(QPen(QColor(90, 90, 90), 0.8));
    for (const QPointF& corner :
        { panel.topLeft() + QPointF(5, 5), panel.topRight() + QPointF(-5, 5),
            panel.bottomLeft() + QPointF(5, -5), panel.bottomRight() + QPointF(-5, -5) })
        p.drawEllipse(corner, 1.8, 1.8);

    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(6);
    p.setFont(font);
    const int rows = (s.labels.size() + s.columns - 1) / s.columns;
    const qreal pitchX = (panel.width() - 8) / s.columns;
    const qreal pitchY = 19;
    for (int i = 0; i < s.labels.size(); ++i) {
        const int column = i % s.columns;
        const int row = i / s.columns;
        const QPointF centre(
            panel.left() + 4 + pitchX * (column + 0.5), panel.top() + 11 + row * pitchY);
        drawSocket(p, centre, 5.5);
        p.setPen(Qt::white);
        p.drawText(QRectF(centre.x() - pitchX / 2, centre.y() + 5, pitchX, 8), Qt::AlignCenter,
            s.labels.at(i));
    }
    // Network port and power input below the sockets.
    const qreal bottomY = panel.top() + 11 + rows * pitchY - 4;
    const QRectF lan(panel.left() + 8, bottomY, 14, 10);
    p.setPen(QPen(QColor(40, 40, 40), 1));
    p.setBrush(QColor(30, 30, 30));
    p.drawRect(lan);
    p.setBrush(QColor(230, 180, 40));
    p.drawRect(QRectF(lan.left() + 1, lan.top() + 1, 3, 2));
    p.setBrush(QColor(60, 220, 90));
    p.drawRect(QRectF(lan.right() - 4, lan.top() + 1, 3, 2));
    const QPointF power(panel.right() - 13, bottomY + 5);
    p.setBrush(QColor(25, 25, 25));
    p.drawEllipse(power, 6, 6);
    p.setBrush(QColor(200, 200, 200));
    p.drawEllipse(power + QPointF(-2, 0), 1, 1);
    p.drawEllipse(power + QPointF(2, 0), 1, 1);
    p.restore();
}

// The signal distributor: a rack box with ears and a row of camera sockets.
void drawRack(QPainter& p, const QRect& cell)
{
    p.save();
    p.setClipRect(cell);
    const QRectF box = QRectF(cell).adjusted(8, 14, -8, -14);
    p.setPen(QPen(QColor(40, 40, 45), 1.2));
    p.setBrush(verticalShade(QRectF(cell).adjusted(1, 16, -1, -16), QColor(150, 150, 155)));
    p.drawRect(QRectF(cell).adjusted(1, 16, -1, -16));
    p.setBrush(QColor(240, 240, 240));
    p.drawEllipse(QPointF(cell.left() + 4.5, cell.center().y()), 1.8, 1.8);
    p.drawEllipse(QPointF(cell.right() - 3.5, cell.center().y()), 1.8, 1.8);
    p.setBrush(verticalShade(box, QColor(45, 50, 60)));
    p.drawRoundedRect(box, 3, 3);

    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(5);
    p.setFont(font);
    const int sockets = 5;
    const qreal pitch = (box.width() - 6) / sockets;
    for (int i = 0; i < sockets; ++i) {
        const QPointF centre(box.left() + 3 + pitch * (i + 0.5), box.top() + 13);
        drawSocket(p, centre, 5);
        p.setPen(QColor(220, 220, 220));
        p.drawText(QRectF(centre.x() - pitch / 2, centre.y() + 6, pitch, 7), Qt::AlignCenter,
            i == 0 ? QStringLiteral("IN") : QStringLiteral("CAM%1").arg(i));
    }
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(60, 220, 90));
    p.drawEllipse(QPointF(box.right() - 6, box.bottom() - 6), 2, 2);
    p.setBrush(QColor(230, 180, 40));
    p.drawEllipse(QPointF(box.right() - 13, box.bottom() - 6), 2, 2);
    p.restore();
}

QImage drawSprite()
{
    QImage image(410, 400, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);

    const QColor grey(170, 172, 178), white(225, 226, 230), black(60, 62, 68);
    const QColor blue(60, 95, 160), red(170, 50, 50), sand(190, 170, 130);
    // Side views: the colour, the body's shape and the lens make each type its own.
    drawSide(p, { 0, 0, 100, 80 }, { grey, blue, 60, 44, 22, 18, false, 3, false });
    drawSide(p, { 0, 80, 100, 80 }, { white, red, 56, 50, 26, 22, true, 0, false });
    drawSide(
        p, { 0, 160, 100, 80 }, { black, QColor(240, 200, 40), 64, 40, 20, 16, false, 5, true });
    drawSide(p, { 110, 0, 100, 80 }, { blue, white, 58, 46, 24, 20, false, 2, true });
    drawSide(p, { 110, 80, 100, 80 }, { sand, black, 52, 52, 30, 24, true, 4, false });
    drawSide(
        p, { 110, 160, 100, 80 }, { QColor(90, 130, 90), white, 62, 38, 20, 14, false, 0, false });
    drawSide(p, { 0, 240, 100, 80 }, { white, blue, 66, 48, 18, 18, true, 3, true });
    drawSide(p, { 330, 80, 75, 80 },
        { QColor(80, 80, 90), QColor(240, 120, 30), 40, 40, 16, 14, false, 2, true });
    drawSide(
        p, { 220, 160, 100, 80 }, { red.lighter(150), black, 58, 44, 24, 18, false, 4, false });
    drawSide(p, { 220, 240, 100, 80 },
        { QColor(40, 60, 90), QColor(80, 200, 230), 62, 50, 22, 22, true, 5, true });
    drawSide(p, { 0, 320, 100, 80 },
        { QColor(200, 200, 190), QColor(120, 60, 160), 60, 54, 26, 26, true, 0, true });

    // Back panels, one per connector family, the sockets named as on the cameras.
    drawBack(p, { 230, 80, 80, 80 }, { QColor(70, 72, 80), { "SYNC", "TRIG", "OUT1" }, 3 });
    drawBack(p, { 330, 0, 60, 80 }, { QColor(60, 60, 66), { "IN1", "IN2", "OUT1", "OUT2" }, 2 });
    drawBack(p, { 330, 160, 80, 80 }, { QColor(110, 40, 40), { "SYNC", "TRIG", "OUT" }, 3 });
    drawBack(p, { 330, 240, 80, 80 }, { QColor(40, 60, 90), { "IN1", "IN2", "OUT1", "OUT2" }, 2 });
    drawBack(p, { 120, 320, 80, 80 }, { QColor(90, 90, 80), { "IN1", "IN2", "OUT1" }, 3 });

    drawRack(p, { 220, 0, 100, 80 });
    return image;
}

// The network hub: a box with a row of network ports, each with its link lamp, and status lamps.
QImage drawHub()
{
    QImage image(400, 320, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);

    // Top face in perspective, then the front.
    QPainterPath top;
    top.moveTo(40, 110);
    top.lineTo(80, 60);
    top.lineTo(380, 60);
    top.lineTo(360, 110);
    top.closeSubpath();
    p.setPen(QPen(QColor(30, 35, 45), 2));
    p.setBrush(QColor(95, 105, 125));
    p.drawPath(top);
    QPainterPath side;
    side.moveTo(360, 110);
    side.lineTo(380, 60);
    side.lineTo(380, 220);
    side.lineTo(360, 270);
    side.closeSubpath();
    p.setBrush(QColor(45, 52, 66));
    p.drawPath(side);
    const QRectF front(40, 110, 320, 160);
    p.setBrush(verticalShade(front, QColor(65, 75, 95)));
    p.drawRect(front);
    // Vent slots on the top.
    p.setPen(QPen(QColor(50, 58, 72), 3, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 8; ++i)
        p.drawLine(QPointF(130 + i * 24, 75), QPointF(120 + i * 24, 97));

    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(11);
    font.setBold(true);
    p.setFont(font);
    p.setPen(QColor(230, 235, 245));
    p.drawText(
        QRectF(55, 118, 200, 18), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("SYNC NETWORK"));

    // Eight network ports, each with a link lamp.
    font.setPixelSize(9);
    font.setBold(false);
    p.setFont(font);
    for (int i = 0; i < 8; ++i) {
        const QRectF port(58 + i * 36, 180, 28, 24);
        p.setPen(QPen(QColor(160, 165, 175), 1.5));
        p.setBrush(QColor(20, 20, 24));
        p.drawRect(port);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(50, 50, 56));
        p.drawRect(QRectF(port.left() + 8, port.bottom() - 6, 12, 6));
        p.setBrush(QColor(200, 170, 60));
        for (int pin = 0; pin < 6; ++pin)
            p.drawRect(QRectF(port.left() + 4 + pin * 3.6, port.top() + 3, 2, 5));
        p.setBrush(i < 5 ? QColor(70, 230, 100) : QColor(70, 80, 70));
        p.drawEllipse(QPointF(port.center().x(), port.top() - 8), 3.5, 3.5);
        p.setPen(QColor(220, 225, 235));
        p.drawText(QRectF(port.left() - 4, port.bottom() + 3, port.width() + 8, 12),
            Qt::AlignCenter, QString::number(i + 1));
    }

    // Power, status and sync lamps at the right of the front.
    const QList<QPair<QColor, QString>> lamps { { QColor(70, 230, 100), QStringLiteral("PWR") },
        { QColor(240, 190, 40), QStringLiteral("STS") },
        { QColor(240, 70, 60), QStringLiteral("SYNC") } };
    for (int i = 0; i < lamps.size(); ++i) {
        const QPointF centre(275 + i * 28, 130);
        p.setPen(QPen(QColor(20, 20, 20), 1));
        p.setBrush(lamps.at(i).first);
        p.drawEllipse(centre, 5, 5);
        p.setPen(QColor(220, 225, 235));
        p.drawText(
            QRectF(centre.x() - 14, centre.y() + 7, 28, 12), Qt::AlignCenter, lamps.at(i).second);
    }
    // Feet.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(25, 25, 30));
    p.drawRect(QRectF(60, 270, 30, 8));
    p.drawRect(QRectF(310, 270, 30, 8));
    return image;
}

} // namespace

int main(int argc, char** argv)
{
    // Text needs a platform for its fonts; no window is ever shown.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: draw_devices OUTPUT-DIRECTORY\n");
        return 1;
    }
    const QDir directory(QString::fromLocal8Bit(argv[1]));
    if (!directory.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "draw_devices: can't create %s\n", argv[1]);
        return 1;
    }
    const QString sprite = directory.filePath(QStringLiteral("is_devices.png"));
    const QString hub = directory.filePath(QStringLiteral("is_devices_newnrack.png"));
    if (!drawSprite().save(sprite) || !drawHub().save(hub)) {
        std::fprintf(stderr, "draw_devices: can't write the pictures into %s\n", argv[1]);
        return 1;
    }
    return 0;
}
