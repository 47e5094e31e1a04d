#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

class HST_Host;

// The support file: a ZIP archive, written with KArchive's KZip, holding one entry for each item
// the export's question lists. What goes in is collected on the GUI thread (the pictures are
// grabbed there); the archive is written on the caller's thread.
class HST_SupportFile
{
public:
    struct Sources
    {
        QByteArray cameraSettings;
        QByteArray hostSettings;
        QByteArray operationLog;
        QByteArray sdkLog;
        // Empty when no camera keeps a log of its own (function 176 or 158).
        QByteArray cameraLog;
        QByteArray environment;
        QByteArray version;
        QImage screenCapture;
        QImage currentImage;
    };

    // On the GUI thread.
    static Sources collect(HST_Host& host);
    // Gives the entries written; false, with error set, when the archive can't be written.
    static bool write(
        const QString& path, const Sources& sources, QStringList& entries, QString& error);

private:
    static QByteArray png(const QImage& image);
};
