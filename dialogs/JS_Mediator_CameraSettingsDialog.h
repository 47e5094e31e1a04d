#pragma once

#include "web/JS_Mediator_Dialog.h"

#include <QMap>

// The camera settings page's object: writes the settings of all cameras to a settings file
// (mode 0) or into the preset slots chosen for each camera (any other mode). A refused name or
// a failed write keeps the dialog open.
class JS_Mediator_CameraSettingsDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    JS_Mediator_CameraSettingsDialog(APP_Host* host, const QString& name, int dialogMode);

    QString filePath() const { return m_filePath; }

public slots:
    int getDialogMode();
    bool openFile();
    bool openFolder();
    // Compact JSON: FolderPath, FileName.
    QString getFilePathSettings();
    // One compact JSON object per device: key, name, ipaddress, devicename, presetno, selected,
    // selNone, presets.
    QVariantList getPresetList();
    QString addDateTime(const QString& format);
    // Compact JSON: userFileName, original, addTime, and addTimeFormat while a time is added.
    QString recvFileNameDialogData();
    void sendFileNameDialogData(const QString& sendData);
    QString getFileName(bool additional);
    QString getFileName();
    // sendData: {"dialogMode": n, "presetList": [{"key": k, "value": preset}, ...]}.
    void ok(const QString& sendData);
    void cancel();

private:
    bool qsetxFunc();
    bool presetFunc();
    QString fileNameOf(bool additional);

    int m_dialogMode;
    QMap<quint32, int> m_presets;
    QString m_filePath;
};
