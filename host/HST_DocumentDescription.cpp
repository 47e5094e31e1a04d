#include "host/HST_DocumentDescription.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_Media.h"

#include <QDate>
#include <QLocale>

namespace {

const char* const reportFields[]
    = { "TestNo", "Project", "TestType", "TestTypeNo", "Date", "Engineer", "Technician" };

QString sizeLabel(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

qint64 partitionBytes(const HST_PartitionSpec& partition)
{
    return partition.capacity >= 0 ? partition.capacity
                                   : qint64(partition.frames) * partition.width * partition.height;
}

} // namespace

QVariantMap HST_DocumentDescription::of(const HST_Document& document, bool convert)
{
    const HST_DocumentSpec& spec = document.spec();
    const HST_CameraState* camera = document.cameraState();
    const bool media = spec.media.kind != HST_MediaKind::None;
    QVariantMap top;
    top.insert(QStringLiteral("dockey"), QString::number(document.key()));
    top.insert(QStringLiteral("selected"), document.selected());
    top.insert(QStringLiteral("filename"), document.title());
    top.insert(QStringLiteral("filepath"), spec.filePath);
    top.insert(QStringLiteral("devicename"), camera ? camera->spec.deviceName : document.title());
    top.insert(QStringLiteral("date"),
        camera ? QDate::currentDate().toString(QStringLiteral("yyyy/M/d")) : QString());
    top.insert(QStringLiteral("time"), camera ? QStringLiteral("12:00:00") : QString());
    const int rate
        = document.rateOf(spec.partitions.isEmpty() ? 0 : spec.partitions.first().number);
    top.insert(
        QStringLiteral("shutterspeed"), rate > 0 ? QStringLiteral("1/%1 s").arg(rate) : QString());
    top.insert(
        QStringLiteral("recordrate"), rate > 0 ? QStringLiteral("%1 fps").arg(rate) : QString());
    if (camera) {
        top.insert(QStringLiteral("cameraname"), camera->spec.name);
        top.insert(QStringLiteral("ipaddress"), camera->spec.ip);
        top.insert(QStringLiteral("slotno"), QString());
    }
    if (media) {
        top.insert(QStringLiteral("name"), document.title());
        top.insert(QStringLiteral("drivename"), spec.media.drive);
        top.insert(QStringLiteral("serialno"), spec.media.serialNo);
        top.insert(QStringLiteral("datano"), spec.media.dataNo);
        top.insert(QStringLiteral("slotno"), QString::number(spec.media.slot + 1));
        top.insert(QStringLiteral("date"), spec.media.date);
        top.insert(QStringLiteral("time"), spec.media.time);
    }
    int custom = 0;
    for (const QVariant& item : document.customItems()) {
        const QVariantMap map = item.toMap();
        const QString name = map.value(QStringLiteral("name")).toString();
        const QString value = map.value(QStringLiteral("value")).toString();
        bool report = false;
        for (const char* field : reportFields)
            report = report || name == QLatin1String(field);
        if (report) {
            top.insert(name, value);
            continue;
        }
        const QString unit = map.value(QStringLiteral("unit")).toString();
        top.insert(QStringLiteral("Custom_%1").arg(++custom),
            unit.isEmpty() ? value : value + QLatin1Char(' ') + unit);
    }
    top.insert(QStringLiteral("Comments"), document.commentText());
    top.insert(QStringLiteral("convert"), convert);

    QVariantList rows;
    for (const HST_PartitionSpec& partition : spec.partitions) {
        const qint64 bytes = partitionBytes(partition);
        rows.append(QVariantMap { { QStringLiteral("number"), partition.number },
            { QStringLiteral("currentpartition"),
                partition.number == document.currentPartitionNumber() ? QStringLiteral("1")
                                                                      : QStringLiteral("0") },
            { QStringLiteral("totalframes"), QLocale::c().toString(partition.frames) },
            { QStringLiteral("totalframesplain"), partition.frames },
            { QStringLiteral("resolution"),
                QStringLiteral("%1x%2").arg(partition.width).arg(partition.height) },
            { QStringLiteral("exportframes"), QString::number(partition.frames) },
            { QStringLiteral("capacity"), QString::number(bytes) },
            { QStringLiteral("capacitylabel"), sizeLabel(bytes) } });
    }
    top.insert(QStringLiteral("partitions"), rows);
    return top;
}
