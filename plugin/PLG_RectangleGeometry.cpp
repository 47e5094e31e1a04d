#include "plugin/PLG_RectangleGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

// Beyond this a derived length is no length: it only has to end outside every image.
const double LengthLimit = 1e9;

bool movesTop(int zone)
{
    return zone == PLG_RectangleGeometry::TopEdge || zone == PLG_RectangleGeometry::TopLeftCorner
        || zone == PLG_RectangleGeometry::TopRightCorner;
}

bool movesBottom(int zone)
{
    return zone == PLG_RectangleGeometry::BottomEdge
        || zone == PLG_RectangleGeometry::BottomLeftCorner
        || zone == PLG_RectangleGeometry::BottomRightCorner;
}

bool movesLeft(int zone)
{
    return zone == PLG_RectangleGeometry::LeftEdge || zone == PLG_RectangleGeometry::TopLeftCorner
        || zone == PLG_RectangleGeometry::BottomLeftCorner;
}

bool movesRight(int zone)
{
    return zone == PLG_RectangleGeometry::RightEdge || zone == PLG_RectangleGeometry::TopRightCorner
        || zone == PLG_RectangleGeometry::BottomRightCorner;
}

bool near(int a, int b, int tolerance)
{
    return std::llabs(static_cast<long long>(a) - b) <= tolerance;
}

// Half away from zero, so that a length derived from the aspect doesn't lean one way.
int rounded(double value)
{
    value = std::clamp(value, -LengthLimit, LengthLimit);
    return static_cast<int>(std::lround(value));
}

// A derived length of 0 would lose the rectangle.
int derivedLength(double value)
{
    return std::max(1, rounded(value));
}

// The nearest multiple of step, a half rounding up.
int snapped(int value, int step)
{
    const long long shifted = static_cast<long long>(value) + step / 2;
    const long long quotient = shifted >= 0 ? shifted / step : -((-shifted + step - 1) / step);
    return static_cast<int>(quotient * step);
}

// How much of length above minimum lies beyond the last whole step; never all of it.
int excessOverSteps(int length, int minimum, int step)
{
    const int over = length - minimum;
    if (over <= 0)
        return 0;
    return std::min(over % step, length - 1);
}

void applyMaxSize(QRect& rect, int zone, const QRect& before, const QSize& maxSize)
{
    if (rect.width() > maxSize.width()) {
        if (movesLeft(zone)) {
            rect.setRight(before.right());
            rect.setLeft(rect.right() - maxSize.width() + 1);
        } else if (movesRight(zone)) {
            rect.setLeft(before.left());
            rect.setRight(rect.left() + maxSize.width() - 1);
        } else {
            rect.setRight(rect.left() + maxSize.width() - 1);
        }
    }
    if (rect.height() > maxSize.height()) {
        if (movesTop(zone)) {
            rect.setBottom(before.bottom());
            rect.setTop(rect.bottom() - maxSize.height() + 1);
        } else if (movesBottom(zone)) {
            rect.setTop(before.top());
            rect.setBottom(rect.top() + maxSize.height() - 1);
        } else {
            rect.setBottom(rect.top() + maxSize.height() - 1);
        }
    }
}

