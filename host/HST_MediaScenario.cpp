#include "host/HST_MediaScenario.h"

#include "host/HST_Scenario.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTime>

#include <cmath>

namespace {

using Refusal = HST_MediaScenario::Refusal;

[[noreturn]] void refuse(const QString& key, const QString& problem)
{
    throw Refusal { key, problem };
}

QString join(const QString& path, const QString& key)
{
    return path + QLatin1Char('.') + key;
}

QJsonObject objectAt(const QJsonValue& value, const QString& path, const QStringList& keys)
{
    if (!value.isObject())
        refuse(path, QStringLiteral("expected an object"));
    QJsonObject object = value.toObject();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        if (!keys.contains(it.key()))
            refuse(join(path, it.key()), QStringLiteral("unknown key"));
    }
    return object;
}

QJsonArray arrayAt(const QJsonObject& object, const QString& path, const QString& key)
{
    const QJsonValue value = object.value(key);
    if (!value.isArray())
        refuse(join(path, key), QStringLiteral("expected a list"));
    return value.toArray();
}

bool boolAt(const QJsonObject& object, const QString& path, const QString& key, bool fallback)
{
    if (!object.contains(key))
        return fallback;
    if (!object.value(key).isBool())
        refuse(join(path, key), QStringLiteral("expected a boolean"));
    return object.value(key).toBool();
}

double numberAt(const QJsonObject& object, const QString& path, const QString& key, double fallback,
    double maximum)
{
    if (!object.contains(key))
        return fallback;
    const QJsonValue value = object.value(key);
    const double number = value.toDouble();
    if (!value.isDouble() || std::floor(number) != number)
        refuse(join(path, key), QStringLiteral("expected an integer"));
    if (number < 0 || number > maximum)
        refuse(join(path, key), QStringLiteral("%1 is outside 0 to %2").arg(number).arg(maximum));
    return number;
}

QString stringAt(
    const QJsonObject& object, const QString& path, const QString& key, const QString& fallback)
{
    if (!object.contains(key))
        return fallback;
    if (!object.value(key).isString())
        refuse(join(path, key), QStringLiteral("expected a string"));
    return object.value(key).toString();
}

QStringList upperStrings(const QJsonObject& object, const QString& path, const QString& key)
{
    QStringList list;
    const QJsonArray array = arrayAt(object, path, key);
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isString() || array.at(i).toString().isEmpty())
            refuse(QStringLiteral("%1[%2]").arg(join(path, key)).arg(i),
                QStringLiteral("expected a name"));
        list.append(array.at(i).toString().toUpper());
    }
    return list;
}

HST_RecordingSpec readRecording(const QJsonValue& value, const QString& path)
{
    const QJsonObject object = objectAt(value, path, { "name", "frames", "date", "time" });
    HST_RecordingSpec recording;
    recording.name = stringAt(object, path, QStringLiteral("name"), QString());
    if (recording.name.isEmpty())
        refuse(join(path, QStringLiteral("name")), QStringLiteral("no name"));
    recording.frames = unsigned(numberAt(object, path, QStringLiteral("frames"), 1000, 100000000));
    recording.date = stringAt(object, path, QStringLiteral("date"), recording.date);
    if (!QDate::fromString(recording.date, QStringLiteral("yyyy/M/d")).isValid())
        refuse(join(path, QStringLiteral("date")), QStringLiteral("not a date yyyy/M/d"));
    recording.time = stringAt(object, path, QStringLiteral("time"), recording.time);
    if (!QTime::fromString(recording.time, QStringLiteral("HH:mm:ss")).isValid())
        refuse(join(path, QStringLiteral("time")), QStringLiteral("not a time HH:mm:ss"));
    return recording;
}

HST_MediaSlotSpec readSlot(const QJsonValue& value, const QString& path, bool storageUnit)
{
    QStringList keys { "present", "formatted", "capacity", "used", "written", "drive", "driveType",
        "recordings" };
    if (storageUnit)
        keys << QStringLiteral("password");
    else
        keys << QStringLiteral("protected") << QStringLiteral("speedMode")
             << QStringLiteral("speedClass");
    const QJsonObject object = objectAt(value, path, keys);
    HST_MediaSlotSpec slot;
    slot.present = boolAt(object, path, QStringLiteral("present"), true);
    slot.formatted = boolAt(object, path, QStringLiteral("formatted"), true);
    slot.writeProtected = boolAt(object, path, QStringLiteral("protected"), false);
    slot.speedMode = int(numberAt(object, path, QStringLiteral("speedMode"), 0x8001, 0xFFFF));
    slot.speedClass = int(numberAt(object, path, QStringLiteral("speedClass"), 10, 99));
    slot.capacityMegabytes
        = quint64(numberAt(object, path, QStringLiteral("capacity"), 65536, 1e9));
    slot.usedMegabytes = qint64(numberAt(object, path, QStringLiteral("used"), -1, 1e9));
    if (object.contains(QLatin1String("used"))
        && quint64(slot.usedMegabytes) > slot.capacityMegabytes)
        refuse(join(path, QStringLiteral("used")), QStringLiteral("more than the capacity"));
    slot.writtenGigabytes = quint64(numberAt(object, path, QStringLiteral("written"), 0, 1e9));
    slot.password = stringAt(object, path, QStringLiteral("password"), QString());
    slot.drive = stringAt(object, path, QStringLiteral("drive"), QString()).toUpper();
    if (!slot.drive.isEmpty()
        && !QRegularExpression(QStringLiteral("^[A-Z]:$")).match(slot.drive).hasMatch())
        refuse(
            join(path, QStringLiteral("drive")), QStringLiteral("not a drive letter like \"E:\""));
    slot.driveType = int(numberAt(object, path, QStringLiteral("driveType"), 0, 9));
    if (object.contains(QLatin1String("recordings"))) {
        const QJsonArray recordings = arrayAt(object, path, QStringLiteral("recordings"));
        for (int i = 0; i < recordings.size(); ++i)
            slot.recordings.append(readRecording(recordings.at(i),
                QStringLiteral("%1[%2]").arg(join(path, QStringLiteral("recordings"))).arg(i)));
    }
    return slot;
}

