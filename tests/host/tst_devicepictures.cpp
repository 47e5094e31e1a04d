#include "host/HST_Host.h"
#include "host/HST_Recorder.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// The rectangles the plug-in cuts out of the sprite.
const QList<QPair<const char*, QRect>> spriteRectangles {
    { "default side", { 0, 0, 100, 80 } },
    { "type 10 side", { 0, 80, 100, 80 } },
    { "types 19, 22 side", { 0, 160, 100, 80 } },
    { "types 6, 8, 11, 26 side", { 110, 0, 100, 80 } },
    { "types 15, 21 side", { 110, 80, 100, 80 } },
    { "type 24 side", { 110, 160, 100, 80 } },
    { "types 34, 45 side", { 0, 240, 100, 80 } },
    { "narrow family side", { 330, 80, 75, 80 } },
    { "type 35 side", { 220, 160, 100, 80 } },
    { "types 36-44 side", { 220, 240, 100, 80 } },
    { "types 46, 47 side", { 0, 320, 100, 80 } },
    { "default back", { 230, 80, 80, 80 } },
    { "narrow family back", { 330, 0, 60, 80 } },
    { "type 35 back", { 330, 160, 80, 80 } },
    { "types 36-44 back", { 330, 240, 80, 80 } },
    { "types 46, 47 back", { 120, 320, 80, 80 } },
    { "distributor", { 220, 0, 100, 80 } },
};

double opaqueShare(const QImage& image, const QRect& rect)
{
    int opaque = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            opaque += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
    }
    return double(opaque) / (rect.width() * rect.height());
}

} // namespace

class tst_DevicePictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyRectangleHoldsADrawing_data();
    void everyRectangleHoldsADrawing();
    void nothingOutsideTheRectangles();
    void hubPicture();

private:
    QImage m_sprite;
};

void tst_DevicePictures::initTestCase()
{
    // The host registers its resources when it is made.
    QTemporaryDir dir;
    HST_Recorder recorder;
    HST_Host host(HST_Scenario(), &recorder, dir.filePath(QStringLiteral("p.ini")));
    QVERIFY(m_sprite.load(QStringLiteral(":/is_devices.png")));
    QVERIFY(m_sprite.width() >= 410 && m_sprite.height() >= 400);
    QVERIFY(m_sprite.hasAlphaChannel());
}

void tst_DevicePictures::everyRectangleHoldsADrawing_data()
{
    QTest::addColumn<QRect>("rect");
    for (const auto& entry : spriteRectangles)
        QTest::newRow(entry.first) << entry.second;
}

void tst_DevicePictures::everyRectangleHoldsADrawing()
{
    QFETCH(QRect, rect);
    const double share = opaqueShare(m_sprite, rect);
    QVERIFY2(share > 0.2, qPrintable(QString::number(share)));
}

// A drawing that spills over its edge would show in the neighbour's cut.
void tst_DevicePictures::nothingOutsideTheRectangles()
{
    QImage outside = m_sprite.convertToFormat(QImage::Format_ARGB32);
    for (const auto& entry : spriteRectangles) {
        for (int y = entry.second.top(); y <= entry.second.bottom(); ++y) {
            for (int x = entry.second.left(); x <= entry.second.right(); ++x)
                outside.setPixel(x, y, 0);
        }
    }
    QCOMPARE(opaqueShare(outside, outside.rect()), 0.0);
}

void tst_DevicePictures::hubPicture()
{
    QImage hub;
    QVERIFY(hub.load(QStringLiteral(":/is_devices_newnrack.png")));
    // Shown at 200 x 160, so drawn at that shape and no smaller.
    QVERIFY(hub.width() >= 200 && hub.height() >= 160);
    QCOMPARE(hub.width() * 160, hub.height() * 200);
    QVERIFY(opaqueShare(hub, hub.rect()) > 0.3);
}

QTEST_MAIN(tst_DevicePictures)
#include "tst_devicepictures.moc"