void applyAspect(QRect& rect, int zone, double aspect, const QSize& image)
{
    using G = PLG_RectangleGeometry;
    switch (zone) {
    case G::TopEdge:
    case G::TopRightCorner:
    case G::BottomEdge:
    case G::BottomRightCorner:
        // The height was dragged: the width follows to the right.
        rect.setRight(rect.left() + derivedLength(rect.height() / aspect) - 1);
        if (rect.right() > image.width() - 1) {
            rect.setRight(image.width() - 1);
            const int height = derivedLength(rect.width() * aspect);
            if (zone == G::TopEdge || zone == G::TopRightCorner)
                rect.setTop(rect.bottom() - height + 1);
            else
                rect.setBottom(rect.top() + height - 1);
        }
        break;
    case G::LeftEdge:
    case G::BottomLeftCorner:
    case G::RightEdge:
        rect.setBottom(rect.top() + derivedLength(rect.width() * aspect) - 1);
        if (rect.bottom() > image.height() - 1) {
            rect.setBottom(image.height() - 1);
            const int width = derivedLength(rect.height() / aspect);
            if (zone == G::RightEdge)
                rect.setRight(rect.left() + width - 1);
            else
                rect.setLeft(rect.right() - width + 1);
        }
        break;
    case G::TopLeftCorner:
        rect.setTop(rect.bottom() - derivedLength(rect.width() * aspect) + 1);
        if (rect.top() < 0) {
            rect.setTop(0);
            rect.setLeft(rect.right() - derivedLength(rect.height() / aspect) + 1);
        }
        break;
    default:
        break;
    }
}

void applySizeGrid(QRect& rect, int zone, const QSize& step, const QSize& minSize)
{
    if (step.height() >= 2) {
        const int excess = excessOverSteps(rect.height(), minSize.height(), step.height());
        if (movesTop(zone))
            rect.setTop(rect.top() + excess);
        else if (movesBottom(zone))
            rect.setBottom(rect.bottom() - excess);
    }
    if (step.width() >= 2) {
        const int excess = excessOverSteps(rect.width(), minSize.width(), step.width());
        if (movesLeft(zone))
            rect.setLeft(rect.left() + excess);
        else if (movesRight(zone))
            rect.setRight(rect.right() - excess);
    }
}

} // namespace

int PLG_RectangleGeometry::tolerance(double zoom)
{
    if (!(zoom > 0))
        return 5;
    return static_cast<int>(std::min(5.0 / zoom, LengthLimit));
}

int PLG_RectangleGeometry::hitTest(const QPoint& point, const QRect& rect, int tolerance)
{
    const int x = point.x();
    const int y = point.y();
    int x1, y1, x2, y2;
    rect.getCoords(&x1, &y1, &x2, &y2);
    const bool nearTop = near(y, y1, tolerance);
    const bool nearBottom = near(y, y2, tolerance);
    const bool nearLeft = near(x, x1, tolerance);
    const bool nearRight = near(x, x2, tolerance);
    if (nearTop && nearLeft)
        return TopLeftCorner;
    if (nearTop && nearRight)
        return TopRightCorner;
    if (nearBottom && nearLeft)
        return BottomLeftCorner;
    if (nearBottom && nearRight)
        return BottomRightCorner;
    const long long t = tolerance;
    const bool acrossX = x >= x1 - t && x <= x2 + t;
    const bool acrossY = y >= y1 - t && y <= y2 + t;
    if (nearTop && acrossX)
        return TopEdge;
    if (nearBottom && acrossX)
        return BottomEdge;
    if (nearLeft && acrossY)
        return LeftEdge;
    if (nearRight && acrossY)
        return RightEdge;
    if (x > x1 && x < x2 && y > y1 && y < y2)
        return Inside;
    return Outside;
}

PLG_RectangleConstraints PLG_RectangleGeometry::scaled(
    PLG_RectangleConstraints constraints, int binningExponent, int scaleFactor, bool rotatedQuarter)
{
    // Beyond these a step would outgrow any image and overflow on the way.
    const int exponent = std::clamp(binningExponent, 0, 8);
    const int scale = std::clamp(scaleFactor, 1, 256);
    const double factor = static_cast<double>(1 << exponent) * scale;
    constraints.positionStep *= factor;
    constraints.sizeStep *= factor;
    constraints.maxSize *= factor;
    constraints.minSize *= factor;
    if (rotatedQuarter) {
        constraints.positionStep
            = QPoint(constraints.positionStep.y(), constraints.positionStep.x());
        constraints.sizeStep.transpose();
        constraints.maxSize.transpose();
        constraints.minSize.transpose();
    }
    return constraints;
}

