#include "host/HST_SettingsFile.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <cmath>

namespace {

const char fileType[] = "qsetx";
const int fileVersion = 1;
// More than any host lists; a file that claims more is not ours.
const int maxCameras = 256;
// Settings are small numbers: modes, flags, kinds.
const double maxSetting = 1000000;

QString checksumOf(const QJsonArray& cameras)
{
    return QString::fromLatin1(QCryptographicHash::hash(
        QJsonDocument(cameras).toJson(QJsonDocument::Compact), QCryptographicHash::Sha256)
                                   .toHex());
}

} // namespace

QStringList HST_SettingsFile::settingNames()
{
    return { QStringLiteral("triggerMode"), QStringLiteral("lowLightMode"),
        QStringLiteral("dualSlopeShutter"), QStringLiteral("automaticExposureControl"),
        QStringLiteral("exposureTimingFlag"), QStringLiteral("exposureTimingClass"),
        QStringLiteral("etherType") };
}

QByteArray HST_SettingsFile::write(const QList<Camera>& cameras)
{
    QJsonArray list;
    for (const Camera& camera : cameras) {
        QJsonObject settings;
        for (const QString& name : settingNames())
            settings.insert(name, camera.settings.value(name));
        list.append(QJsonObject { { QStringLiteral("name"), camera.name },
            { QStringLiteral("model"), camera.model }, { QStringLiteral("settings"), settings } });
    }
    const QJsonObject root { { QStringLiteral("type"), QLatin1String(fileType) },
        { QStringLiteral("version"), fileVersion }, { QStringLiteral("cameras"), list },
        { QStringLiteral("checksum"), checksumOf(list) } };
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

bool HST_SettingsFile::read(const QByteArray& data, QList<Camera>& out, QString& error)
{
    out.clear();
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(data, &parseError);
    if (parseError.error != QJsonParseError::NoError || !document.isObject()) {
        error = QStringLiteral("The file is not a camera settings file, or it is incomplete.");
        return false;
    }
    const QJsonObject root = document.object();
    if (root.value(QLatin1String("type")).toString() != QLatin1String(fileType)) {
        error = QStringLiteral("The file is not a camera settings file.");
        return false;
    }
    if (root.value(QLatin1String("version")).toInt(-1) != fileVersion) {
        error = QStringLiteral("The camera settings file is of a version this host can't read.");
        return false;
    }
    const QJsonArray cameras = root.value(QLatin1String("cameras")).toArray();
    if (!root.value(QLatin1String("cameras")).isArray() || cameras.isEmpty()
        || cameras.size() > maxCameras
        || root.value(QLatin1String("checksum")).toString() != checksumOf(cameras)) {
        error = QStringLiteral("The camera settings file is damaged.");
        return false;
    }
    QList<Camera> read;
    QSet<QString> names;
    for (const QJsonValue& value : cameras) {
        const QJsonObject object = value.toObject();
        Camera camera { object.value(QLatin1String("name")).toString(),
            object.value(QLatin1String("model")).toString(), {} };
        const QJsonObject settings = object.value(QLatin1String("settings")).toObject();
        bool complete = !camera.name.isEmpty() && !names.contains(camera.name)
            && settings.size() == settingNames().size();
        for (const QString& name : settingNames()) {
            const QJsonValue setting = settings.value(name);
            const double number = setting.toDouble(0.5);
            const bool integer = setting.isDouble() && std::floor(number) == number
                && std::abs(number) <= maxSetting;
            complete = complete && integer;
            camera.settings.insert(name, integer ? int(number) : 0);
        }
        if (!complete) {
            error = QStringLiteral("The camera settings file is damaged.");
            return false;
        }
        names.insert(camera.name);
        read.append(camera);
    }
    out = read;
    return true;
}