QList<HST_MediaSlotSpec> readSlots(
    const QJsonObject& object, const QString& path, const char* key, int most, bool storageUnit)
{
    QList<HST_MediaSlotSpec> slotList;
    if (!object.contains(QLatin1String(key)))
        return slotList;
    const QJsonArray array = arrayAt(object, path, QLatin1String(key));
    if (array.size() > most)
        refuse(join(path, QLatin1String(key)), QStringLiteral("more than %1 slotList").arg(most));
    for (int i = 0; i < array.size(); ++i)
        slotList.append(readSlot(array.at(i),
            QStringLiteral("%1[%2]").arg(join(path, QLatin1String(key))).arg(i), storageUnit));
    return slotList;
}

template <typename Body> bool refused(Refusal& refusal, Body&& body)
{
    try {
        body();
        return true;
    } catch (const Refusal& caught) {
        refusal = caught;
    }
    return false;
}

} // namespace

bool HST_MediaScenario::readMedia(
    const QJsonValue& value, const QString& path, HST_MediaSpec& out, Refusal& refusal)
{
    return refused(refusal, [&] {
        const QJsonObject object = objectAt(value, path, { "sd", "storageUnit", "cfast" });
        out.sd = readSlots(object, path, "sd", 2, false);
        out.storageUnit = readSlots(object, path, "storageUnit", 4, true);
        out.cfast = readSlots(object, path, "cfast", 2, false);
    });
}

bool HST_MediaScenario::checkDrives(const QList<HST_CameraSpec>& cameras, Refusal& refusal)
{
    return refused(refusal, [&] {
        QSet<QString> seen;
        for (int c = 0; c < cameras.size(); ++c) {
            const HST_MediaSpec& media = cameras.at(c).media;
            const struct
            {
                const char* key;
                const QList<HST_MediaSlotSpec>* slotList;
            } kinds[] = { { "sd", &media.sd }, { "storageUnit", &media.storageUnit },
                { "cfast", &media.cfast } };
            for (const auto& kind : kinds) {
                for (int s = 0; s < kind.slotList->size(); ++s) {
                    const QString drive = kind.slotList->at(s).drive;
                    if (drive.isEmpty())
                        continue;
                    if (seen.contains(drive))
                        refuse(QStringLiteral("cameras[%1].media.%2[%3].drive")
                                   .arg(c)
                                   .arg(QLatin1String(kind.key))
                                   .arg(s),
                            QStringLiteral("drive %1 is another slot's").arg(drive));
                    seen.insert(drive);
                }
            }
        }
    });
}

bool HST_MediaScenario::readLoopSave(
    const QJsonValue& value, bool& mode, bool& active, Refusal& refusal)
{
    return refused(refusal, [&] {
        const QString path = QStringLiteral("loopSave");
        const QJsonObject object = objectAt(value, path, { "mode", "active" });
        mode = boolAt(object, path, QStringLiteral("mode"), false);
        active = boolAt(object, path, QStringLiteral("active"), false);
    });
}

bool HST_MediaScenario::readWriter(const QJsonValue& value, HST_WriterSpec& out, Refusal& refusal)
{
    return refused(refusal, [&] {
        const QString path = QStringLiteral("writer");
        const QJsonObject object = objectAt(value, path, { "formats", "codecs" });
        if (object.contains(QLatin1String("formats"))) {
            const QStringList made = HST_WriterSpec().formats;
            out.formats = upperStrings(object, path, QStringLiteral("formats"));
            for (const QString& format : qAsConst(out.formats)) {
                if (!made.contains(format))
                    refuse(join(path, QStringLiteral("formats")),
                        QStringLiteral("the host can't write %1 files").arg(format));
            }
        }
        if (object.contains(QLatin1String("codecs")))
            out.codecs = upperStrings(object, path, QStringLiteral("codecs"));
    });
}
