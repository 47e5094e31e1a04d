#pragma once

#include "host/HST_Fault.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariantMap>

// What a simulated operation does when called: succeed or throw, after a delay.
struct HST_Outcome
{
    bool ok = true;
    QString message;
    int delayMs = 0;
};

struct HST_CameraSpec
{
    QString name;
    QString ip;
    int type = 1;
    QString model;
    int triggerMode = 1;
    int lowLightMode = 0;
    int dualSlopeShutter = 0;
    int automaticExposureControl = 0;
    int exposureTimingFlag = 0;
    int exposureTimingClass = 0;
    int documents = 1;
    bool dummy = false;
    bool needsErase = false;
    bool recorded = false;
    bool syncRequired = false;
};

// When a hub answers: from the host's start, from the first connectAll, or never.
enum class HST_HubConnects { AtStart, OnConnect, Never };

struct HST_HubSpec
{
    QString ip;
    QString firmware = QStringLiteral("1.0.0");
    int syncMode = 0;
    int frequency = 1000;
    QList<int> frequencies;
    HST_HubConnects connects = HST_HubConnects::AtStart;
    // The hub's state now; follows connects.
    bool connected = true;
    HST_Outcome changeAddress;
};

// The simulated world of one run of the reference host, read from a JSON file. Every key is
// optional; the defaults are listed in host/README.md.
class HST_Scenario
{
public:
    int mode = 0;
    QList<int> syncCapableTypes { 1 };
    QList<HST_CameraSpec> cameras;
    int files = 0;
    QList<HST_HubSpec> hubs;
    QVariantMap prefs;
    HST_Outcome applySync;
    bool visa = false;
    // The simulated signal generator the host starts (HST_GeneratorSimulator); checked keys.
    bool hasGenerator = false;
    QJsonObject generator;
    // Test hook: host operation -> the APP_Exception it throws, and when.
    QMap<QString, HST_Fault> faults;
    // Where the scenario came from, for messages.
    QString source;

    // Both refuse a bad scenario with a message naming the source, the key and the problem.
    static bool fromFile(const QString& path, HST_Scenario& out, QString& error);
    static bool fromJson(
        const QByteArray& json, const QString& source, HST_Scenario& out, QString& error);
};
