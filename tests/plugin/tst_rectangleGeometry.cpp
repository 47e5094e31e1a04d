// The rectangle tool's arithmetic on plain values: hit test, drags, the constraint pass, keys
// under every turn and mirror, cursors, the page's figures; and a property run of random drags
// and keys that must keep the rectangle inside the image and on its grids.
#include "plugin/PLG_RectangleGeometry.h"

#include <QtTest>

#include <cmath>
#include <random>

Q_DECLARE_METATYPE(PLG_RectangleConstraints)

namespace {

using G = PLG_RectangleGeometry;

// A 200 x 100 image and the settings a row needs.
struct Limits : PLG_RectangleConstraints
{
    Limits() { image = QSize(200, 100); }
    Limits& max(int w, int h) { return maxSize = QSize(w, h), *this; }
    Limits& min(int w, int h) { return minSize = QSize(w, h), *this; }
    Limits& position(int x, int y) { return positionStep = QPoint(x, y), *this; }
    Limits& size(int w, int h) { return sizeStep = QSize(w, h), *this; }
    Limits& centre(bool x, bool y) { return centerX = x, centerY = y, *this; }
    Limits& aspect() { return fixAspect = true, *this; }
    Limits& whole(int w, int h) { return wholeImage = QSize(w, h), *this; }
};

} // namespace

class tst_RectangleGeometry : public QObject
{
    Q_OBJECT

private slots:
    void hitTest_data();
    void hitTest();
    void constrained_data();
    void constrained();
    void dragged_data();
    void dragged();
    void keyed_data();
    void keyed();
    void translatedKey_data();
    void translatedKey();
    void cursorShape_data();
    void cursorShape();
    void scaled();
    void parameters_data();
    void parameters();
    void randomDragsAndKeysKeepTheRectangle();
};

void tst_RectangleGeometry::hitTest_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("zone");
    const QRect r(10, 10, 100, 50); // edges 10, 10, 109, 59
    // clang-format off
    QTest::newRow("top-left corner") << r << 1.0 << QPoint(14, 14) << 4;
    QTest::newRow("top-right corner") << r << 1.0 << QPoint(105, 6) << 5;
    QTest::newRow("bottom-left corner") << r << 1.0 << QPoint(6, 63) << 6;
    QTest::newRow("bottom-right corner") << r << 1.0 << QPoint(109, 59) << 7;
    QTest::newRow("top edge") << r << 1.0 << QPoint(50, 12) << 0;
    QTest::newRow("bottom edge") << r << 1.0 << QPoint(50, 57) << 1;
    QTest::newRow("left edge") << r << 1.0 << QPoint(12, 30) << 2;
    QTest::newRow("right edge") << r << 1.0 << QPoint(107, 30) << 3;
    QTest::newRow("inside") << r << 1.0 << QPoint(50, 30) << 8;
    QTest::newRow("outside the tolerance") << r << 1.0 << QPoint(50, 4) << 9;
    QTest::newRow("a corner before the other edge of a thin one") << QRect(10, 10, 100, 3) << 1.0 << QPoint(10, 12) << 4;
    QTest::newRow("zoom 2 narrows the tolerance") << r << 2.0 << QPoint(50, 13) << 8;
    QTest::newRow("zoom 0.5 widens it") << r << 0.5 << QPoint(50, 1) << 0;
    QTest::newRow("zoom 5 leaves one pixel") << r << 5.0 << QPoint(50, 11) << 0;
    QTest::newRow("above zoom 5 the edge line alone") << r << 5.01 << QPoint(50, 11) << 8;
    QTest::newRow("no zoom counts as zoom 1") << r << 0.0 << QPoint(50, 5) << 0;
    // clang-format on
}

void tst_RectangleGeometry::hitTest()
{
    QFETCH(QRect, rect);
    QFETCH(double, zoom);
    QFETCH(QPoint, point);
    QFETCH(int, zone);
    QCOMPARE(G::hitTest(point, rect, G::tolerance(zoom)), zone);
}

