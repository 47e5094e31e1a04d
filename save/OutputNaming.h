#pragma once

#include <QDateTime>
#include <QMap>
#include <QString>

class APP_Host;
class DOC_Interface;
struct OutputKeys;

// The one naming rule of every save, convert, snapshot and report: base, group and sub
// directory and file name, from the operation's preferences, one document and a time handed
// in, so that all names of a batch carry the same time. Nothing here writes to disk or to the
// preferences; the session searches read the disk as it is at that moment.
//
// A mode number picks the preference family: 6 and 11 convert, 7 snapshot, 16 and 17 report,
// any other save ("export/"). A callback type names one naming field (0 save group directory
// ... 11 report file name, 13 the storage unit's data name, 15 custom info display).

const OutputKeys& outputKeys(int mode);

// Digit counts of a field's number text; 3, 3 and 4 without a host, 0 for a type without keys.
int cameraDigits(APP_Host* host, int callbackType);
int headDigits(APP_Host* host, int callbackType);
int sessionDigits(APP_Host* host, int callbackType);

// Ends in "/" unless empty.
QString composeSaveDirectory(APP_Host* host, int mode, DOC_Interface* document);
QString composeGroupDirectory(APP_Host* host, int mode, DOC_Interface* document,
    const QString& fileName, const QDateTime& dateTime);
QString composeSubDirectory(APP_Host* host, int mode, DOC_Interface* document,
    const QString& fileName, const QDateTime& dateTime);
// Without extension.
QString composeFileName(APP_Host* host, int mode, DOC_Interface* document, int partition,
    bool includeOption, const QDateTime& dateTime);

// For each partition of the document: its group directory, target directory and full path,
// noted in the host's save registry. Throws UTL_Exception for a blank name where one is
// needed and for a path (or its thumbnail) longer than 245 characters.
void composeSavePaths(APP_Host* host, int mode, DOC_Interface* document, bool useDirectoryOverride,
    QMap<int, QString>& groupDirs, QMap<int, QString>& dirs, QMap<int, QString>& paths,
    const QDateTime& dateTime, int bracketStyle);
