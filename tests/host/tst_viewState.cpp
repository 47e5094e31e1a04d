// How a document's window maps itself to the image: clockwise quarter turns (the turn under
// which the frame's arrow keys are translated), mirrors on screen after the turn, a fixed or a
// fitting zoom; and the window pixel under each image pixel mapping back to it.
#include "host/HST_ViewState.h"

#include <QtTest>

#include <cmath>

namespace {

HST_ViewState view(int rotation, bool mirrorH, bool mirrorV, double zoom)
{
    HST_ViewState state;
    state.imageSize = QSize(200, 100);
    state.rotation = rotation;
    state.mirroredHorizontally = mirrorH;
    state.mirroredVertically = mirrorV;
    state.zoom = zoom;
    return state;
}

} // namespace

class tst_ViewState : public QObject
{
    Q_OBJECT

private slots:
    void viewToImage_data();
    void viewToImage();
    void imagePixelsMapBack_data();
    void imagePixelsMapBack();
};

void tst_ViewState::viewToImage_data()
{
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("mirrorH");
    QTest::addColumn<bool>("mirrorV");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QPoint>("viewPos");
    QTest::addColumn<QPoint>("imagePos");
    const QSize none;
    // The image is 200 x 100.
    QTest::newRow("zoom 2") << 0 << false << false << 2.0 << none << QPoint(5, 3) << QPoint(2, 1);
    QTest::newRow("90: the image's bottom at the window's left")
        << 90 << false << false << 1.0 << none << QPoint(1, 0) << QPoint(0, 98);
    QTest::newRow("180") << 180 << false << false << 1.0 << none << QPoint(1, 2) << QPoint(198, 97);
    QTest::newRow("270: the image's top at the window's left")
        << 270 << false << false << 1.0 << none << QPoint(1, 0) << QPoint(199, 1);
    QTest::newRow("mirrored horizontally")
        << 0 << true << false << 1.0 << none << QPoint(1, 2) << QPoint(198, 2);
    QTest::newRow("mirrored vertically")
        << 0 << false << true << 1.0 << none << QPoint(1, 2) << QPoint(1, 97);
    QTest::newRow("90, mirrored on screen: the axes swap")
        << 90 << true << false << 1.0 << none << QPoint(3, 5) << QPoint(5, 3);
    QTest::newRow("fit: the whole width in the window")
        << 0 << false << false << 0.0 << QSize(100, 100) << QPoint(10, 10) << QPoint(21, 21);
    QTest::newRow("fit a turned image: its height across")
        << 90 << false << false << 0.0 << QSize(100, 100) << QPoint(10, 10) << QPoint(21, 79);
    QTest::newRow("fit without a window is zoom 1")
        << 0 << false << false << 0.0 << none << QPoint(5, 3) << QPoint(5, 3);
    QTest::newRow("beyond the image, not clamped")
        << 0 << false << false << 1.0 << none << QPoint(-3, 150) << QPoint(-3, 150);
}

void tst_ViewState::viewToImage()
{
    QFETCH(int, rotation);
    QFETCH(bool, mirrorH);
    QFETCH(bool, mirrorV);
    QFETCH(double, zoom);
    QFETCH(QSize, window);
    QFETCH(QPoint, viewPos);
    QFETCH(QPoint, imagePos);
    QCOMPARE(view(rotation, mirrorH, mirrorV, zoom).viewToImage(viewPos, window), imagePos);
}

void tst_ViewState::imagePixelsMapBack_data()
{
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("mirrorH");
    QTest::addColumn<bool>("mirrorV");
    for (int rotation : { 0, 90, 180, 270 }) {
        for (int mirrors = 0; mirrors < 4; ++mirrors)
            QTest::addRow("%d degrees, mirrors %d", rotation, mirrors)
                << rotation << bool(mirrors & 1) << bool(mirrors & 2);
    }
}

// Each image pixel lands inside the drawn extent, and the window pixel under it maps back.
void tst_ViewState::imagePixelsMapBack()
{
    QFETCH(int, rotation);
    QFETCH(bool, mirrorH);
    QFETCH(bool, mirrorV);
    const HST_ViewState state = view(rotation, mirrorH, mirrorV, 3.0);
    const QSize window(700, 700);
    const QSize extent = state.extent(window);
    QCOMPARE(extent, state.isRotatedQuarter() ? QSize(300, 600) : QSize(600, 300));
    const QTransform toView = state.imageToView(window);
    for (const QPoint pixel :
        { QPoint(0, 0), QPoint(199, 0), QPoint(0, 99), QPoint(199, 99), QPoint(57, 31) }) {
        const QPointF centre = toView.map(QPointF(pixel) + QPointF(0.5, 0.5));
        QVERIFY(QRectF(QPointF(0, 0), QSizeF(extent)).contains(centre));
        const QPoint under(int(std::floor(centre.x())), int(std::floor(centre.y())));
        QCOMPARE(state.viewToImage(under, window), pixel);
    }
}

QTEST_GUILESS_MAIN(tst_ViewState)
#include "tst_viewState.moc"
