#pragma once

#include "host/HST_Scenario.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantList>

// The removable media of the reference host's cameras: what each SD, storage unit and CFast
// slot holds, and the drive the PC sees it as. A drive is found by its letter, or by the
// number of its letter (A is 0) and the slot's place among the camera's slots of its kind.
// Formatting empties a slot; recordings open as documents of their own.
class HST_Media
{
public:
    struct Slot
    {
        HST_MediaSlotSpec spec;
        HST_MediaKind kind = HST_MediaKind::None;
        int camera = -1;
        int index = -1;
        // The password was given in this run.
        bool unlocked = false;
    };

    // The slots of the cameras, in order; what was there before goes.
    void reset(const QList<HST_CameraSpec>& cameras);

    unsigned sdDriveMask() const;
    // The SD drives the PC sees, by letter.
    QStringList sdDrives() const;
    // driveno, slotno, drivename, drivetype for each drive of the kind the PC sees.
    QVariantList drives(HST_MediaKind kind) const;
    // Throw APP_Exception for a drive the PC doesn't see.
    Slot& slot(HST_MediaKind kind, int driveNo, int slotNo);
    Slot& slotOfDrive(HST_MediaKind kind, const QString& drive);
    // Null for a camera index or slot out of range.
    Slot* slotOf(HST_MediaKind kind, int camera, int index);

    // One temporary document per recording, linked to it.
    QList<HST_DocumentSpec> recordingDocuments(const Slot& slot) const;
    // No recordings, nothing used, formatted.
    static void format(Slot& slot);
    static quint64 usedBytes(const Slot& slot);
    static quint64 capacityBytes(const Slot& slot);
    // The recording's name follows the document's.
    void rename(const HST_MediaLink& link, const QString& name);

    static QString kindName(HST_MediaKind kind);
    static QString serialNumber(int camera);

private:
    QList<Slot> m_slots;
};
