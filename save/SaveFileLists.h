#pragma once

#include <QList>
#include <QPair>
#include <QString>

// The lists the settings page keeps in text preferences: the multiple paths ("id|path" pieces
// joined by "?"), the devices' choice among them ("address|id" the same way), and the
// information overlay's display lists ("item:bool" pieces joined by ","). Any text is read
// without failing; what isn't an entry is passed over.
class SaveFileLists
{
public:
    SaveFileLists() = delete;

    // The pieces of exactly two non-empty parts, in order.
    static QList<QPair<QString, QString>> pairs(const QString& text);
    // [{"recid": 1, "name": id, "path": path}, ...] as compact JSON.
    static QString multiPathsJson(const QString& text);
    // One object per address (given in order, repeated ones once): recid from 0, device,
    // paths as {"key", "val"}, pathselector (the device's id, or the first path's when it has
    // none among them) and path.
    static QString multiPathDevicesJson(
        const QString& pathList, const QString& deviceList, const QList<QString>& addresses);
    // The display list turns the file name on.
    static bool showsFileName(const QString& displayList);
};
