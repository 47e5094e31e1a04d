#pragma once

#include <QList>

class APP_Host;

// The orders in which lists of documents are shown: 1/2 by sort name up/down, 3/4 by recording
// date and time up/down, 5 the host's own order; any other kind leaves the keys as given.
QList<int> sortDocumentKeys(APP_Host* host, int kind, const QList<int>& keys, bool keepGivenOrder);
