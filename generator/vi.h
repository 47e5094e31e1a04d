#pragma once

#include <QByteArray>
#include <QString>

// The one instrument session of the process over the VISA library, bound at run time so that
// the plug-in works without it. Only one thread uses it at a time: the connect worker while the
// GUI thread waits for it, the GUI thread otherwise.
namespace vi {

// Where the library is looked for: SYNC_VISA_LIBRARY if set; otherwise "visa64.dll" on Windows,
// and elsewhere our own VXI-11 library, as built beside the plug-in or by name on the library
// path.
QByteArray libraryFileName();

// True once the library is loaded with all six entry points; a library missing any is unloaded.
bool load(const char* fileName);
void unload();
bool isLoaded();

// Both sessions open. On failure one warning line; nothing is closed.
bool open(const QString& resource);
// Closes both sessions, whether open or not; failures give warning lines only.
void close();
// These three throw std::runtime_error on a negative status; positive completion codes pass.
void clear();
void sendCommandString(const QString& command);
QString recvString();

// The status of the most recent VISA call.
qint32 lastStatus();

} // namespace vi
