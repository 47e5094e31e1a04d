#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

// The host's camera settings file: JSON with a type, a version, the settings of each camera and
// a checksum over them, so that a truncated or edited file is told from a good one. Every camera
// holds every setting the simulation has.
class HST_SettingsFile
{
public:
    struct Camera
    {
        QString name;
        QString model;
        // Every name of settingNames() with its value.
        QMap<QString, int> settings;
    };

    // The names of the settings each camera holds, in the file's order.
    static QStringList settingNames();
    static QByteArray write(const QList<Camera>& cameras);
    // Nothing is left in out unless the whole file is good; error says what is wrong.
    static bool read(const QByteArray& data, QList<Camera>& out, QString& error);
};
