#pragma once

#include "plugin/APP_SaveRequest.h"
#include "save/FileDialogKind.h"

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QPair>

class APP_Host;

// One save of a file dialog: the paths of every chosen partition composed by the naming rule
// as one batch of the host's save registry, so that no two of them share a session, and then
// written by the host. A name the rule refuses stops the batch before anything is written.
class SaveBatch
{
public:
    // Document key to its partitions' paths, without extensions.
    using Paths = QList<QPair<int, QMap<int, QString>>>;

    SaveBatch(APP_Host* host, const FileDialogKind& kind, const QDateTime& dateTime);

    // In the page's order; a partition given twice counts once.
    void add(int docKey, int partition);
    bool isEmpty() const { return m_targets.isEmpty(); }

    // Throws UTL_Exception for a document that has gone, a partition it hasn't, and every
    // refusal of the naming rule; the registry's batch then ends with nothing planned.
    Paths compose();
    // What the host is told to write, from the dialog's preferences.
    APP_SaveRequest request();
    // Composes and has the host write each document; the batch ends either way.
    Paths run();

private:
    APP_Host* m_host;
    FileDialogKind m_kind;
    QDateTime m_dateTime;
    QList<QPair<int, QList<int>>> m_targets;
};
