#pragma once

#include "host/HST_MediaHost.h"
#include "plugin/APP_TimeCodeRecord.h"

#include <QHash>
#include <QImage>
#include <QPixmap>

class QPainter;

// The information block of the reference host: the items' labels, the time code record, and
// the block drawn over each document's image from the info/ preferences, or over a preview
// from a set of the saveinfo/ ones. HST_Host adds the rest.
class HST_InfoHost : public HST_MediaHost
{
public:
    HST_InfoHost(HST_Recorder* recorder, const APP_TimeCodeRecord& timeCode);

    // The host's own view: neither recorded nor faulted.
    const APP_TimeCodeRecord& timeCodeRecord() const { return m_timeCode; }
    // Draws the block of the document of key over its image, which fills area.
    void paintInformation(int key, QPainter& painter, const QRect& area);
    // The preview of a document with the block of a set of the save form.
    QPixmap informationPreview(
        const HST_Document& document, const QSize& size, int partition, int set);
    // Logos are read again at their next drawing.
    void reloadLogos();

    // APP_Host
    QString& itemLabel(QString& out, const QString& key) override;
    bool isDisplayInfoShowing() override;
    void setDisplayInfoShowing(bool show) override;
    void getTimeCodeSettings(APP_TimeCodeRecord* record) override;
    void setTimeCodeSettings(APP_TimeCodeRecord* record) override;
    void setOverlayFont(const QString& font, int set) override;

protected:
    // 0 live, 1 memory, 2 file.
    virtual int informationMode() const = 0;
    // The host's translation for its own texts.
    virtual QString informationText(const QString& sourceText) const = 0;

private:
    // Null when the file is gone or holds no image; told once a path.
    QImage logo(const QString& path);
    void record(const QString& call, const QJsonObject& fields);

    HST_Recorder* m_infoRecorder;
    APP_TimeCodeRecord m_timeCode;
    bool m_showing = true;
    QHash<QString, QImage> m_logos;
};
