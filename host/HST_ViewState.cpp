#include "host/HST_ViewState.h"

#include <QJsonArray>
#include <QRectF>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

const double MinZoom = 1.0 / 64;
const double MaxZoom = 64.0;
const int MaxImageSide = 16384;

QJsonArray sizeJson(const QSize& size)
{
    return QJsonArray { size.width(), size.height() };
}

} // namespace

QSize HST_ViewState::shownFrameSize() const
{
    const int pixel = pixelSize();
    return QSize(std::max(1, (imageSize.width() + pixel - 1) / pixel),
        std::max(1, (imageSize.height() + pixel - 1) / pixel));
}

double HST_ViewState::effectiveZoom(const QSize& window) const
{
    if (zoom > 0)
        return zoom;
    const QSize turned = isRotatedQuarter() ? imageSize.transposed() : imageSize;
    if (window.isEmpty() || turned.isEmpty())
        return 1.0;
    return std::clamp(std::min(double(window.width()) / turned.width(),
                          double(window.height()) / turned.height()),
        MinZoom, MaxZoom);
}

QTransform HST_ViewState::imageToView(const QSize& window) const
{
    const double scale = effectiveZoom(window);
    const QSize turned = isRotatedQuarter() ? imageSize.transposed() : imageSize;
    // Turned and mirrored about the image's middle, then put with its corner at the origin.
    QTransform transform;
    transform.translate(turned.width() * scale / 2.0, turned.height() * scale / 2.0);
    transform.scale(mirroredHorizontally ? -scale : scale, mirroredVertically ? -scale : scale);
    transform.rotate(rotation);
    transform.translate(-imageSize.width() / 2.0, -imageSize.height() / 2.0);
    return transform;
}

QPoint HST_ViewState::viewToImage(const QPoint& viewPos, const QSize& window) const
{
    // The middle of the window pixel, so that a pixel maps to the image pixel drawn there.
    const QPointF image = imageToView(window).inverted().map(QPointF(viewPos) + QPointF(0.5, 0.5));
    return QPoint(int(std::floor(image.x())), int(std::floor(image.y())));
}

QSize HST_ViewState::extent(const QSize& window) const
{
    const QRectF drawn = imageToView(window).mapRect(QRectF(QPointF(0, 0), QSizeF(imageSize)));
    return QSize(int(std::lround(drawn.width())), int(std::lround(drawn.height())));
}

QJsonObject HST_ViewState::toJson() const
{
    return { { QStringLiteral("zoom"), zoom }, { QStringLiteral("rotation"), rotation },
        { QStringLiteral("mirrorHorizontally"), mirroredHorizontally },
        { QStringLiteral("mirrorVertically"), mirroredVertically },
        { QStringLiteral("binning"), binningExponent },
        { QStringLiteral("scaleFactor"), scaleFactor },
        { QStringLiteral("imageSize"), sizeJson(imageSize) },
        { QStringLiteral("fullImageSize"), sizeJson(wholeImageSize()) } };
}

bool HST_ViewState::operator==(const HST_ViewState& other) const
{
    return zoom == other.zoom && rotation == other.rotation
        && mirroredHorizontally == other.mirroredHorizontally
        && mirroredVertically == other.mirroredVertically
        && binningExponent == other.binningExponent && scaleFactor == other.scaleFactor
        && imageSize == other.imageSize && fullImageSize == other.fullImageSize;
}

bool HST_ViewState::read(const QJsonObject& object, const QString& path, HST_ViewState& out,
    QString& key, QString& problem)
{
    const auto fail = [&](const QString& name, const QString& text) {
        key = path + QLatin1Char('.') + name;
        problem = text;
        return false;
    };
    static const QStringList known { "zoom", "rotation", "mirrorHorizontally", "mirrorVertically",
        "binning", "scaleFactor", "imageSize", "fullImageSize" };
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!known.contains(it.key()))
            return fail(it.key(), QStringLiteral("unknown key"));
    }
    HST_ViewState view = out;
    const auto integer = [&](const char* name, int minimum, int maximum, int& target) {
        const QJsonValue value = object.value(QLatin1String(name));
        if (value.isUndefined())
            return true;
        const double number = value.toDouble();
        if (!value.isDouble() || std::floor(number) != number)
            return fail(QLatin1String(name), QStringLiteral("expected an integer"));
        if (number < minimum || number > maximum)
            return fail(QLatin1String(name),
                QStringLiteral("%1 is outside %2 to %3").arg(number).arg(minimum).arg(maximum));
        target = int(number);
        return true;
    };
    const auto flag = [&](const char* name, bool& target) {
        const QJsonValue value = object.value(QLatin1String(name));
        if (value.isUndefined())
            return true;
        if (!value.isBool())
            return fail(QLatin1String(name), QStringLiteral("expected a boolean"));
        target = value.toBool();
        return true;
    };
    const auto size = [&](const char* name, QSize& target) {
        const QJsonValue value = object.value(QLatin1String(name));
        if (value.isUndefined())
            return true;
        const QJsonArray pair = value.toArray();
        const bool sides = value.isArray() && pair.size() == 2
            && std::all_of(pair.begin(), pair.end(), [](const QJsonValue& side) {
                   return side.isDouble() && std::floor(side.toDouble()) == side.toDouble()
                       && side.toDouble() >= 1 && side.toDouble() <= MaxImageSide;
               });
        if (!sides)
            return fail(QLatin1String(name),
                QStringLiteral("expected [width, height], each 1 to %1").arg(MaxImageSide));
        target = QSize(pair.at(0).toInt(), pair.at(1).toInt());
        return true;
    };

    const QJsonValue zoom = object.value(QLatin1String("zoom"));
    if (!zoom.isUndefined()) {
        const double value = zoom.toDouble(-1);
        if (!zoom.isDouble() || !(value == 0 || (value >= MinZoom && value <= MaxZoom)))
            return fail(QStringLiteral("zoom"),
                QStringLiteral("expected 0 (fit) or a factor from 1/64 to 64"));
        view.zoom = value;
    }
    if (!integer("rotation", 0, 270, view.rotation))
        return false;
    if (view.rotation % 90 != 0)
        return fail(QStringLiteral("rotation"), QStringLiteral("not 0, 90, 180 or 270"));
    if (!flag("mirrorHorizontally", view.mirroredHorizontally)
        || !flag("mirrorVertically", view.mirroredVertically)
        || !integer("binning", 0, MaxBinningExponent, view.binningExponent)
        || !integer("scaleFactor", 1, MaxScaleFactor, view.scaleFactor)
        || !size("imageSize", view.imageSize) || !size("fullImageSize", view.fullImageSize))
        return false;
    const QSize whole = view.wholeImageSize();
    if (whole.width() < view.imageSize.width() || whole.height() < view.imageSize.height())
        return fail(QStringLiteral("fullImageSize"), QStringLiteral("smaller than imageSize"));
    out = view;
    return true;
}
