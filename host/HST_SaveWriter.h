#pragma once

#include "host/HST_InfoFile.h"
#include "host/HST_Scenario.h"
#include "plugin/APP_SaveRequest.h"

#include <QMap>
#include <QStringList>

// The host's side of a save: at each path the plug-in composed, a file of the chosen format
// made from the document's frames (an image format: its first frame; a raw format or a movie:
// every skip-th frame, at most maxFrames of them, at most 320 x 240), and beside it the
// information file and the thumbnail the request asks for.
class HST_SaveWriter
{
public:
    explicit HST_SaveWriter(const HST_WriterSpec& spec);

    struct Source
    {
        int key = 0;
        QString title;
        QList<HST_PartitionSpec> partitions;
        // What the information file says beside the partition's own figures.
        HST_InfoFile::Fields info;
        int framesPerSecond = 30;
    };

    static constexpr int maxFrames = 8;

    // Checks everything first and throws APP_Exception, writing nothing, for a format or codec
    // it doesn't make, a partition the document hasn't or an empty path; then writes, and
    // throws when a file can't be written, what was written staying. written gets every file.
    void write(const Source& source, const QMap<int, QString>& paths,
        const APP_SaveRequest& request, QStringList& written) const;

    // The extension of a format's files, with the dot.
    static QString extension(const QString& format);
    static bool isMovie(const QString& format);
    static bool isRaw(const QString& format);

private:
    void writePartition(const Source& source, const HST_PartitionSpec& partition,
        const QString& path, const APP_SaveRequest& request, QStringList& written) const;

    HST_WriterSpec m_spec;
};
