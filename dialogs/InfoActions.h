#pragma once

#include <QList>
#include <QSize>
#include <QString>

class APP_Host;
class DOC_Interface;
class QDateTime;
class QWidget;

// What the edit info dialog does beyond its preferences: the dialogs it opens for single
// items, the choice of the logo, and the preview of the save form.
class InfoActions
{
public:
    enum class SubDialog {
        Comment,
        Custom,
        TimeCode,
        ShutterFormat,
        RectimeFormat,
        RecordRateFormat,
        FrameFormat
    };

    InfoActions() = delete;

    // Runs the dialog modally over parent; document: the comment dialog's.
    static void runSubDialog(
        APP_Host* host, QWidget* parent, SubDialog which, DOC_Interface* document);
    // Asks for an image and stores it as the form's logo; the documents of keys read it again.
    // A file that is no readable image is refused with a message. False when nothing changed.
    static bool chooseLogo(
        APP_Host* host, QWidget* parent, bool isSaveView, const QList<int>& keys);
    // The document's preview with the information of a set, as base64 PNG; size: the
    // pixmap's. Sizes are held to what a page can show.
    static QString thumbnail(DOC_Interface* document, int mode, QSize size, int partition, int set,
        const QDateTime& dateTime, QSize& pixmapSize);
    static QString exportLanguage(APP_Host* host);
};