void tst_RectangleGeometry::constrained_data()
{
    QTest::addColumn<PLG_RectangleConstraints>("limits");
    QTest::addColumn<int>("zone");
    QTest::addColumn<double>("aspect");
    QTest::addColumn<QRect>("before");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("expected");
    const QRect b(50, 10, 60, 40); // the rectangle before the change
    const PLG_RectangleConstraints none = Limits(), aspect = Limits().aspect();
    // clang-format off
    QTest::newRow("max width, left dragged: the right edge holds") << PLG_RectangleConstraints(Limits().max(70, 100)) << 2 << 0.0 << b << QRect(20, 10, 90, 40) << QRect(40, 10, 70, 40);
    QTest::newRow("max width, right dragged: the left edge holds") << PLG_RectangleConstraints(Limits().max(70, 100)) << 3 << 0.0 << b << QRect(50, 10, 100, 40) << QRect(50, 10, 70, 40);
    QTest::newRow("max height, top dragged: the bottom edge holds") << PLG_RectangleConstraints(Limits().max(200, 50)) << 0 << 0.0 << QRect(50, 40, 60, 40) << QRect(50, 5, 60, 75) << QRect(50, 30, 60, 50);
    QTest::newRow("max height in a move keeps the top") << PLG_RectangleConstraints(Limits().max(200, 50)) << 8 << 0.0 << b << QRect(10, 10, 60, 80) << QRect(10, 10, 60, 50);
    QTest::newRow("confinement moves it back inside") << none << 8 << 0.0 << b << QRect(170, 80, 60, 40) << QRect(140, 60, 60, 40);
    QTest::newRow("confinement cuts it to the image") << none << 8 << 0.0 << b << QRect(-10, -10, 300, 150) << QRect(0, 0, 200, 100);
    QTest::newRow("aspect, top dragged: the width follows") << aspect << 0 << 0.5 << b << QRect(20, 10, 60, 40) << QRect(20, 10, 80, 40);
    QTest::newRow("aspect, right dragged: the height follows") << aspect << 3 << 0.5 << b << QRect(20, 10, 60, 40) << QRect(20, 10, 60, 30);
    QTest::newRow("aspect, top-left dragged: the bottom holds") << aspect << 4 << 0.5 << b << QRect(20, 10, 60, 40) << QRect(20, 20, 60, 30);
    QTest::newRow("aspect, a half pixel rounds up") << aspect << 0 << 2.0 << b << QRect(0, 0, 10, 5) << QRect(0, 0, 3, 5);
    QTest::newRow("aspect past the right, bottom dragged: the top holds") << aspect << 1 << 0.5 << b << QRect(150, 10, 40, 40) << QRect(150, 10, 50, 25);
    QTest::newRow("aspect past the right, top-right dragged: the bottom holds") << aspect << 5 << 0.5 << b << QRect(150, 10, 40, 40) << QRect(150, 25, 50, 25);
    QTest::newRow("aspect past the bottom, left dragged: the right holds") << aspect << 2 << 0.5 << b << QRect(20, 60, 100, 30) << QRect(40, 60, 80, 40);
    QTest::newRow("aspect past the bottom, right dragged: the left holds") << aspect << 3 << 0.5 << b << QRect(20, 60, 100, 30) << QRect(20, 60, 80, 40);
    QTest::newRow("aspect past the top, top-left dragged: the right holds") << aspect << 4 << 0.5 << b << QRect(20, 10, 100, 30) << QRect(40, 0, 80, 40);
    QTest::newRow("position grid snaps a move, a half up") << PLG_RectangleConstraints(Limits().position(10, 10)) << 8 << 0.0 << b << QRect(14, 15, 20, 20) << QRect(10, 20, 20, 20);
    QTest::newRow("position grid leaves an edge drag alone") << PLG_RectangleConstraints(Limits().position(10, 10)) << 2 << 0.0 << b << QRect(14, 15, 20, 20) << QRect(14, 15, 20, 20);
    QTest::newRow("position grid gives way to the border") << PLG_RectangleConstraints(Limits().position(16, 16)) << 8 << 0.0 << b << QRect(170, 0, 30, 20) << QRect(170, 0, 30, 20);
    QTest::newRow("size grid trims the dragged right edge") << PLG_RectangleConstraints(Limits().size(10, 10)) << 3 << 0.0 << b << QRect(20, 10, 57, 40) << QRect(20, 10, 51, 40);
    QTest::newRow("size grid counts from the minimum at the top") << PLG_RectangleConstraints(Limits().size(10, 10).min(5, 5)) << 0 << 0.0 << b << QRect(20, 13, 40, 37) << QRect(20, 15, 40, 35);
    QTest::newRow("centre lock x") << PLG_RectangleConstraints(Limits().centre(true, false)) << 8 << 0.0 << b << QRect(10, 10, 50, 20) << QRect(75, 10, 50, 20);
    QTest::newRow("centre lock y") << PLG_RectangleConstraints(Limits().centre(false, true)) << 3 << 0.0 << b << QRect(10, 10, 50, 20) << QRect(10, 40, 50, 20);
    QTest::newRow("centre lock on the camera's whole image") << PLG_RectangleConstraints(Limits().centre(true, false).whole(240, 100)) << 8 << 0.0 << b << QRect(10, 10, 50, 20) << QRect(95, 10, 50, 20);
    // clang-format on
}

