#pragma once

// A reference host over a scenario given as JSON, keeping its preferences in dir: what the
// host-level tests start from. Null, with error set, when the scenario is refused.
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"

#include <QTemporaryDir>

#include <memory>

inline std::unique_ptr<HST_Host> makeScenarioHost(
    const QByteArray& json, HST_Recorder* recorder, const QTemporaryDir& dir, QString& error)
{
    HST_Scenario scenario;
    if (!HST_Scenario::fromJson(json, QStringLiteral("test"), scenario, error))
        return nullptr;
    return std::make_unique<HST_Host>(scenario, recorder, dir.filePath(QStringLiteral("p.ini")));
}
