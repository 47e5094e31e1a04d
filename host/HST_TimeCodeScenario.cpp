#include "host/HST_TimeCodeScenario.h"

#include "plugin/APP_TimeCodeRecord.h"

#include <QJsonObject>
#include <QStringList>

#include <cmath>

namespace {

// Beyond this a value can't be written by the time code dialog.
const double valueLimit = 9.999e8;

struct Refused
{
    QString key;
    QString problem;
};

QString path(const QString& key)
{
    return QStringLiteral("timeCode.") + key;
}

double readNumber(const QJsonObject& object, const QString& key, double fallback)
{
    if (!object.contains(key))
        return fallback;
    const QJsonValue value = object.value(key);
    if (!value.isDouble())
        throw Refused { path(key), QStringLiteral("expected a number") };
    if (std::fabs(value.toDouble()) > valueLimit)
        throw Refused { path(key), QStringLiteral("beyond 9.999e8") };
    return value.toDouble();
}

int readIndex(const QJsonObject& object, const QString& key, int fallback, int maximum)
{
    const double number = readNumber(object, key, fallback);
    if (std::floor(number) != number || number < 0 || number > maximum)
        throw Refused { path(key), QStringLiteral("not a whole number from 0 to %1").arg(maximum) };
    return int(number);
}

bool readFlag(const QJsonObject& object, const QString& key, bool fallback)
{
    if (!object.contains(key))
        return fallback;
    if (!object.value(key).isBool())
        throw Refused { path(key), QStringLiteral("expected a boolean") };
    return object.value(key).toBool();
}

} // namespace

bool HST_TimeCodeScenario::read(
    const QJsonValue& value, APP_TimeCodeRecord& out, QString& key, QString& problem)
{
    if (!value.isObject()) {
        key = QStringLiteral("timeCode");
        problem = QStringLiteral("expected an object");
        return false;
    }
    const QJsonObject object = value.toObject();
    const QStringList known { "index", "displayUnit", "oneFrame", "startValue", "reset",
        "resetValue", "scopeDisplayIndex", "decimalPlaceIndex", "decimalDivide", "usingFileInfo",
        "overwrite", "realTime" };
    APP_TimeCodeRecord record;
    try {
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (!known.contains(it.key()))
                throw Refused { path(it.key()), QStringLiteral("unknown key") };
        }
        record.index = readIndex(object, QStringLiteral("index"), record.index, 1);
        if (object.contains(QLatin1String("displayUnit"))) {
            if (!object.value(QLatin1String("displayUnit")).isString())
                throw Refused { path(QStringLiteral("displayUnit")),
                    QStringLiteral("expected a string") };
            record.displayUnit = object.value(QLatin1String("displayUnit")).toString();
        }
        record.oneFrame = readNumber(object, QStringLiteral("oneFrame"), record.oneFrame);
        record.startValue = readNumber(object, QStringLiteral("startValue"), record.startValue);
        record.reset = readFlag(object, QStringLiteral("reset"), record.reset);
        record.resetValue = readNumber(object, QStringLiteral("resetValue"), record.resetValue);
        record.scopeDisplayIndex
            = readIndex(object, QStringLiteral("scopeDisplayIndex"), record.scopeDisplayIndex, 5);
        record.decimalPlaceIndex
            = readIndex(object, QStringLiteral("decimalPlaceIndex"), record.decimalPlaceIndex, 9);
        record.decimalDivide
            = readFlag(object, QStringLiteral("decimalDivide"), record.decimalDivide);
        record.usingFileInfo
            = readFlag(object, QStringLiteral("usingFileInfo"), record.usingFileInfo);
        record.overwrite = readFlag(object, QStringLiteral("overwrite"), record.overwrite);
        record.realTime = readFlag(object, QStringLiteral("realTime"), record.realTime);
    } catch (const Refused& refused) {
        key = refused.key;
        problem = refused.problem;
        return false;
    }
    out = record;
    return true;
}
