#pragma once

#include <QImage>
#include <QList>
#include <QString>

// A Motion-JPEG AVI file: what the host's writer makes of a movie.
class HST_AviWriter
{
public:
    HST_AviWriter() = delete;

    // All frames the size of the first. False with the reason when the file can't be written.
    static bool write(
        const QString& path, const QList<QImage>& frames, int framesPerSecond, QString& error);
};
