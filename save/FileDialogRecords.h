#pragma once

#include "save/FileDialogKind.h"

#include <QList>
#include <QPair>
#include <QSet>
#include <QString>
#include <QVariantMap>

class APP_Host;
class DOC_Interface;

// The rows of a file dialog's table: one JSON record per partition that can be saved, built
// from the host's description of each document. Files (the host in file mode) list every
// partition with frames, media recordings with their names and saved state; cameras list
// what the recording options leave of theirs, the rows to save preselected.
class FileDialogRecords
{
public:
    using Pairs = QList<QPair<QString, QString>>;

    FileDialogRecords(APP_Host* host, const FileDialogKind& kind);

    // savedCheckDone: media rows not among saved (serial number, data number) are marked red.
    void setSavedCheck(bool done, const Pairs& saved);
    // The compact JSON array; the keys of the documents given out in documentKeys.
    QString list(bool temporary);
    // The documents the last list gave rows for.
    const QList<int>& documentKeys() const { return m_documentKeys; }

private:
    struct Flags
    {
        bool liveMode = false;
        bool loopSave = false;
        bool loopRecord = false;
        bool autoIncrement = false;
        bool stopAfterLast = false;
    };

    QList<int> keysToList(bool temporary);
    void fileRows(DOC_Interface* document, const QVariantMap& top);
    void cameraRows(DOC_Interface* document, const QVariantMap& top, const Flags& flags);

    APP_Host* m_host;
    FileDialogKind m_kind;
    bool m_savedCheckDone = false;
    QSet<QPair<QString, QString>> m_saved;
    int m_recid = 0;
    QString m_text;
    QList<int> m_documentKeys;
};
