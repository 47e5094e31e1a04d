#include "host/HST_InfoHost.h"

#include "host/HST_Document.h"
#include "host/HST_InfoOverlay.h"
#include "host/HST_InfoValues.h"
#include "host/HST_Preferences.h"
#include "host/HST_Preview.h"
#include "host/HST_Recorder.h"
#include "plugin/SharedKeys.h"

#include <QImageReader>
#include <QPainter>

#include <cmath>

HST_InfoHost::HST_InfoHost(HST_Recorder* recorder, const APP_TimeCodeRecord& timeCode)
    : HST_MediaHost(recorder)
    , m_infoRecorder(recorder)
    , m_timeCode(timeCode)
{
    documentContext().info = this;
}

void HST_InfoHost::record(const QString& call, const QJsonObject& fields)
{
    if (m_infoRecorder)
        m_infoRecorder->record(call, fields);
}

QImage HST_InfoHost::logo(const QString& path)
{
    if (path.isEmpty())
        return QImage();
    auto found = m_logos.constFind(path);
    if (found != m_logos.constEnd())
        return found.value();
    QImageReader reader(path);
    QImage image = reader.read();
    if (image.isNull())
        qWarning("information block: the logo %s can't be read: %s", qPrintable(path),
            qPrintable(reader.errorString()));
    m_logos.insert(path, image);
    return image;
}

void HST_InfoHost::reloadLogos()
{
    m_logos.clear();
    hostStateChanged();
}

void HST_InfoHost::paintInformation(int key, QPainter& painter, const QRect& area)
{
    const HST_Document* document = openDocument(key);
    const HST_Preferences* prefs = documentContext().prefs;
    if (!m_showing || !document || !prefs)
        return;
    const HST_InfoStyle style = HST_InfoStyle::screen(*prefs);
    const HST_InfoValues::Source source { document, prefs, &m_timeCode,
        [this](const QString& text) { return informationText(text); } };
    const QList<HST_InfoLine> lines
        = HST_InfoValues::lines(source, informationMode(), style.displayText, style.blankLine);
    HST_InfoOverlay::paint(painter, area, style, lines, logo(style.logoPath));
}

QPixmap HST_InfoHost::informationPreview(
    const HST_Document& document, const QSize& size, int partition, int set)
{
    const HST_Preferences* prefs = documentContext().prefs;
    if (!prefs)
        return QPixmap::fromImage(HST_Preview::letterboxed(document, size, partition));
    const HST_InfoStyle style = HST_InfoStyle::save(*prefs, set);
    const HST_InfoValues::Source source { &document, prefs, &m_timeCode,
        [this](const QString& text) { return informationText(text); } };
    const QList<HST_InfoLine> lines
        = HST_InfoValues::lines(source, HST_InfoValues::savedPicture, style.displayText, false);
    // The font size counts pixels of the image, or of the base resolution when the ratio of
    // the font to the picture is fixed.
    const QSize base = style.fixedFontSizeRatio && style.baseResolution.height() > 0
        ? style.baseResolution
        : document.resolution();
    const double scale = double(size.height()) / qMax(1, base.height());
    const QRect whole(QPoint(), size);
    const int below = style.withinImage
        ? 0
        : qMin(size.height() - 1, HST_InfoOverlay::height(whole, style, lines, scale));
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    const QSize frameSize(size.width(), size.height() - below);
    painter.drawImage(0, 0, HST_Preview::letterboxed(document, frameSize, partition));
    // Within the image: over the frame itself; else in the strip below it.
    const QRect textArea = style.withinImage
        ? HST_Preview::frameRect(document, frameSize, partition)
        : QRect(0, frameSize.height(), size.width(), below);
    HST_InfoOverlay::paint(painter, textArea, style, lines, logo(style.logoPath), scale);
    painter.end();
    return QPixmap::fromImage(image);
}

QString& HST_InfoHost::itemLabel(QString& out, const QString& key)
{
    hostCall("itemLabel");
    out = key;
    for (const InfoItem* item = INFO_ITEMS; !item->key.isEmpty(); ++item) {
        if (item->key == key && !item->label.isEmpty()) {
            out = informationText(item->label);
            break;
        }
    }
    return out;
}

bool HST_InfoHost::isDisplayInfoShowing()
{
    hostCall("isDisplayInfoShowing");
    return m_showing;
}

void HST_InfoHost::setDisplayInfoShowing(bool show)
{
    hostCall("setDisplayInfoShowing");
    m_showing = show;
    record(QStringLiteral("setDisplayInfoShowing"), { { QStringLiteral("show"), show } });
    hostStateChanged();
}

void HST_InfoHost::getTimeCodeSettings(APP_TimeCodeRecord* record)
{
    hostCall("getTimeCodeSettings");
    if (record)
        *record = m_timeCode;
}

void HST_InfoHost::setTimeCodeSettings(APP_TimeCodeRecord* settings)
{
    hostCall("setTimeCodeSettings");
    if (!settings)
        return;
    m_timeCode = *settings;
    record(QStringLiteral("setTimeCodeSettings"),
        { { QStringLiteral("index"), m_timeCode.index },
            { QStringLiteral("displayUnit"), m_timeCode.displayUnit },
            { QStringLiteral("oneFrame"), m_timeCode.oneFrame },
            { QStringLiteral("startValue"), m_timeCode.startValue },
            { QStringLiteral("reset"), m_timeCode.reset },
            { QStringLiteral("resetValue"), m_timeCode.resetValue },
            { QStringLiteral("scopeDisplayIndex"), m_timeCode.scopeDisplayIndex },
            { QStringLiteral("decimalPlaceIndex"), m_timeCode.decimalPlaceIndex },
            { QStringLiteral("decimalDivide"), m_timeCode.decimalDivide },
            { QStringLiteral("usingFileInfo"), m_timeCode.usingFileInfo },
            { QStringLiteral("overwrite"), m_timeCode.overwrite },
            { QStringLiteral("realTime"), m_timeCode.realTime } });
    hostStateChanged();
}

void HST_InfoHost::setOverlayFont(const QString& font, int set)
{
    hostCall("setOverlayFont");
    record(QStringLiteral("setOverlayFont"),
        { { QStringLiteral("font"), font }, { QStringLiteral("set"), set } });
}