double PLG_RectangleGeometry::aspect(const PLG_RectangleConstraints& constraints, const QRect& rect)
{
    if (!constraints.fixAspect)
        return 0.0;
    const QSize source = constraints.originalAspect ? constraints.image : rect.size();
    if (source.width() <= 0 || source.height() <= 0)
        return 0.0;
    return static_cast<double>(source.height()) / source.width();
}

QRect PLG_RectangleGeometry::dragged(const QRect& current, int zone, const QRect& downRect,
    const QPoint& downPos, const QPoint& pos, double aspect,
    const PLG_RectangleConstraints& constraints)
{
    QRect rect = current;
    if (zone == Inside) {
        rect = downRect.translated(pos - downPos);
    } else if (zone >= TopEdge && zone <= BottomRightCorner) {
        const int lockX = constraints.lockImage().width() - 1;
        const int lockY = constraints.lockImage().height() - 1;
        QRect moved = current;
        if (movesTop(zone)) {
            moved.setTop(pos.y());
            if (constraints.centerY)
                moved.setBottom(lockY - pos.y());
        } else if (movesBottom(zone)) {
            moved.setBottom(pos.y());
            if (constraints.centerY)
                moved.setTop(lockY - pos.y());
        }
        if (movesLeft(zone)) {
            moved.setLeft(pos.x());
            if (constraints.centerX)
                moved.setRight(lockX - pos.x());
        } else if (movesRight(zone)) {
            moved.setRight(pos.x());
            if (constraints.centerX)
                moved.setLeft(lockX - pos.x());
        }
        // An edge stops short of the minimum size; a corner moves only when both of its may.
        const bool tallEnough = !(movesTop(zone) || movesBottom(zone))
            || moved.top() < moved.bottom() - constraints.minSize.height();
        const bool wideEnough = !(movesLeft(zone) || movesRight(zone))
            || moved.left() < moved.right() - constraints.minSize.width();
        if (tallEnough && wideEnough)
            rect = moved;
    }
    return constrained(rect, zone, aspect, current, constraints);
}

QRect PLG_RectangleGeometry::confined(QRect rect, const PLG_RectangleConstraints& constraints)
{
    const QSize& image = constraints.image;
    rect = rect.normalized();
    int maxWidth = image.width();
    int maxHeight = image.height();
    if (constraints.hasMaxSize()) {
        maxWidth = std::min(maxWidth, constraints.maxSize.width());
        maxHeight = std::min(maxHeight, constraints.maxSize.height());
    }
    if (rect.width() > maxWidth)
        rect.setWidth(maxWidth);
    if (rect.height() > maxHeight)
        rect.setHeight(maxHeight);
    if (rect.left() < 0)
        rect.moveLeft(0);
    if (rect.right() > image.width() - 1)
        rect.moveRight(image.width() - 1);
    if (rect.top() < 0)
        rect.moveTop(0);
    if (rect.bottom() > image.height() - 1)
        rect.moveBottom(image.height() - 1);
    return rect;
}

QRect PLG_RectangleGeometry::constrained(QRect rect, int zone, double aspect, const QRect& before,
    const PLG_RectangleConstraints& constraints)
{
    const QSize& image = constraints.image;
    if (constraints.hasMaxSize())
        applyMaxSize(rect, zone, before, constraints.maxSize);
    rect = confined(rect, constraints);

    if (constraints.fixAspect && aspect > 0) {
        applyAspect(rect, zone, aspect, image);
        rect = confined(rect, constraints);
    }

    const QPoint& positionStep = constraints.positionStep;
    if (zone == Inside && (positionStep.x() > 1 || positionStep.y() > 1)) {
        if (positionStep.x() > 1)
            rect.moveLeft(snapped(rect.left(), positionStep.x()));
        if (positionStep.y() > 1)
            rect.moveTop(snapped(rect.top(), positionStep.y()));
        rect = confined(rect, constraints);
    }

    if (constraints.sizeStep.width() >= 2 || constraints.sizeStep.height() >= 2) {
        applySizeGrid(rect, zone, constraints.sizeStep, constraints.minSize);
        rect = confined(rect, constraints);
    }

    if (constraints.centerX || constraints.centerY) {
        const QSize whole = constraints.lockImage();
        if (constraints.centerX)
            rect.moveLeft((whole.width() - rect.width()) / 2);
        if (constraints.centerY)
            rect.moveTop((whole.height() - rect.height()) / 2);
        rect = confined(rect, constraints);
    }
    return rect;
}

