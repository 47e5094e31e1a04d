#include "dialogs/InfoActions.h"

#include "dialogs/GUI_CommentDialog.h"
#include "dialogs/GUI_CustomInfoDialog.h"
#include "dialogs/GUI_FrameFormatDialog.h"
#include "dialogs/GUI_RecordRateFormatDialog.h"
#include "dialogs/GUI_RectimeFormatDialog.h"
#include "dialogs/GUI_ShutterSpeedFormatDialog.h"
#include "dialogs/GUI_TimeCodeCustomDialog.h"
#include "plugin/APP_Host.h"
#include "plugin/APP_PauseGuard.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/UTL_Messages.h"

#include <QBuffer>
#include <QDateTime>
#include <QFileDialog>
#include <QImageReader>
#include <QPixmap>

#include <optional>

namespace {

// The custom info dialog's type for the items the information block shows.
const int displayCallbackType = 15;
const int largestPreviewSide = 4096;

} // namespace

void InfoActions::runSubDialog(
    APP_Host* host, QWidget* parent, SubDialog which, DOC_Interface* document)
{
    switch (which) {
    case SubDialog::Comment: {
        GUI_CommentDialog dialog(host, document);
        dialog.exec();
        break;
    }
    case SubDialog::Custom: {
        GUI_CustomInfoDialog dialog(host, parent, false);
        dialog.setCallbackType(displayCallbackType);
        dialog.exec();
        break;
    }
    case SubDialog::TimeCode: {
        GUI_TimeCodeCustomDialog dialog(host, parent);
        dialog.exec();
        break;
    }
    case SubDialog::ShutterFormat: {
        GUI_ShutterSpeedFormatDialog dialog(host, parent);
        dialog.exec();
        break;
    }
    case SubDialog::RectimeFormat: {
        GUI_RectimeFormatDialog dialog(host, parent);
        dialog.exec();
        break;
    }
    case SubDialog::RecordRateFormat: {
        GUI_RecordRateFormatDialog dialog(host, parent);
        dialog.exec();
        break;
    }
    case SubDialog::FrameFormat: {
        GUI_FrameFormatDialog dialog(host, parent);
        dialog.exec();
        break;
    }
    }
}

bool InfoActions::chooseLogo(
    APP_Host* host, QWidget* parent, bool isSaveView, const QList<int>& keys)
{
    const QString& key = isSaveView ? PREF_KEY_SAVEINFO_LOGO_PATH : PREF_KEY_INFO_LOGO_PATH;
    QString stored;
    host->getPrefString(stored, key, QVariant());
    // The stored path gives the start folder and the file chosen in it.
    const QString path = QFileDialog::getOpenFileName(parent,
        UTL_Messages::translate(host, QStringLiteral("Logo Setting")), stored,
        QStringLiteral("Image files (*.bmp *.jpg *.png)"));
    if (path.isEmpty())
        return false;
    if (!QImageReader(path).canRead()) {
        host->showWarning(UTL_Messages::translate(host,
                              QStringLiteral("The logo must be an image file that can be read.")),
            parent);
        return false;
    }
    // A running live view or playback draws the logo: it waits while the logo changes.
    const int kind = host->saveTargetKind();
    std::optional<APP_PauseGuard> pause;
    if (kind == 0 || kind == 1)
        pause.emplace(host, true, false);
    host->setPrefString(key, path);
    for (int documentKey : keys) {
        if (DOC_Interface* document = host->document(documentKey))
            document->reloadLogo();
    }
    return true;
}

QString InfoActions::thumbnail(DOC_Interface* document, int mode, QSize size, int partition,
    int set, const QDateTime& dateTime, QSize& pixmapSize)
{
    pixmapSize = QSize();
    if (!document)
        return QString();
    size = size.boundedTo(QSize(largestPreviewSide, largestPreviewSide)).expandedTo(QSize(1, 1));
    const QPixmap pixmap
        = document->previewPixmap(mode, size.width(), size.height(), partition, set, dateTime);
    pixmapSize = pixmap.size();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    pixmap.save(&buffer, "PNG");
    return QString::fromLatin1(bytes.toBase64());
}

QString InfoActions::exportLanguage(APP_Host* host)
{
    const char* language = "Same as operating language";
    switch (host->getPrefInt(PREF_KEY_DISPLAY_OUTPUT_LANGUAGE, QVariant())) {
    case 1:
        language = "English";
        break;
    case 2:
        language = "Japanese";
        break;
    default:
        break;
    }
    return UTL_Messages::translate(host, QStringLiteral("Output Language Setting"))
        + QStringLiteral(" : ") + UTL_Messages::translate(host, QLatin1String(language));
}