void tst_RectangleGeometry::constrained()
{
    QFETCH(PLG_RectangleConstraints, limits);
    QFETCH(int, zone);
    QFETCH(double, aspect);
    QFETCH(QRect, before);
    QFETCH(QRect, rect);
    QFETCH(QRect, expected);
    QCOMPARE(G::constrained(rect, zone, aspect, before, limits), expected);
}

void tst_RectangleGeometry::dragged_data()
{
    QTest::addColumn<PLG_RectangleConstraints>("limits");
    QTest::addColumn<int>("zone");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QRect>("expected");
    const QRect current(50, 20, 60, 40); // edges 50, 20, 109, 59
    const PLG_RectangleConstraints min20 = Limits().min(20, 20);
    // clang-format off
    QTest::newRow("an edge follows the mouse") << PLG_RectangleConstraints(Limits()) << 2 << QPoint(30, 99) << QRect(30, 20, 80, 40);
    QTest::newRow("an edge stops short of the minimum") << min20 << 2 << QPoint(95, 30) << current;
    QTest::newRow("a corner moves only when both edges may") << min20 << 4 << QPoint(30, 55) << current;
    QTest::newRow("a centre lock moves the opposite edge") << PLG_RectangleConstraints(Limits().centre(false, true)) << 0 << QPoint(70, 10) << QRect(50, 10, 60, 80);
    QTest::newRow("the opposite edge mirrors about the whole image") << PLG_RectangleConstraints(Limits().centre(true, false).whole(220, 100)) << 2 << QPoint(30, 99) << QRect(30, 20, 160, 40);
    QTest::newRow("the inside moves by the travel since the press") << PLG_RectangleConstraints(Limits()) << 8 << QPoint(80, 25) << QRect(40, 5, 60, 40);
    // clang-format on
}

void tst_RectangleGeometry::dragged()
{
    QFETCH(PLG_RectangleConstraints, limits);
    QFETCH(int, zone);
    QFETCH(QPoint, pos);
    QFETCH(QRect, expected);
    // Pressed at (60, 30) on the rectangle as it was then, which has moved since.
    const QRect current(50, 20, 60, 40);
    const QRect atPress(20, 10, 60, 40);
    QCOMPARE(G::dragged(current, zone, atPress, QPoint(60, 30), pos, 0.0, limits), expected);
}

void tst_RectangleGeometry::keyed_data()
{
    QTest::addColumn<PLG_RectangleConstraints>("limits");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<bool>("control");
    QTest::addColumn<QRect>("current");
    QTest::addColumn<QRect>("expected"); // null: no effect
    const QRect r(50, 20, 60, 40); // edges 50, 20, 109, 59
    // Sizes on the grid of 8 from the minimum of 4, so that only the key moves the edge.
    const PLG_RectangleConstraints steps = Limits().position(4, 4).size(8, 8).min(4, 4);
    const int left = Qt::Key_Left, right = Qt::Key_Right;
    // clang-format off
    QTest::newRow("arrow moves by the position step") << steps << left << false << false << r << QRect(46, 20, 60, 40);
    QTest::newRow("arrow at the border stays inside") << steps << left << false << false << QRect(2, 20, 60, 40) << QRect(0, 20, 60, 40);
    QTest::newRow("shift widens outward by the size step") << steps << left << true << false << r << QRect(42, 20, 68, 40);
    QTest::newRow("shift control narrows inward") << steps << right << true << true << r << QRect(50, 20, 52, 40);
    QTest::newRow("shift past the border is dropped") << steps << int(Qt::Key_Up) << true << false << QRect(50, 2, 60, 40) << QRect();
    QTest::newRow("shift control below the minimum is dropped") << PLG_RectangleConstraints(Limits().size(8, 8).min(55, 1)) << left << true << true << r << QRect();
    QTest::newRow("a centre lock halves the step on both edges") << PLG_RectangleConstraints(Limits().size(8, 8).min(4, 4).centre(true, false)) << right << true << false << QRect(70, 20, 60, 40) << QRect(66, 20, 68, 40);
    QTest::newRow("a centre lock on the whole image keeps it there") << PLG_RectangleConstraints(Limits().size(8, 8).min(4, 4).centre(true, false).whole(220, 100)) << right << true << false << QRect(80, 20, 60, 40) << QRect(76, 20, 68, 40);
    QTest::newRow("a key that is no arrow does nothing") << steps << int(Qt::Key_A) << false << false << r << QRect();
    // clang-format on
}

