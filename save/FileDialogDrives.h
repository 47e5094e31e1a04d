#pragma once

#include <QMap>
#include <QString>
#include <QVariantList>

class APP_Host;

// The drives of the cameras' removable media as a file dialog's page lists them: the SD drives
// by letter, the storage unit's and the CFast cards by the host's lists, each as compact JSON
// with the row to show chosen.
class FileDialogDrives
{
public:
    explicit FileDialogDrives(APP_Host* host);

    // Rebuilds the rows of SD drives.
    QString sdDrives();
    // The drive of a row of the last sdDrives; throws UTL_Exception for a row without one.
    QString sdDriveName(int recid) const;
    // The SD drive open now, "" when none: the host counts among the same drives.
    QString openSdDriveName() const;
    QString storageUnitDrives();
    QString cfastDrives();

    // Opens the SD drive of a row, after asking to close another one that is open.
    void selectSdDrive(int recid);
    // A unit that a password locks throws: asking for it is the password dialog's.
    void selectStorageUnit(int type, int driveNo, int slotNo, const QString& driveName);
    // Formats and tells the user how it went; a failure is logged, not thrown.
    void formatStorageUnit(int type, int driveNo, int slotNo);
    void formatCFast(int type, int driveNo, int slotNo);
    QString storageUnitUseRatio(int type, int driveNo, int slotNo);
    QString cfastUseRatio(int type, int driveNo, int slotNo);

    // Percent of the capacity in use, two places behind the point.
    static QString useRatio(quint64 used, quint64 capacity);
    // The host's amount over 1024 as a percentage, one place behind the point.
    static QString writtenAmount(quint64 amount);

private:
    // Type 0 opens the medium again, empty; type 1 leaves the host's media kind at 1.
    template <typename Format, typename Reopen>
    void format(const char* name, int type, Format&& format, Reopen&& reopen);
    static QString driveList(const QVariantList& drives);

    APP_Host* m_host;
    // Drive bit to drive name.
    QMap<unsigned, QString> m_sdDrives;
};
