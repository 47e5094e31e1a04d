#include "host/HST_CameraMedia.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "util/APP_Exception.h"

#include <QDate>
#include <QTime>

#include <climits>

namespace {

const quint64 megabyte = quint64(1024) * 1024;

quint32 bcd(int value)
{
    return quint32((value / 10) % 10) << 4 | quint32(value % 10);
}

QString slotName(HST_MediaKind kind, int index)
{
    return QStringLiteral("%1 slot %2").arg(HST_Media::kindName(kind)).arg(index + 1);
}

} // namespace

HST_CameraMedia::HST_CameraMedia(HST_DocumentContext* context, HST_CameraState* camera)
    : m_context(context)
    , m_camera(camera)
{
}

quint32 HST_CameraMedia::codedDate(const QString& date)
{
    const QDate parsed = QDate::fromString(date, QStringLiteral("yyyy/M/d"));
    if (!parsed.isValid())
        return 0;
    return bcd(parsed.year() % 100) << 16 | bcd(parsed.month()) << 8 | bcd(parsed.day());
}

qint32 HST_CameraMedia::codedTime(const QString& time)
{
    const QTime parsed = QTime::fromString(time, QStringLiteral("HH:mm:ss"));
    if (!parsed.isValid())
        return 0;
    return qint32(bcd(parsed.hour()) << 16 | bcd(parsed.minute()) << 8 | bcd(parsed.second()));
}

QString HST_CameraMedia::cameraName() const
{
    return m_camera ? m_camera->spec.name : QString();
}

HST_Media::Slot* HST_CameraMedia::find(HST_MediaKind kind, int index) const
{
    if (!m_camera || !m_context || !m_context->media || index < 0)
        return nullptr;
    return m_context->media->slotOf(kind, m_camera->index, index);
}

HST_Media::Slot& HST_CameraMedia::require(HST_MediaKind kind, int index) const
{
    HST_Media::Slot* slot = find(kind, index);
    if (!slot) {
        if (!m_camera)
            throw APP_Exception(
                QStringLiteral("A file has no %1 slots.").arg(HST_Media::kindName(kind)), 1);
        throw APP_Exception(
            QStringLiteral("%1 has no %2.").arg(cameraName(), slotName(kind, index)), 1);
    }
    return *slot;
}

HST_Media::Slot& HST_CameraMedia::requireMedium(HST_MediaKind kind, int index) const
{
    HST_Media::Slot& slot = require(kind, index);
    if (!slot.spec.present)
        throw APP_Exception(QStringLiteral("There is no medium in %1 of %2.")
                                .arg(slotName(kind, index), cameraName()),
            1);
    return slot;
}

bool HST_CameraMedia::managed(HST_MediaKind kind) const
{
    return find(kind, 0) != nullptr;
}

bool HST_CameraMedia::slotEnabled(HST_MediaKind kind, int index) const
{
    return find(kind, index) != nullptr;
}

void HST_CameraMedia::status(
    HST_MediaKind kind, int index, int& present, int& isProtected, int& formatted) const
{
    present = isProtected = formatted = 0;
    const HST_Media::Slot* slot = find(kind, index);
    if (!slot || !slot->spec.present)
        return;
    present = 1;
    isProtected = slot->spec.writeProtected ? 1 : 0;
    formatted = slot->spec.formatted ? 1 : 0;
}

void HST_CameraMedia::sdCardInfo(int index, int& speedMode, int& speedClass, int& megabytes) const
{
    speedMode = speedClass = megabytes = 0;
    const HST_Media::Slot& slot = require(HST_MediaKind::Sd, index);
    if (!slot.spec.present)
        return;
    speedMode = slot.spec.speedMode;
    speedClass = slot.spec.speedClass;
    megabytes = int(qMin<quint64>(slot.spec.capacityMegabytes, INT_MAX));
}

void HST_CameraMedia::vaultPackSpace(int index, int& total, int& freeMegabytes) const
{
    total = freeMegabytes = 0;
    const HST_Media::Slot& slot = require(HST_MediaKind::StorageUnit, index);
    if (!slot.spec.present)
        return;
    const quint64 capacity = HST_Media::capacityBytes(slot);
    total = int(qMin<quint64>(slot.spec.capacityMegabytes, INT_MAX));
    freeMegabytes = int(qMin<quint64>((capacity - HST_Media::usedBytes(slot)) / megabyte, INT_MAX));
}

void HST_CameraMedia::cfastSpace(
    int index, quint64& total, quint64& freeBytes, int& dataCount) const
{
    total = freeBytes = 0;
    dataCount = 0;
    const HST_Media::Slot& slot = require(HST_MediaKind::CFast, index);
    if (!slot.spec.present)
        return;
    total = HST_Media::capacityBytes(slot);
    freeBytes = total - HST_Media::usedBytes(slot);
    dataCount = slot.spec.formatted ? slot.spec.recordings.size() : 0;
}

const HST_RecordingSpec* HST_CameraMedia::recording(HST_MediaKind kind, int index, int number) const
{
    const HST_Media::Slot& slot = require(kind, index);
    if (!slot.spec.present || !slot.spec.formatted || number < 0
        || number >= slot.spec.recordings.size())
        return nullptr;
    return &slot.spec.recordings.at(number);
}

int HST_CameraMedia::frames(HST_MediaKind kind, int index, int number) const
{
    const HST_RecordingSpec* data = recording(kind, index, number);
    return data ? int(data->frames) : 0;
}

void HST_CameraMedia::dateTime(
    HST_MediaKind kind, int index, int number, int& date, int& time) const
{
    const HST_RecordingSpec* data = recording(kind, index, number);
    date = data ? int(codedDate(data->date)) : 0;
    time = data ? codedTime(data->time) : 0;
}

QString HST_CameraMedia::dataName(int slot, int number) const
{
    const HST_RecordingSpec* data = recording(HST_MediaKind::StorageUnit, slot, number);
    return data ? data->name : QString();
}

void HST_CameraMedia::setDataName(int index, int number, const QString& name)
{
    HST_Media::Slot& slot = requireMedium(HST_MediaKind::StorageUnit, index);
    if (number < 0 || number >= slot.spec.recordings.size())
        throw APP_Exception(QStringLiteral("%1 of %2 holds no data set %3.")
                                .arg(slotName(HST_MediaKind::StorageUnit, index), cameraName())
                                .arg(number),
            1);
    if (name.isEmpty())
        throw APP_Exception(QStringLiteral("A data set needs a name."), 1);
    slot.spec.recordings[number].name = name;
}

void HST_CameraMedia::format(HST_MediaKind kind, int index)
{
    HST_Media::Slot& slot = requireMedium(kind, index);
    if (slot.spec.writeProtected)
        throw APP_Exception(QStringLiteral("The card in %1 of %2 is write protected.")
                                .arg(slotName(kind, index), cameraName()),
            1);
    if (m_context && m_context->formatSlot)
        m_context->formatSlot(kind, m_camera->index, index);
    else
        HST_Media::format(slot);
    slot.spec.formatted = false;
}

void HST_CameraMedia::finishFormat(HST_MediaKind kind, int index)
{
    requireMedium(kind, index).spec.formatted = true;
}

quint64 HST_CameraMedia::dataLimit(int index) const
{
    return require(HST_MediaKind::StorageUnit, index).spec.dataLimit;
}

int HST_CameraMedia::vaultPackSlotNo() const
{
    int index = 0;
    while (const HST_Media::Slot* slot = find(HST_MediaKind::StorageUnit, index)) {
        if (slot->spec.present)
            return index;
        ++index;
    }
    return 0;
}
