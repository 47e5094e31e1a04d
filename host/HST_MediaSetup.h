#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// One recording on a medium: a data set of the camera.
struct HST_RecordingSpec
{
    QString name;
    unsigned frames = 1000;
    // "yyyy/M/d" and "HH:mm:ss".
    QString date = QStringLiteral("2024/1/1");
    QString time = QStringLiteral("12:00:00");
};

// One slot of a camera's SD cards, storage unit or CFast cards, and the drive the PC sees it as.
struct HST_MediaSlotSpec
{
    bool present = true;
    bool formatted = true;
    // SD cards only.
    bool writeProtected = false;
    int speedMode = 0x8001;
    int speedClass = 10;
    quint64 capacityMegabytes = 65536;
    // Negative: what the recordings take.
    qint64 usedMegabytes = -1;
    quint64 writtenGigabytes = 0;
    // The storage unit only; empty: none.
    QString password;
    // The storage unit only: how many data sets the camera numbers with function 163.
    quint64 dataLimit = 1024;
    // "E:" and so on; empty: the PC doesn't see the slot.
    QString drive;
    int driveType = 0;
    QList<HST_RecordingSpec> recordings;
};

// A camera's removable media, slots in order from 0.
struct HST_MediaSpec
{
    QList<HST_MediaSlotSpec> sd;
    QList<HST_MediaSlotSpec> storageUnit;
    QList<HST_MediaSlotSpec> cfast;
};

// Which medium a document's recording lies on.
enum class HST_MediaKind { None, Sd, StorageUnit, CFast };

// What ties a document to a recording on a medium.
struct HST_MediaLink
{
    HST_MediaKind kind = HST_MediaKind::None;
    QString drive;
    QString serialNo;
    QString dataNo;
    // When it was recorded: "yyyy/M/d", "HH:mm:ss".
    QString date;
    QString time;
    // The camera (by index), slot and recording of the media model.
    int camera = -1;
    int slot = -1;
    int recording = -1;
};

// What the host's writer makes (upper case), the rest it refuses.
struct HST_WriterSpec
{
    QStringList formats { QStringLiteral("BMP"), QStringLiteral("TIFF"), QStringLiteral("JPEG"),
        QStringLiteral("PNG"), QStringLiteral("RAWQ"), QStringLiteral("QRAW"),
        QStringLiteral("ZRAW"), QStringLiteral("AVI") };
    QStringList codecs { QStringLiteral("RAW"), QStringLiteral("H264"), QStringLiteral("MJPEG"),
        QStringLiteral("MPEG2"), QStringLiteral("MPEG4"), QStringLiteral("HUFFYUV") };
};