void tst_RectangleGeometry::keyed()
{
    QFETCH(PLG_RectangleConstraints, limits);
    QFETCH(int, key);
    QFETCH(bool, shift);
    QFETCH(bool, control);
    QFETCH(QRect, current);
    QFETCH(QRect, expected);
    const std::optional<QRect> result = G::keyed(current, key, shift, control, 0.0, limits);
    QCOMPARE(result.value_or(QRect()), expected);
}

void tst_RectangleGeometry::translatedKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("mirroredH");
    QTest::addColumn<bool>("mirroredV");
    QTest::addColumn<int>("expected");
    const int left = Qt::Key_Left, right = Qt::Key_Right, up = Qt::Key_Up, down = Qt::Key_Down;
    // clang-format off
    QTest::newRow("no turn") << left << 0 << false << false << left;
    QTest::newRow("90: left goes down") << left << 90 << false << false << down;
    QTest::newRow("90: up goes left") << up << 90 << false << false << left;
    QTest::newRow("90: right goes up") << right << 90 << false << false << up;
    QTest::newRow("90: down goes right") << down << 90 << false << false << right;
    QTest::newRow("180: left goes right") << left << 180 << false << false << right;
    QTest::newRow("270: left goes up") << left << 270 << false << false << up;
    QTest::newRow("-90 is 270") << left << -90 << false << false << up;
    QTest::newRow("mirrored horizontally: left and right swap") << left << 0 << true << false << right;
    QTest::newRow("mirrored vertically: up and down swap") << up << 0 << false << true << down;
    QTest::newRow("mirrored horizontally at 90: up and down swap") << left << 90 << true << false << up;
    QTest::newRow("mirrored vertically at 90: left and right swap") << up << 90 << false << true << right;
    QTest::newRow("both mirrors at 180 undo the turn") << left << 180 << true << true << left;
    QTest::newRow("no arrow passes") << int(Qt::Key_A) << 90 << true << true << int(Qt::Key_A);
    // clang-format on
}

void tst_RectangleGeometry::translatedKey()
{
    QFETCH(int, key);
    QFETCH(int, rotation);
    QFETCH(bool, mirroredH);
    QFETCH(bool, mirroredV);
    QFETCH(int, expected);
    QCOMPARE(G::translatedKey(key, rotation, mirroredH, mirroredV), expected);
}

void tst_RectangleGeometry::cursorShape_data()
{
    QTest::addColumn<int>("zone");
    QTest::addColumn<bool>("rotated");
    QTest::addColumn<bool>("mirroredH");
    QTest::addColumn<bool>("mirroredV");
    QTest::addColumn<int>("shape"); // -1: the usual cursor returns
    // clang-format off
    QTest::newRow("top edge") << 0 << false << false << false << int(Qt::SizeVerCursor);
    QTest::newRow("bottom edge turned") << 1 << true << false << false << int(Qt::SizeHorCursor);
    QTest::newRow("right edge turned and mirrored") << 3 << true << true << true << int(Qt::SizeVerCursor);
    QTest::newRow("inside") << 8 << true << true << false << int(Qt::SizeAllCursor);
    QTest::newRow("outside") << 9 << false << false << false << -1;
    QTest::newRow("top-left") << 4 << false << false << false << int(Qt::SizeFDiagCursor);
    QTest::newRow("top-left turned") << 4 << true << false << false << int(Qt::SizeBDiagCursor);
    QTest::newRow("top-left mirrored horizontally") << 4 << false << true << false << int(Qt::SizeBDiagCursor);
    QTest::newRow("top-left mirrored vertically") << 4 << false << false << true << int(Qt::SizeBDiagCursor);
    QTest::newRow("top-left turned and mirrored") << 4 << true << true << false << int(Qt::SizeFDiagCursor);
    QTest::newRow("bottom-right turned and mirrored twice") << 7 << true << true << true << int(Qt::SizeBDiagCursor);
    QTest::newRow("top-right") << 5 << false << false << false << int(Qt::SizeBDiagCursor);
    QTest::newRow("bottom-left turned and mirrored twice") << 6 << true << true << true << int(Qt::SizeFDiagCursor);
    // clang-format on
}

