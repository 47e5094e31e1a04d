#include "host/HST_Media.h"

#include "util/APP_Exception.h"

#include <QVariantMap>

namespace {

const quint64 megabyte = quint64(1024) * 1024;
// What a frame takes on a medium: one byte a pixel of a 640 x 480 frame.
const quint64 frameBytes = quint64(640) * 480;

int letterNumber(const QString& drive)
{
    return drive.isEmpty() ? -1 : drive.at(0).unicode() - 'A';
}

} // namespace

void HST_Media::reset(const QList<HST_CameraSpec>& cameras)
{
    m_slots.clear();
    for (int c = 0; c < cameras.size(); ++c) {
        const HST_MediaSpec& media = cameras.at(c).media;
        const struct
        {
            HST_MediaKind kind;
            const QList<HST_MediaSlotSpec>* specs;
        } kinds[] = { { HST_MediaKind::Sd, &media.sd },
            { HST_MediaKind::StorageUnit, &media.storageUnit },
            { HST_MediaKind::CFast, &media.cfast } };
        for (const auto& kind : kinds) {
            for (int i = 0; i < kind.specs->size(); ++i)
                m_slots.append({ kind.specs->at(i), kind.kind, c, i, false });
        }
    }
}

unsigned HST_Media::sdDriveMask() const
{
    unsigned mask = 0;
    for (const Slot& slot : m_slots) {
        if (slot.kind == HST_MediaKind::Sd && !slot.spec.drive.isEmpty() && slot.spec.present)
            mask |= 1u << letterNumber(slot.spec.drive);
    }
    return mask;
}

QStringList HST_Media::sdDrives() const
{
    QStringList names;
    const unsigned mask = sdDriveMask();
    for (int bit = 0; bit < 26; ++bit) {
        if (mask & (1u << bit))
            names.append(QString(QChar('A' + bit)) + QLatin1Char(':'));
    }
    return names;
}

QVariantList HST_Media::drives(HST_MediaKind kind) const
{
    QVariantList list;
    for (const Slot& slot : m_slots) {
        if (slot.kind != kind || slot.spec.drive.isEmpty() || !slot.spec.present)
            continue;
        list.append(QVariantMap { { QStringLiteral("driveno"), letterNumber(slot.spec.drive) },
            { QStringLiteral("slotno"), slot.index },
            { QStringLiteral("drivename"), slot.spec.drive },
            { QStringLiteral("drivetype"), slot.spec.driveType } });
    }
    return list;
}

HST_Media::Slot& HST_Media::slot(HST_MediaKind kind, int driveNo, int slotNo)
{
    for (Slot& slot : m_slots) {
        if (slot.kind == kind && slot.spec.present && !slot.spec.drive.isEmpty()
            && letterNumber(slot.spec.drive) == driveNo && slot.index == slotNo)
            return slot;
    }
    throw APP_Exception(QStringLiteral("There is no %1 drive %2 with slot %3.")
                            .arg(kindName(kind))
                            .arg(driveNo)
                            .arg(slotNo),
        1);
}

HST_Media::Slot& HST_Media::slotOfDrive(HST_MediaKind kind, const QString& drive)
{
    for (Slot& slot : m_slots) {
        if (slot.kind == kind && slot.spec.present && slot.spec.drive == drive && !drive.isEmpty())
            return slot;
    }
    throw APP_Exception(
        QStringLiteral("There is no %1 drive \"%2\".").arg(kindName(kind), drive), 1);
}

HST_Media::Slot* HST_Media::slotOf(HST_MediaKind kind, int camera, int index)
{
    for (Slot& slot : m_slots) {
        if (slot.kind == kind && slot.camera == camera && slot.index == index)
            return &slot;
    }
    return nullptr;
}

QList<HST_DocumentSpec> HST_Media::recordingDocuments(const Slot& slot) const
{
    QList<HST_DocumentSpec> documents;
    for (int r = 0; r < slot.spec.recordings.size(); ++r) {
        const HST_RecordingSpec& recording = slot.spec.recordings.at(r);
        HST_DocumentSpec document;
        document.baseName = recording.name;
        document.filePath = slot.spec.drive + QLatin1Char('/') + recording.name;
        document.temporary = true;
        HST_PartitionSpec partition;
        partition.name = recording.name;
        partition.frames = recording.frames;
        document.partitions = { partition };
        document.media.kind = slot.kind;
        document.media.drive = slot.spec.drive;
        document.media.serialNo = serialNumber(slot.camera);
        document.media.dataNo = QString::number(r + 1);
        document.media.date = recording.date;
        document.media.time = recording.time;
        document.media.camera = slot.camera;
        document.media.slot = slot.index;
        document.media.recording = r;
        documents.append(document);
    }
    return documents;
}

void HST_Media::format(Slot& slot)
{
    slot.spec.recordings.clear();
    slot.spec.usedMegabytes = 0;
    slot.spec.formatted = true;
}

quint64 HST_Media::usedBytes(const Slot& slot)
{
    if (slot.spec.usedMegabytes >= 0)
        return quint64(slot.spec.usedMegabytes) * megabyte;
    quint64 bytes = 0;
    for (const HST_RecordingSpec& recording : slot.spec.recordings)
        bytes += quint64(recording.frames) * frameBytes;
    return qMin(bytes, capacityBytes(slot));
}

quint64 HST_Media::capacityBytes(const Slot& slot)
{
    return slot.spec.capacityMegabytes * megabyte;
}

void HST_Media::rename(const HST_MediaLink& link, const QString& name)
{
    Slot* slot = slotOf(link.kind, link.camera, link.slot);
    if (slot && link.recording >= 0 && link.recording < slot->spec.recordings.size())
        slot->spec.recordings[link.recording].name = name;
}

QString HST_Media::kindName(HST_MediaKind kind)
{
    switch (kind) {
    case HST_MediaKind::Sd:
        return QStringLiteral("SD");
    case HST_MediaKind::StorageUnit:
        return QStringLiteral("storage unit");
    case HST_MediaKind::CFast:
        return QStringLiteral("CFast");
    case HST_MediaKind::None:
        break;
    }
    return QString();
}

QString HST_Media::serialNumber(int camera)
{
    return QString::number(100000 + camera);
}
