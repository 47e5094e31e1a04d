#pragma once

// The reference host with a test's knobs: one host operation can be made to throw, translation
// marks what it translated, and a reported exception is recorded without a modal box.
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "util/APP_Exception.h"

#include <QJsonObject>
#include <QTemporaryDir>

class WebTestHost : public HST_Host
{
public:
    WebTestHost(HST_Recorder* recorder, const QString& prefsPath)
        : HST_Host(HST_Scenario(), recorder, prefsPath)
    {
    }

    // Host operation (by name) that throws APP_Exception while set.
    QString failing;
    // What mdiWidget gives.
    QObject* mdi = nullptr;

    QObject* mdiWidget() override { return mdi; }

    void reportException(const std::exception& e) override
    {
        recorder()->record(QStringLiteral("reportException"),
            { { QStringLiteral("text"), QString::fromUtf8(e.what()) } });
    }
    QString translate(const QString& sourceText, int reserved = 0) override
    {
        failIf("translate");
        return QStringLiteral("T(") + HST_Host::translate(sourceText, reserved) + QLatin1Char(')');
    }
    QString& getPrefString(QString& out, const QString& key, const QVariant& defaultValue) override
    {
        failIf("getPrefString");
        return HST_Host::getPrefString(out, key, defaultValue);
    }
    void setPrefString(const QString& key, const QString& value) override
    {
        failIf("setPrefString");
        HST_Host::setPrefString(key, value);
    }
    void setPrefInt(const QString& key, int value) override
    {
        failIf("setPrefInt");
        HST_Host::setPrefInt(key, value);
    }
    bool confirm(const QString& text, QWidget*, const QVariantMap& options) override
    {
        failIf("confirm");
        recorder()->record(QStringLiteral("confirm"),
            { { QStringLiteral("text"), text }, { QStringLiteral("options"), options.size() } });
        return true;
    }

private:
    void failIf(const char* operation)
    {
        if (failing == QLatin1String(operation))
            throw APP_Exception(QStringLiteral("%1 failed").arg(QLatin1String(operation)), 1);
    }
};