void tst_RectangleGeometry::cursorShape()
{
    QFETCH(int, zone);
    QFETCH(bool, rotated);
    QFETCH(bool, mirroredH);
    QFETCH(bool, mirroredV);
    QFETCH(int, shape);
    const std::optional<Qt::CursorShape> result
        = G::cursorShape(zone, rotated, mirroredH, mirroredV);
    QCOMPARE(result ? int(*result) : -1, shape);
}

void tst_RectangleGeometry::scaled()
{
    PLG_RectangleConstraints settings = Limits().position(2, 3).size(4, 5).max(100, 50).min(1, 2);
    const PLG_RectangleConstraints binnedScaled = G::scaled(settings, 1, 3, false);
    QCOMPARE(binnedScaled.positionStep, QPoint(12, 18));
    QCOMPARE(binnedScaled.sizeStep, QSize(24, 30));
    QCOMPARE(binnedScaled.maxSize, QSize(600, 300));
    QCOMPARE(binnedScaled.minSize, QSize(6, 12));
    const PLG_RectangleConstraints turned = G::scaled(settings, 0, 1, true);
    QCOMPARE(turned.positionStep, QPoint(3, 2));
    QCOMPARE(turned.sizeStep, QSize(5, 4));
    QCOMPARE(turned.maxSize, QSize(50, 100));
    QCOMPARE(turned.minSize, QSize(2, 1));
    settings.maxSize = QSize(-1, -1);
    QVERIFY(!G::scaled(settings, 2, 2, true).hasMaxSize());
}

void tst_RectangleGeometry::parameters_data()
{
    QTest::addColumn<bool>("rotated");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("fixAspect");
    QTest::addColumn<bool>("originalAspect");
    // WidthMax, HeightMax, PosXMax, PosYMax, CurrentWidth, CurrentHeight
    QTest::addColumn<QList<int>>("expected");
    // clang-format off
    QTest::newRow("plain") << false << QRect(20, 10, 60, 40) << false << false << QList<int> { 180, 90, 140, 60, 200, 100 };
    QTest::newRow("a quarter turn swaps the image") << true << QRect(20, 10, 60, 40) << false << false << QList<int> { 80, 190, 40, 160, 100, 200 };
    QTest::newRow("fixed aspect: the height limits the width") << false << QRect(20, 10, 50, 50) << true << false << QList<int> { 90, 90, 150, 50, 200, 100 };
    QTest::newRow("original aspect: the width limits the height") << false << QRect(100, 10, 60, 40) << true << true << QList<int> { 100, 50, 140, 60, 200, 100 };
    // clang-format on
}

void tst_RectangleGeometry::parameters()
{
    QFETCH(bool, rotated);
    QFETCH(QRect, rect);
    QFETCH(bool, fixAspect);
    QFETCH(bool, originalAspect);
    QFETCH(QList<int>, expected);
    const QVariantMap map
        = G::parameters(QSize(200, 100), rotated, rect, fixAspect, originalAspect);
    QList<int> actual;
    for (const char* key :
        { "WidthMax", "HeightMax", "PosXMax", "PosYMax", "CurrentWidth", "CurrentHeight" })
        actual << map.value(QLatin1String(key)).toInt();
    QCOMPARE(actual, expected);
    QCOMPARE(map.size(), 20);
}

