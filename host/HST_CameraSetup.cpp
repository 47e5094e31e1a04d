#include "host/HST_CameraSetup.h"

#include <QJsonArray>

#include <cmath>

namespace {

const int maxHeads = 8;
const int maxPresets = 16;

} // namespace

QStringList HST_CameraSetup::keys()
{
    return { QStringLiteral("heads"), QStringLiteral("presets"),
        QStringLiteral("presetNeedsReboot") };
}

bool HST_CameraSetup::read(const QJsonObject& camera, const QString& path, HST_CameraSetup& out,
    QString& key, QString& problem)
{
    const auto fail = [&](const char* name, const QString& text) {
        key = path + QLatin1Char('.') + QLatin1String(name);
        problem = text;
        return false;
    };
    if (camera.contains(QLatin1String("heads"))) {
        const QJsonValue value = camera.value(QLatin1String("heads"));
        const double number = value.toDouble(-1);
        if (!value.isDouble() || std::floor(number) != number)
            return fail("heads", QStringLiteral("expected an integer"));
        if (number != 0 && (number < 2 || number > maxHeads))
            return fail(
                "heads", QStringLiteral("%1 is neither 0 nor 2 to %2").arg(number).arg(maxHeads));
        out.heads = int(number);
    }
    if (camera.contains(QLatin1String("presets"))) {
        const QJsonValue value = camera.value(QLatin1String("presets"));
        if (!value.isArray())
            return fail("presets", QStringLiteral("expected a list of texts"));
        const QJsonArray list = value.toArray();
        if (list.size() > maxPresets)
            return fail("presets", QStringLiteral("more than %1 preset slots").arg(maxPresets));
        QStringList texts;
        for (const QJsonValue& slot : list) {
            if (!slot.isString())
                return fail("presets", QStringLiteral("expected a list of texts"));
            texts.append(slot.toString());
        }
        out.presets = texts;
    }
    if (camera.contains(QLatin1String("presetNeedsReboot"))) {
        const QJsonValue value = camera.value(QLatin1String("presetNeedsReboot"));
        if (!value.isBool())
            return fail("presetNeedsReboot", QStringLiteral("expected a boolean"));
        out.presetNeedsReboot = value.toBool();
    }
    return true;
}