int PLG_RectangleGeometry::translatedKey(
    int key, int rotation, bool mirroredHorizontally, bool mirroredVertically)
{
    // Each quarter turn takes an arrow one place along this cycle.
    static const int turn[] = { Qt::Key_Left, Qt::Key_Down, Qt::Key_Right, Qt::Key_Up };
    const int* arrow = std::find(std::begin(turn), std::end(turn), key);
    if (arrow == std::end(turn))
        return key;
    rotation = ((rotation % 360) + 360) % 360;
    const int quarters = rotation % 90 == 0 ? rotation / 90 : 0;
    key = turn[(arrow - std::begin(turn) + quarters) % 4];

    const bool quarterTurn = quarters % 2 == 1;
    const auto swap = [&key](int a, int b) {
        if (key == a)
            key = b;
        else if (key == b)
            key = a;
    };
    if (mirroredHorizontally) {
        if (quarterTurn)
            swap(Qt::Key_Up, Qt::Key_Down);
        else
            swap(Qt::Key_Left, Qt::Key_Right);
    }
    if (mirroredVertically) {
        if (quarterTurn)
            swap(Qt::Key_Left, Qt::Key_Right);
        else
            swap(Qt::Key_Up, Qt::Key_Down);
    }
    return key;
}

std::optional<QRect> PLG_RectangleGeometry::keyed(const QRect& current, int key, bool shift,
    bool control, double aspect, const PLG_RectangleConstraints& constraints)
{
    // The opposite edge of a centre lock mirrors about the whole image; the border is the
    // document image's.
    const int lockX = constraints.lockImage().width() - 1;
    const int lockY = constraints.lockImage().height() - 1;
    const int lastX = constraints.image.width() - 1;
    const int lastY = constraints.image.height() - 1;
    QRect rect = current;
    int zone = Outside;
    if (shift) {
        // With a centre lock both edges move, so each goes half the step.
        const int stepX = constraints.centerX ? std::max(1, constraints.sizeStep.width() / 2)
                                              : constraints.sizeStep.width();
        const int stepY = constraints.centerY ? std::max(1, constraints.sizeStep.height() / 2)
                                              : constraints.sizeStep.height();
        const int outward = control ? -1 : 1;
        switch (key) {
        case Qt::Key_Left:
            zone = LeftEdge;
            rect.setLeft(rect.left() - outward * stepX);
            if (constraints.centerX)
                rect.setRight(lockX - rect.left());
            break;
        case Qt::Key_Right:
            zone = RightEdge;
            rect.setRight(rect.right() + outward * stepX);
            if (constraints.centerX)
                rect.setLeft(lockX - rect.right());
            break;
        case Qt::Key_Up:
            zone = TopEdge;
            rect.setTop(rect.top() - outward * stepY);
            if (constraints.centerY)
                rect.setBottom(lockY - rect.top());
            break;
        case Qt::Key_Down:
            zone = BottomEdge;
            rect.setBottom(rect.bottom() + outward * stepY);
            if (constraints.centerY)
                rect.setTop(lockY - rect.bottom());
            break;
        default:
            return std::nullopt;
        }
        const bool insideImage = rect.left() >= 0 && rect.top() >= 0 && rect.right() <= lastX
            && rect.bottom() <= lastY;
        const bool bigEnough = rect.width() >= std::max(1, constraints.minSize.width())
            && rect.height() >= std::max(1, constraints.minSize.height());
        if (!insideImage || !bigEnough)
            return std::nullopt;
    } else {
        const QPoint& step = constraints.positionStep;
        switch (key) {
        case Qt::Key_Left:
            rect.translate(-step.x(), 0);
            break;
        case Qt::Key_Right:
            rect.translate(step.x(), 0);
            break;
        case Qt::Key_Up:
            rect.translate(0, -step.y());
            break;
        case Qt::Key_Down:
            rect.translate(0, step.y());
            break;
        default:
            return std::nullopt;
        }
    }
    return constrained(rect, zone, aspect, current, constraints);
}

