#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

// What a scenario's camera says of its presets and heads.
struct HST_CameraSetup
{
    // 0: a device with one head; 2 or more: a multi-head device, listed as one owner document
    // and one document per head.
    int heads = 0;
    // The texts of the camera's preset slots, one per slot.
    QStringList presets { QString(), QString(), QString() };
    // The camera takes a written preset only after a reboot.
    bool presetNeedsReboot = false;

    // The keys read here, for the camera's list of known keys.
    static QStringList keys();
    // Keys left out keep what out holds. False with the key and the problem on a bad value.
    static bool read(const QJsonObject& camera, const QString& path, HST_CameraSetup& out,
        QString& key, QString& problem);
};
