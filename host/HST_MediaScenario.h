#pragma once

#include "host/HST_MediaSetup.h"

#include <QJsonValue>
#include <QList>
#include <QString>

struct HST_CameraSpec;

// The scenario's blocks about removable media and saving: a camera's "media", the drive
// letters of all cameras together, "loopSave" and "writer". Each gives false with the key and
// the problem when it refuses what it reads.
class HST_MediaScenario
{
public:
    HST_MediaScenario() = delete;

    struct Refusal
    {
        QString key;
        QString problem;
    };

    static bool readMedia(
        const QJsonValue& value, const QString& path, HST_MediaSpec& out, Refusal& refusal);
    // No drive letter twice, over all cameras.
    static bool checkDrives(const QList<HST_CameraSpec>& cameras, Refusal& refusal);
    static bool readLoopSave(const QJsonValue& value, bool& mode, bool& active, Refusal& refusal);
    static bool readWriter(const QJsonValue& value, HST_WriterSpec& out, Refusal& refusal);
};