std::optional<Qt::CursorShape> PLG_RectangleGeometry::cursorShape(
    int zone, bool rotatedQuarter, bool mirroredHorizontally, bool mirroredVertically)
{
    // Each of the three flips the diagonals once.
    const bool flipped = (rotatedQuarter != mirroredHorizontally) != mirroredVertically;
    switch (zone) {
    case TopEdge:
    case BottomEdge:
        return rotatedQuarter ? Qt::SizeHorCursor : Qt::SizeVerCursor;
    case LeftEdge:
    case RightEdge:
        return rotatedQuarter ? Qt::SizeVerCursor : Qt::SizeHorCursor;
    case TopLeftCorner:
    case BottomRightCorner:
        return flipped ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
    case TopRightCorner:
    case BottomLeftCorner:
        return flipped ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    case Inside:
        return Qt::SizeAllCursor;
    default:
        return std::nullopt;
    }
}

QVariantMap PLG_RectangleGeometry::parameters(const QSize& imageSize, bool rotatedQuarter,
    const QRect& rect, bool fixAspect, bool originalAspect)
{
    const QSize image = rotatedQuarter ? imageSize.transposed() : imageSize;
    const int width = image.width();
    const int height = image.height();
    int widthMax = width - rect.x();
    int heightMax = height - rect.y();
    if (fixAspect) {
        const QSize source = originalAspect ? image : rect.size();
        if (source.width() > 0 && source.height() > 0) {
            const double ratio = static_cast<double>(source.height()) / source.width();
            if (widthMax * ratio > heightMax)
                widthMax = static_cast<int>(heightMax / ratio);
            else
                heightMax = static_cast<int>(widthMax * ratio);
        }
    }
    QVariantMap map;
    map.insert(QStringLiteral("Width"), rect.width());
    map.insert(QStringLiteral("WidthMin"), 1);
    map.insert(QStringLiteral("WidthMax"), widthMax);
    map.insert(QStringLiteral("WidthStep"), 1);
    map.insert(QStringLiteral("Height"), rect.height());
    map.insert(QStringLiteral("HeightMin"), 1);
    map.insert(QStringLiteral("HeightMax"), heightMax);
    map.insert(QStringLiteral("HeightStep"), 1);
    map.insert(QStringLiteral("PosX"), rect.x());
    map.insert(QStringLiteral("PosXMin"), 0);
    map.insert(QStringLiteral("PosXMax"), width - rect.width());
    map.insert(QStringLiteral("PosXStep"), 1);
    map.insert(QStringLiteral("PosY"), rect.y());
    map.insert(QStringLiteral("PosYMin"), 0);
    map.insert(QStringLiteral("PosYMax"), height - rect.height());
    map.insert(QStringLiteral("PosYStep"), 1);
    map.insert(QStringLiteral("FixAspect"), fixAspect);
    map.insert(QStringLiteral("OriginalAspect"), originalAspect);
    map.insert(QStringLiteral("CurrentWidth"), width);
    map.insert(QStringLiteral("CurrentHeight"), height);
    return map;
}
