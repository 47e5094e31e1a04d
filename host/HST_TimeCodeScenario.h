#pragma once

#include <QJsonValue>
#include <QString>

struct APP_TimeCodeRecord;

// The scenario's "timeCode": the time code record the host starts with.
class HST_TimeCodeScenario
{
public:
    HST_TimeCodeScenario() = delete;

    // False with the key and the problem when the value is refused.
    static bool read(
        const QJsonValue& value, APP_TimeCodeRecord& out, QString& key, QString& problem);
};
