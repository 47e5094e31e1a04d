#pragma once

#include <QList>

class DOC_Camera;

// Which cameras can lead and in which order the cameras of one sync stand. The order is the
// camera order of the whole run: the diagram draws it and the host receives it.

// A list is mixed when at least one camera has a non-zero exposure timing flag and one has 0.
bool mixedExposureTiming(const QList<DOC_Camera*>& cameras);

// Trigger modes a mixed list may use; the others are start-system modes.
bool allowsMixedExposure(int triggerMode);

// Trigger modes in which, in a mixed list, the cameras with the timing flag lead.
bool timingFlagFirst(int triggerMode);

// Sorts by address (external), or by exposure rank and address with the master first (chain),
// and logs the order.
void sortCameras(QList<DOC_Camera*>& cameras, quint32 masterAddress, bool external,
                 int timingFlagFirst);

// The cameras that may be master, in list order.
QList<DOC_Camera*> masterCandidates(const QList<DOC_Camera*>& cameras);

// The camera's address as one number, first octet in the top byte.
quint32 cameraAddress(DOC_Camera* camera);

// Sorts by address, ascending as unsigned numbers.
void sortByAddress(QList<DOC_Camera*>& cameras);
