#pragma once

// The reference host with a test's knobs: translation marks what it translated, and mdiWidget
// gives what the test sets.
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"

#include <QTemporaryDir>

class WebTestHost : public HST_Host
{
public:
    WebTestHost(HST_Recorder* recorder, const QString& prefsPath)
        : HST_Host(HST_Scenario(), recorder, prefsPath)
    {
    }

    // What mdiWidget gives.
    QObject* mdi = nullptr;

    QObject* mdiWidget() override { return mdi; }

    QString translate(const QString& sourceText, int reserved = 0) override
    {
        return QStringLiteral("T(") + HST_Host::translate(sourceText, reserved) + QLatin1Char(')');
    }
};
