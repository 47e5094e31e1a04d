#pragma once

#include <QString>

// What the host needs beyond the composed paths to write one document's output.
struct APP_SaveRequest
{
    // The naming mode the paths were composed in: 1 save, 6 convert, 7 snapshot, 16 report.
    int mode = 1;
    // As the settings page offers it, in upper case: "BMP", "TIFF", "AVI", ...
    QString format;
    // The movie codec, as the settings page offers it.
    QString codec;
    // Every n-th frame is written.
    int skipFrames = 1;
    // An information file beside each output.
    bool saveInfo = false;
    // A small picture beside each output, its name the path and thumbnailSuffix.
    bool saveThumbnail = false;
    QString thumbnailSuffix;
};
