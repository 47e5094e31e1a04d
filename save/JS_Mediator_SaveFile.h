#pragma once

#include "web/JS_Mediator.h"

#include <QStringList>

// The settings page's bridge ("savefile") beside a file dialog's own: formats and codecs, free
// space, the folder choice, sample numbers and the number dialog, the multiple paths. The page
// keeps its fields in the preferences itself. Which naming fields it serves follows from the
// name of the dialog it belongs to.
class JS_Mediator_SaveFile : public JS_Mediator
{
    Q_OBJECT

public:
    JS_Mediator_SaveFile(APP_Host* host, const QString& dialogName);

    // The callback types of the dialog's group directory, sub directory and file name.
    int groupDirType() const;
    int subDirType() const;
    int fileNameType() const;

signals:
    void accepted();
    void rejected();
    void refreshed();
    void decision();
    void cancel();
    void apply();

public slots:
    void accept();
    void reject();
    void refresh();
    QString selectFolder(const QString& dir);
    void numberSetting4GroupDir();
    void numberSetting4SubDir();
    void numberSetting4FileName();
    QString addNumber4GroupDir();
    QString addNumber4SubDir();
    QString addNumber4FileName();
    QStringList getFileFormats(bool fromDevice);
    QStringList getSnapFileFormats();
    QStringList getLayoutFileFormats();
    QStringList getCodecFilters();
    QString getFreeSpace(const QString& path);
    bool isSnapMode();
    bool isConvertMode();
    bool isReportMode();
    QString getParentWidgetName();
    QString addDateTime(const QString& format);
    void selectedDocCount(int count);
    void selectedDocHeadCount(int count);
    bool isMovieFormat(const QString& format);
    bool isRawFormat(const QString& format);
    void editCustom(bool forTemporary);
    QString getMultiPaths();
    QString getMultiPathDevices();
    bool isNeedRefreshPreview();

private:
    void numberSetting(const char* name, int callbackType);
    QString sampleNumber(const char* name, int callbackType);

    bool m_snapMode;
    bool m_convertMode;
    bool m_reportMode;
    QString m_parentWidgetName;
    int m_selectedDocCount = 0;
    int m_selectedDocHeadCount = 0;
};
