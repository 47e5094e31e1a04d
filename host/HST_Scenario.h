#pragma once

#include "host/HST_CameraSetup.h"
#include "host/HST_Fault.h"
#include "host/HST_MediaSetup.h"
#include "plugin/APP_TimeCodeRecord.h"
#include "host/HST_ViewState.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

// What a simulated operation does when called: succeed or throw, after a delay.
struct HST_Outcome
{
    bool ok = true;
    QString message;
    int delayMs = 0;
};

struct HST_PartitionSpec
{
    int number = 1;
    QString name = QStringLiteral("Partition 1");
    unsigned frames = 1000;
    int width = 640;
    int height = 480;
    // Bytes; negative: a byte a pixel of every frame.
    qint64 capacity = -1;
    // A picture file drawn as the partition's frames; empty: the simulated frame.
    QString image;
    // Frames a second; negative: 1000 for a camera, none for a file.
    int rate = -1;
};

// What one document holds beyond its camera: the same for every document of a camera.
struct HST_DocumentSpec
{
    // Custom items in order, each a map with name, value, unit, and display and usefilename
    // as "on" or "off".
    QVariantList customData;
    QString comment;
    QList<HST_PartitionSpec> partitions { HST_PartitionSpec() };
    QString filePath;
    // A file's name; a camera's documents are named after the camera.
    QString baseName;
    bool temporary = false;
    // What a save may take of it, and its multiple skip ranges (isMultiSkipA, isMultiSkipB).
    bool savable = true;
    bool multiSkipA = false;
    bool multiSkipB = false;
    // The recording on a medium the document was opened from.
    HST_MediaLink media;
    // How its window shows it, and its image's sizes.
    HST_ViewState view;
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
    QString subnetmask = QStringLiteral("255.255.255.0");
    QString gateway;
    int etherType = 0;
    int headNumber = 1;
    int headCount = 1;
    // Up to three parts of the firmware version.
    QStringList firmware { QStringLiteral("1.00") };
    // isFunctionSupported beyond 116 (needsErase): 112 Wi-Fi, 117 shutdown, 158 and 176 a log.
    QList<int> functions;
    HST_DocumentSpec document;
    bool connected = true;
    bool mobile = false;
    // The name device lists show; the camera's name unless given.
    QString deviceName;
    bool wifiConnected = false;
    bool linkSpeed = false;
    int bitDepth = 8;
    int realBitDepth = 8;
    bool rostraLocked = false;
    HST_MediaSpec media;
    // Presets and heads.
    HST_CameraSetup setup;
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
    // One for each of the files.
    QList<HST_DocumentSpec> fileDocuments;
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
    QString versionText = QStringLiteral("tarvix4host 1.0");
    // Empty: "Camera N" for the next camera.
    QString defaultCameraName;
    bool cameraNameList = true;
    // Negative: the number of cameras.
    int deviceCount = -1;
    // The save registry's fixed group and target directories; empty: none fixed.
    QString saveGroupDirectory;
    QString saveDirectory;
    // isLoopSaveMode and isLoopSaveActive.
    bool loopSaveMode = false;
    bool loopSaveActive = false;
    HST_WriterSpec writer;
    // The time code record the host starts with (HST_TimeCodeScenario).
    APP_TimeCodeRecord timeCode;
    // The host's multi-lock and its cross cursor tool, as the View menu toggles them.
    bool multiLock = false;
    bool crossCursor = false;
    // Where the scenario came from, for messages.
    QString source;

    // Both refuse a bad scenario with a message naming the source, the key and the problem.
    static bool fromFile(const QString& path, HST_Scenario& out, QString& error);
    static bool fromJson(
        const QByteArray& json, const QString& source, HST_Scenario& out, QString& error);
    // The document of the index-th file (from 0) when the scenario says no more of it.
    static HST_DocumentSpec fileDocument(int index);
};
