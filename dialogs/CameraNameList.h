#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class APP_Host;
class QIODevice;
class QTextCodec;

// The camera name list a user keeps for completion in the device dialogs: one line per
// category, "category,name,name,...", in Shift-JIS or UTF-8, at the path of the preference
// "usercustom/cameraNameFilePath". Read anew at each use; nothing is cached.
using CameraNameMap = QMap<QString, QStringList>;

// The category of the names of a line whose first field is empty.
extern const char* const defaultCameraCategory;

// Fills the map from the file; true when it was read to its end.
bool readCameraNameList(APP_Host* host, CameraNameMap& map);
// True when the file exists.
bool cameraNameListExists(APP_Host* host);

// The lines of an open device, read from its start; the map is merged into.
void readCameraNameLines(QIODevice& device, CameraNameMap& map);
// Valid UTF-8 (plain ASCII included) reads as UTF-8; anything else that decodes cleanly as
// Shift-JIS as Shift-JIS, whatever the system's locale; the rest as UTF-8 with replacements.
QTextCodec* cameraNameListCodec(const QByteArray& bytes);