void tst_RectangleGeometry::randomDragsAndKeysKeepTheRectangle()
{
    const unsigned seed = qEnvironmentVariableIsSet("SYNC_PROPERTY_SEED")
        ? qEnvironmentVariableIntValue("SYNC_PROPERTY_SEED")
        : 20240611u;
    std::mt19937 random(seed);
    const auto between = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    const auto chance = [&between](int percent) { return between(1, 100) <= percent; };
    const int arrows[] = { Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_A };
    const double zooms[] = { 0.1, 0.5, 1.0, 2.0, 8.0 };

    for (int world = 0; world < 300; ++world) {
        PLG_RectangleConstraints settings;
        settings.image = QSize(between(1, 400), between(1, 400));
        // A camera's whole image may reach beyond the document's.
        if (chance(30))
            settings.wholeImage = settings.image + QSize(between(0, 60), between(0, 60));
        settings.positionStep = QPoint(between(1, 12), between(1, 12));
        // Often no grid and no scaling, so that the aspect's guarantee gets checked too.
        settings.sizeStep = chance(50) ? QSize(1, 1) : QSize(between(1, 12), between(1, 12));
        settings.maxSize = chance(35) ? QSize(between(1, 300), between(1, 300)) : QSize(-1, -1);
        settings.minSize = QSize(between(1, 20), between(1, 20));
        settings.fixAspect = chance(50);
        settings.originalAspect = chance(50);
        settings.centerX = chance(25);
        settings.centerY = chance(25);
        const bool rotated = chance(50);
        const bool mirroredH = chance(50);
        const bool mirroredV = chance(50);
        const PLG_RectangleConstraints c = G::scaled(
            settings, chance(60) ? 0 : between(1, 2), chance(60) ? 1 : between(2, 3), rotated);
        const int width = c.image.width(), height = c.image.height();
        const int tolerance = G::tolerance(zooms[between(0, 4)]);
        QRect rect = G::confined(QRect(between(0, width - 1), between(0, height - 1),
                                     between(1, width), between(1, height)),
            c);

        int step = 0;
        // The tool's guarantees for a result of a change in zone with that aspect.
        const auto check = [&](const QRect& r, int zone, double aspect) {
            const QString where
                = QString::asprintf("seed %u, world %d, step %d, image %dx%d, zone %d", seed, world,
                    step, width, height, zone);
            QVERIFY2(r.width() >= 1 && r.height() >= 1, qPrintable(where));
            QVERIFY2(QRect(QPoint(0, 0), c.image).contains(r), qPrintable(where));
            if (c.hasMaxSize())
                QVERIFY2(r.width() <= c.maxSize.width() && r.height() <= c.maxSize.height(),
                    qPrintable(where));
            if (zone == G::Inside) {
                if (!c.centerX && c.positionStep.x() > 1)
                    QVERIFY2(r.left() % c.positionStep.x() == 0 || r.right() == width - 1,
                        qPrintable(where));
                if (!c.centerY && c.positionStep.y() > 1)
                    QVERIFY2(r.top() % c.positionStep.y() == 0 || r.bottom() == height - 1,
                        qPrintable(where));
            }
            const bool vertical = zone == 0 || zone == 1 || (zone >= 4 && zone <= 7);
            const bool horizontal = zone >= 2 && zone <= 7;
            if (vertical && c.sizeStep.height() >= 2 && r.height() >= c.minSize.height())
                QVERIFY2((r.height() - c.minSize.height()) % c.sizeStep.height() == 0,
                    qPrintable(where));
            if (horizontal && c.sizeStep.width() >= 2 && r.width() >= c.minSize.width())
                QVERIFY2(
                    (r.width() - c.minSize.width()) % c.sizeStep.width() == 0, qPrintable(where));
            // The aspect, where nothing after it changes the size and no length is a sliver.
            if (c.fixAspect && aspect >= 0.2 && aspect <= 5 && zone < G::Inside
                && c.sizeStep == QSize(1, 1) && !c.hasMaxSize() && r.width() >= 5
                && r.height() >= 5)
                QVERIFY2(
                    std::abs(r.height() - r.width() * aspect) <= aspect + 1.5, qPrintable(where));
        };

        for (; step < 40; ++step) {
            if (chance(60)) {
                const QRect atPress = rect;
                const QPoint press(between(rect.left() - 8, rect.right() + 8),
                    between(rect.top() - 8, rect.bottom() + 8));
                const int zone = G::hitTest(press, rect, tolerance);
                const double aspect = G::aspect(c, atPress);
                for (int move = between(1, 4); zone != G::Outside && move > 0; --move) {
                    const QPoint pos(between(-20, width + 20), between(-20, height + 20));
                    rect = G::dragged(rect, zone, atPress, press, pos, aspect, c);
                    check(rect, zone, aspect);
                }
            } else {
                const bool shift = chance(50);
                const int key = G::translatedKey(
                    arrows[between(0, 4)], 90 * between(0, 3), mirroredH, mirroredV);
                const int zone = !shift    ? G::Outside
                    : key == Qt::Key_Left  ? G::LeftEdge
                    : key == Qt::Key_Right ? G::RightEdge
                    : key == Qt::Key_Up    ? G::TopEdge
                                           : G::BottomEdge;
                const double aspect = G::aspect(c, rect);
                if (const std::optional<QRect> next
                    = G::keyed(rect, key, shift, chance(50), aspect, c)) {
                    rect = *next;
                    check(rect, zone, aspect);
                }
            }
            if (QTest::currentTestFailed())
                return;
        }
    }
}

QTEST_MAIN(tst_RectangleGeometry)

#include "tst_rectangleGeometry.moc"
