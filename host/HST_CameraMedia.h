#pragma once

#include "host/HST_Media.h"

struct HST_CameraState;
struct HST_DocumentContext;

// A camera's own view of its SD, storage unit and CFast slots, as its documents answer the
// plug-in: slots counted from 0 per kind, data sets by number from 0, dates and times in the
// camera's binary-coded decimal. A slot that isn't there, or -1, is no slot: its status is all
// no, and asking about it is refused with a message naming the camera and the slot. An empty
// slot answers zeros; acting on it is refused. A file document has no media at all.
class HST_CameraMedia
{
public:
    HST_CameraMedia(HST_DocumentContext* context, HST_CameraState* camera);

    bool managed(HST_MediaKind kind) const;
    bool slotEnabled(HST_MediaKind kind, int index) const;
    // present: a card is in, the storage unit connected.
    void status(
        HST_MediaKind kind, int index, int& present, int& isProtected, int& formatted) const;
    void sdCardInfo(int index, int& speedMode, int& speedClass, int& megabytes) const;
    void vaultPackSpace(int slot, int& total, int& freeMegabytes) const;
    void cfastSpace(int slot, quint64& total, quint64& freeBytes, int& dataCount) const;
    // 0 past the last data set, and for a medium that isn't in or isn't formatted.
    int frames(HST_MediaKind kind, int index, int number) const;
    void dateTime(HST_MediaKind kind, int index, int number, int& date, int& time) const;
    QString dataName(int slot, int number) const;
    void setDataName(int slot, int number, const QString& name);
    // The first step empties the medium, the second marks it formatted.
    void format(HST_MediaKind kind, int index);
    void finishFormat(HST_MediaKind kind, int index);
    quint64 dataLimit(int slot) const;
    // The first connected slot of the storage unit, 0 when none is.
    int vaultPackSlotNo() const;

    // "2024/3/15" as 0x240315, "12:34:56" as 0x123456; 0 for a text that isn't one.
    static quint32 codedDate(const QString& date);
    static qint32 codedTime(const QString& time);

private:
    HST_Media::Slot* find(HST_MediaKind kind, int index) const;
    HST_Media::Slot& require(HST_MediaKind kind, int index) const;
    // Also refuses a slot whose medium was taken out.
    HST_Media::Slot& requireMedium(HST_MediaKind kind, int index) const;
    // The recording of a number, null past the last or on an empty medium.
    const HST_RecordingSpec* recording(HST_MediaKind kind, int index, int number) const;
    QString cameraName() const;

    HST_DocumentContext* m_context;
    HST_CameraState* m_camera;
};
