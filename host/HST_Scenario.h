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
    bool connected = true;
    bool mobile = false;
    // The name device lists show; the camera's name unless given.
    QString deviceName;
    // isFunctionSupported beyond 116 (needsErase): 112 Wi-Fi, 117 shutdown, 158 and 176 a log.
    QList<int> functions;
    bool wifiConnected = false;
    bool linkSpeed = false;
    int bitDepth = 8;
    int realBitDepth = 8;
    bool rostraLocked = false;
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
    // What exportSupportFile does: "error" gives false, as a file that can't be written does.
    HST_Outcome exportSupportFile;
    // The host's status queries behind the control status map, by status name; only the names
    // given. The names the host derives from its own state are refused or taken as its start.
    QMap<QString, bool> status;
    // 0 not recording, 1 CTS ready, 2 ready, 4 recording error.
    int recordingStatus = 0;
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
