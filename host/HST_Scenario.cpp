#include "host/HST_Scenario.h"

#include "host/HST_Json.h"
#include "host/HST_MediaScenario.h"
#include "host/HST_TimeCodeScenario.h"
#include "plugin/SharedKeys.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

// Thrown inside the validator only; fromJson turns it into the error text.
struct Refusal
{
    QString key;
    QString problem;
};

[[noreturn]] void refuse(const QString& key, const QString& problem)
{
    throw Refusal { key, problem };
}

QString typeName(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return QStringLiteral("a boolean");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a string");
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

[[noreturn]] void wrongType(const QString& key, const char* expected, const QJsonValue& value)
{
    refuse(
        key, QStringLiteral("expected %1, found %2").arg(QLatin1String(expected), typeName(value)));
}

void checkKeys(const QJsonObject& object, const QString& path, const QStringList& allowed)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!allowed.contains(it.key()))
            refuse(path.isEmpty() ? it.key() : path + QLatin1Char('.') + it.key(),
                QStringLiteral("unknown key"));
    }
}

QString join(const QString& path, const QString& key)
{
    return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

int readInt(const QJsonObject& object, const QString& path, const QString& key, int fallback,
    int minimum = std::numeric_limits<int>::min(), int maximum = std::numeric_limits<int>::max())
{
    if (!object.contains(key))
        return fallback;
    const QJsonValue value = object.value(key);
    const QString name = join(path, key);
    const double number = value.toDouble();
    if (!value.isDouble() || std::floor(number) != number
        || number < double(std::numeric_limits<int>::min())
        || number > double(std::numeric_limits<int>::max()))
        wrongType(name, "an integer", value);
    if (number < minimum || number > maximum)
        refuse(
            name, QStringLiteral("%1 is outside %2 to %3").arg(number).arg(minimum).arg(maximum));
    return int(number);
}

bool readBool(const QJsonObject& object, const QString& path, const QString& key, bool fallback)
{
    if (!object.contains(key))
        return fallback;
    const QJsonValue value = object.value(key);
    if (!value.isBool())
        wrongType(join(path, key), "a boolean", value);
    return value.toBool();
}

QString readString(
    const QJsonObject& object, const QString& path, const QString& key, const QString& fallback)
{
    if (!object.contains(key))
        return fallback;
    const QJsonValue value = object.value(key);
    if (!value.isString())
        wrongType(join(path, key), "a string", value);
    return value.toString();
}

QJsonObject readObject(const QJsonObject& object, const QString& path, const QString& key)
{
    const QJsonValue value = object.value(key);
    if (!value.isObject())
        wrongType(join(path, key), "an object", value);
    return value.toObject();
}

QJsonArray readArray(const QJsonObject& object, const QString& path, const QString& key)
{
    const QJsonValue value = object.value(key);
    if (!value.isArray())
        wrongType(join(path, key), "a list", value);
    return value.toArray();
}

QList<int> readIntList(const QJsonObject& object, const QString& path, const QString& key)
{
    const QString name = join(path, key);
    const QJsonArray array = readArray(object, path, key);
    QList<int> list;
    for (int i = 0; i < array.size(); ++i) {
        const QJsonValue value = array.at(i);
        const double number = value.toDouble();
        if (!value.isDouble() || std::floor(number) != number || std::abs(number) >= 2147483648.0)
            wrongType(QStringLiteral("%1[%2]").arg(name).arg(i), "an integer", value);
        list.append(int(number));
    }
    return list;
}

QStringList readStringList(const QJsonObject& object, const QString& path, const QString& key)
{
    const QString name = join(path, key);
    const QJsonArray array = readArray(object, path, key);
    QStringList list;
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isString())
            wrongType(QStringLiteral("%1[%2]").arg(name).arg(i), "a string", array.at(i));
        list.append(array.at(i).toString());
    }
    return list;
}

QVariantList readCustomData(const QJsonObject& parent, const QString& path)
{
    const QString name = join(path, QStringLiteral("customData"));
    const QJsonArray array = readArray(parent, path, QStringLiteral("customData"));
    QVariantList items;
    QSet<QString> seen;
    for (int i = 0; i < array.size(); ++i) {
        const QString itemPath = QStringLiteral("%1[%2]").arg(name).arg(i);
        if (!array.at(i).isObject())
            wrongType(itemPath, "an object", array.at(i));
        const QJsonObject object = array.at(i).toObject();
        checkKeys(object, itemPath, { "name", "value", "unit", "display", "usefilename" });
        const QString itemName = readString(object, itemPath, QStringLiteral("name"), QString());
        // Documents find their items by name.
        if (itemName.isEmpty())
            refuse(join(itemPath, QStringLiteral("name")), QStringLiteral("no name"));
        if (seen.contains(itemName))
            refuse(join(itemPath, QStringLiteral("name")),
                QStringLiteral("duplicate custom item \"%1\"").arg(itemName));
        seen.insert(itemName);
        const auto flag = [&](const char* key) {
            return readBool(object, itemPath, QLatin1String(key), true) ? QStringLiteral("on")
                                                                        : QStringLiteral("off");
        };
        items.append(QVariantMap { { QStringLiteral("name"), itemName },
            { QStringLiteral("value"),
                readString(object, itemPath, QStringLiteral("value"), QString()) },
            { QStringLiteral("unit"),
                readString(object, itemPath, QStringLiteral("unit"), QString()) },
            { QStringLiteral("display"), flag("display") },
            { QStringLiteral("usefilename"), flag("usefilename") } });
    }
    return items;
}

QList<HST_PartitionSpec> readPartitions(const QJsonObject& parent, const QString& path)
{
    const QString name = join(path, QStringLiteral("partitions"));
    const QJsonArray array = readArray(parent, path, QStringLiteral("partitions"));
    QList<HST_PartitionSpec> partitions;
    QSet<int> seen;
    for (int i = 0; i < array.size(); ++i) {
        const QString itemPath = QStringLiteral("%1[%2]").arg(name).arg(i);
        if (!array.at(i).isObject())
            wrongType(itemPath, "an object", array.at(i));
        const QJsonObject object = array.at(i).toObject();
        checkKeys(object, itemPath,
            { "number", "name", "frames", "width", "height", "capacity", "image", "rate" });
        HST_PartitionSpec partition;
        partition.number = readInt(object, itemPath, QStringLiteral("number"), i + 1, 0);
        if (seen.contains(partition.number))
            refuse(join(itemPath, QStringLiteral("number")),
                QStringLiteral("duplicate partition %1").arg(partition.number));
        seen.insert(partition.number);
        partition.name = readString(object, itemPath, QStringLiteral("name"),
            QStringLiteral("Partition %1").arg(partition.number));
        partition.frames = unsigned(readInt(object, itemPath, QStringLiteral("frames"), 1000, 0));
        partition.width = readInt(object, itemPath, QStringLiteral("width"), 640, 1, 16384);
        partition.height = readInt(object, itemPath, QStringLiteral("height"), 480, 1, 16384);
        if (object.contains(QLatin1String("capacity")))
            partition.capacity = readInt(object, itemPath, QStringLiteral("capacity"), 0, 0);
        partition.image = readString(object, itemPath, QStringLiteral("image"), QString());
        if (!partition.image.isEmpty() && !QFileInfo(partition.image).isFile())
            refuse(join(itemPath, QStringLiteral("image")),
                QStringLiteral("no picture file \"%1\"").arg(partition.image));
        partition.rate = readInt(object, itemPath, QStringLiteral("rate"), -1, 0, 10000000);
        partitions.append(partition);
    }
    return partitions;
}

// The keys a camera's documents and a file share.
QStringList documentKeys()
{
    return { "customData", "comment", "partitions", "temporary", "savable", "multiSkipA",
        "multiSkipB", "view" };
}

void readView(const QJsonObject& object, const QString& path, HST_ViewState& view)
{
    if (!object.contains(QLatin1String("view")))
        return;
    QString key;
    QString problem;
    if (!HST_ViewState::read(readObject(object, path, QStringLiteral("view")),
            join(path, QStringLiteral("view")), view, key, problem))
        refuse(key, problem);
}

// Keys left out keep what document holds.
void readDocument(const QJsonObject& object, const QString& path, HST_DocumentSpec& document)
{
    if (object.contains(QLatin1String("customData")))
        document.customData = readCustomData(object, path);
    document.comment = readString(object, path, QStringLiteral("comment"), document.comment);
    if (object.contains(QLatin1String("partitions")))
        document.partitions = readPartitions(object, path);
    document.temporary = readBool(object, path, QStringLiteral("temporary"), document.temporary);
    document.savable = readBool(object, path, QStringLiteral("savable"), document.savable);
    document.multiSkipA = readBool(object, path, QStringLiteral("multiSkipA"), false);
    document.multiSkipB = readBool(object, path, QStringLiteral("multiSkipB"), false);
    readView(object, path, document.view);
}

HST_DocumentSpec readFile(
    const QJsonValue& value, const QString& name, int index, const HST_ViewState& view)
{
    if (!value.isObject())
        wrongType(name, "an object", value);
    const QJsonObject object = value.toObject();
    checkKeys(object, name, documentKeys() + QStringList { "name", "path" });
    HST_DocumentSpec document = HST_Scenario::fileDocument(index);
    document.view = view;
    readDocument(object, name, document);
    document.baseName = readString(object, name, QStringLiteral("name"), document.baseName);
    document.filePath = readString(object, name, QStringLiteral("path"), document.filePath);
    return document;
}

// A dummy camera's address may have groups above 255, such as "999.999.999.1".
void checkAddress(const QString& key, const QString& ip, bool dummy = false)
{
    static const QRegularExpression dotted(
        QStringLiteral("^(\\d{1,3})\\.(\\d{1,3})\\.(\\d{1,3})\\.(\\d{1,3})$"));
    const QRegularExpressionMatch match = dotted.match(ip);
    bool ok = match.hasMatch();
    for (int i = 1; ok && !dummy && i <= 4; ++i)
        ok = match.captured(i).toInt() <= 255;
    if (!ok)
        refuse(key, QStringLiteral("\"%1\" is not a dotted IPv4 address").arg(ip));
}

HST_Outcome readOutcome(const QJsonObject& parent, const QString& path, const QString& key)
{
    HST_Outcome outcome;
    if (!parent.contains(key))
        return outcome;
    const QString name = join(path, key);
    const QJsonObject object = readObject(parent, path, key);
    checkKeys(object, name, { "result", "message", "delayMs" });
    const QString result = readString(object, name, QStringLiteral("result"), QStringLiteral("ok"));
    if (result != QLatin1String("ok") && result != QLatin1String("error"))
        refuse(join(name, QStringLiteral("result")),
            QStringLiteral("\"%1\" is neither \"ok\" nor \"error\"").arg(result));
    outcome.ok = result == QLatin1String("ok");
    outcome.message = readString(object, name, QStringLiteral("message"),
        QStringLiteral("The simulated device refused the request."));
    outcome.delayMs = readInt(object, name, QStringLiteral("delayMs"), 0, 0, 600000);
    return outcome;
}

HST_CameraSpec readCamera(
    const QJsonValue& value, const QString& name, int index, const HST_ViewState& view)
{
    if (!value.isObject())
        wrongType(name, "an object", value);
    const QJsonObject object = value.toObject();
    checkKeys(object, name,
        documentKeys()
            + QStringList { "name", "ip", "type", "model", "triggerMode", "lowLightMode",
                "dualSlopeShutter", "automaticExposureControl", "exposureTimingFlag",
                "exposureTimingClass", "documents", "dummy", "needsErase", "recorded",
                "syncRequired", "subnetmask", "gateway", "etherType", "headNumber", "headCount",
                "firmware", "functions", "filePath", "connected", "mobile", "deviceName",
                "wifiConnected", "linkSpeed", "bitDepth", "realBitDepth", "rostraLocked",
                "media" }
            + HST_CameraSetup::keys());
    HST_CameraSpec camera;
    camera.document.view = view;
    camera.name = readString(
        object, name, QStringLiteral("name"), QStringLiteral("Camera %1").arg(index + 1));
    camera.ip = readString(
        object, name, QStringLiteral("ip"), QStringLiteral("192.168.0.%1").arg(10 + index));
    camera.dummy = readBool(object, name, QStringLiteral("dummy"), false);
    checkAddress(join(name, QStringLiteral("ip")), camera.ip, camera.dummy);
    camera.type = readInt(object, name, QStringLiteral("type"), camera.type);
    camera.model = readString(object, name, QStringLiteral("model"),
        QStringLiteral("HX-%1 type A model 1").arg(camera.type));
    camera.triggerMode = readInt(object, name, QStringLiteral("triggerMode"), camera.triggerMode);
    camera.lowLightMode = readInt(object, name, QStringLiteral("lowLightMode"), 0);
    camera.dualSlopeShutter = readInt(object, name, QStringLiteral("dualSlopeShutter"), 0);
    camera.automaticExposureControl
        = readInt(object, name, QStringLiteral("automaticExposureControl"), 0);
    camera.exposureTimingFlag = readInt(object, name, QStringLiteral("exposureTimingFlag"), 0);
    camera.exposureTimingClass = readInt(object, name, QStringLiteral("exposureTimingClass"), 0);
    camera.documents = readInt(object, name, QStringLiteral("documents"), 1, 0, 64);
    camera.needsErase = readBool(object, name, QStringLiteral("needsErase"), false);
    camera.recorded = readBool(object, name, QStringLiteral("recorded"), false);
    camera.syncRequired = readBool(object, name, QStringLiteral("syncRequired"), false);
    camera.subnetmask = readString(object, name, QStringLiteral("subnetmask"), camera.subnetmask);
    checkAddress(join(name, QStringLiteral("subnetmask")), camera.subnetmask);
    camera.gateway = readString(object, name, QStringLiteral("gateway"), QString());
    if (!camera.gateway.isEmpty())
        checkAddress(join(name, QStringLiteral("gateway")), camera.gateway);
    camera.etherType = readInt(object, name, QStringLiteral("etherType"), 0);
    camera.headNumber = readInt(object, name, QStringLiteral("headNumber"), 1, 1, 99);
    camera.headCount = readInt(object, name, QStringLiteral("headCount"), 1, 1, 99);
    if (object.contains(QLatin1String("firmware"))) {
        camera.firmware = readStringList(object, name, QStringLiteral("firmware"));
        if (camera.firmware.isEmpty() || camera.firmware.size() > 3)
            refuse(join(name, QStringLiteral("firmware")), QStringLiteral("not 1 to 3 parts"));
    }
    if (object.contains(QLatin1String("functions")))
        camera.functions = readIntList(object, name, QStringLiteral("functions"));
    readDocument(object, name, camera.document);
    camera.document.filePath = readString(object, name, QStringLiteral("filePath"), QString());
    camera.connected = readBool(object, name, QStringLiteral("connected"), true);
    camera.mobile = readBool(object, name, QStringLiteral("mobile"), false);
    camera.deviceName = readString(object, name, QStringLiteral("deviceName"), camera.name);
    camera.wifiConnected = readBool(object, name, QStringLiteral("wifiConnected"), false);
    camera.linkSpeed = readBool(object, name, QStringLiteral("linkSpeed"), false);
    camera.bitDepth = readInt(object, name, QStringLiteral("bitDepth"), 8, 1, 16);
    camera.realBitDepth
        = readInt(object, name, QStringLiteral("realBitDepth"), camera.bitDepth, 1, 16);
    camera.rostraLocked = readBool(object, name, QStringLiteral("rostraLocked"), false);
    HST_MediaScenario::Refusal refusal;
    if (object.contains(QLatin1String("media"))
        && !HST_MediaScenario::readMedia(object.value(QLatin1String("media")),
            join(name, QStringLiteral("media")), camera.media, refusal))
        refuse(refusal.key, refusal.problem);
    QString key;
    QString problem;
    if (!HST_CameraSetup::read(object, name, camera.setup, key, problem))
        refuse(key, problem);
    return camera;
}

HST_HubSpec readHub(const QJsonValue& value, const QString& name, int index)
{
    if (!value.isObject())
        wrongType(name, "an object", value);
    const QJsonObject object = value.toObject();
    checkKeys(object, name,
        { "ip", "firmware", "syncMode", "frequency", "frequencies", "state", "connectsOn",
            "changeAddress" });
    HST_HubSpec hub;
    hub.ip = readString(
        object, name, QStringLiteral("ip"), QStringLiteral("192.168.0.%1").arg(200 + index));
    checkAddress(join(name, QStringLiteral("ip")), hub.ip);
    hub.firmware = readString(object, name, QStringLiteral("firmware"), hub.firmware);
    hub.syncMode = readInt(object, name, QStringLiteral("syncMode"), hub.syncMode);
    hub.frequency = readInt(object, name, QStringLiteral("frequency"), hub.frequency, 0);
    hub.frequencies = object.contains(QLatin1String("frequencies"))
        ? readIntList(object, name, QStringLiteral("frequencies"))
        : QList<int> { 100, 500, 1000, 2000, 5000, 10000 };
    const QString state
        = readString(object, name, QStringLiteral("state"), QStringLiteral("connected"));
    if (state != QLatin1String("connected") && state != QLatin1String("disconnected"))
        refuse(join(name, QStringLiteral("state")),
            QStringLiteral("\"%1\" is neither \"connected\" nor \"disconnected\"").arg(state));
    // "state" is the older spelling of "start" and "never"; both at once could contradict.
    if (object.contains(QLatin1String("state")) && object.contains(QLatin1String("connectsOn")))
        refuse(join(name, QStringLiteral("connectsOn")),
            QStringLiteral("give \"state\" or this, not both"));
    const QString connectsOn = readString(object, name, QStringLiteral("connectsOn"),
        state == QLatin1String("connected") ? QStringLiteral("start") : QStringLiteral("never"));
    if (connectsOn == QLatin1String("start"))
        hub.connects = HST_HubConnects::AtStart;
    else if (connectsOn == QLatin1String("connect"))
        hub.connects = HST_HubConnects::OnConnect;
    else if (connectsOn == QLatin1String("never"))
        hub.connects = HST_HubConnects::Never;
    else
        refuse(join(name, QStringLiteral("connectsOn")),
            QStringLiteral("\"%1\" is not \"start\", \"connect\" or \"never\"").arg(connectsOn));
    hub.connected = hub.connects == HST_HubConnects::AtStart;
    hub.changeAddress = readOutcome(object, name, QStringLiteral("changeAddress"));
    return hub;
}

QVariant prefValue(const QJsonValue& value, const QString& name)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Double: {
        const double number = value.toDouble();
        if (std::floor(number) == number && std::abs(number) < 2147483648.0)
            return int(number);
        return number;
    }
    default:
        wrongType(name, "a boolean, number or string", value);
    }
}

// The status names the host derives from its own state, with what sets them instead.
QString derivedStatus(const QString& name)
{
    static const struct
    {
        const QString* name;
        const char* setBy;
    } derived[] = {
        { &STATUS_IS_LIVE_MODE, "follows \"mode\"" },
        { &STATUS_IS_MEMORY_MODE, "follows \"mode\"" },
        { &STATUS_IS_FILE_MODE, "follows \"mode\"" },
        { &STATUS_IS_NONE_WINDOW, "follows the document windows (\"cameras\", \"files\")" },
        { &STATUS_IS_SINGLE_WINDOW, "follows the document windows (\"cameras\", \"files\")" },
        { &STATUS_IS_MULTI_WINDOW, "follows the document windows (\"cameras\", \"files\")" },
        { &STATUS_IS_SINGLE_SELECTED_DOCUMENT,
            "follows the document windows (\"cameras\", \"files\")" },
        { &STATUS_IS_NONE_DOCUMENT, "follows the selection of documents" },
        { &STATUS_IS_CURRENT_DISCONNECTED,
            "follows the current document (camera key \"connected\")" },
        { &STATUS_IS_NOT_RECORDING, "follows \"recordingStatus\"" },
        { &STATUS_IS_CTS_READY, "follows \"recordingStatus\"" },
        { &STATUS_IS_READY, "follows \"recordingStatus\"" },
        { &STATUS_IS_RECORDING_ERROR, "follows \"recordingStatus\"" },
        { &STATUS_IS_MODAL_DIALOG_OPENING, "true while a modal dialog is open" },
        { &STATUS_IS_PREF_DIALOG_OPENING, "true while the preferences dialog is open" },
        { &STATUS_IS_OTHER_PLUGIN_OPEN, "true while a plug-in's window is open" },
        { &STATUS_IS_LIVE_NO_AUTO_DOWNLOAD_SETTING,
            "follows the preference \"recording/AutoDownload\" and \"mode\"" },
        { &STATUS_IS_MOUSE_DRAGGING, "follows a drag on a document while a plug-in's page shows" },
        { &STATUS_IS_ROSTRA_LOCK_DEVICE,
            "follows \"IsRostra\" and the current document's camera key \"rostraLocked\"" },
    };
    for (const auto& entry : derived) {
        if (*entry.name == name)
            return QLatin1String(entry.setBy);
    }
    return QString();
}

void readStatus(const QJsonObject& root, HST_Scenario& out)
{
    const QString path = QStringLiteral("status");
    const QJsonObject status = readObject(root, QString(), path);
    for (auto it = status.begin(); it != status.end(); ++it) {
        const QString name = join(path, it.key());
        if (std::find(std::begin(STATUS_NAMES), std::end(STATUS_NAMES), it.key())
            == std::end(STATUS_NAMES))
            refuse(name, QStringLiteral("not a status name"));
        const QString setBy = derivedStatus(it.key());
        if (!setBy.isEmpty())
            refuse(name, QStringLiteral("can't be set: it %1").arg(setBy));
        out.status.insert(it.key(), readBool(status, path, it.key(), false));
    }
}

void readScenario(const QJsonObject& root, HST_Scenario& out)
{
    checkKeys(root, QString(),
        { "mode", "syncCapableTypes", "cameras", "files", "hubs", "prefs", "applySync", "visa",
            "generator", "faults", "versionText", "defaultCameraName", "cameraNameList",
            "deviceCount", "saveRegistry", "status", "recordingStatus", "exportSupportFile",
            "loopSave", "writer", "timeCode", "view", "multiLock", "crossCursor" });
    out.mode = readInt(root, QString(), QStringLiteral("mode"), 0, 0, 2);
    // Every document's view, unless its camera or file says otherwise.
    HST_ViewState view;
    readView(root, QString(), view);
    out.multiLock = readBool(root, QString(), QStringLiteral("multiLock"), false);
    out.crossCursor = readBool(root, QString(), QStringLiteral("crossCursor"), false);
    if (root.contains(QLatin1String("syncCapableTypes")))
        out.syncCapableTypes = readIntList(root, QString(), QStringLiteral("syncCapableTypes"));
    if (root.contains(QLatin1String("cameras"))) {
        const QJsonArray cameras = readArray(root, QString(), QStringLiteral("cameras"));
        QSet<QString> seen;
        for (int i = 0; i < cameras.size(); ++i) {
            const QString name = QStringLiteral("cameras[%1]").arg(i);
            const HST_CameraSpec camera = readCamera(cameras.at(i), name, i, view);
            if (seen.contains(camera.ip))
                refuse(name + QStringLiteral(".ip"),
                    QStringLiteral("duplicate camera address %1").arg(camera.ip));
            seen.insert(camera.ip);
            out.cameras.append(camera);
        }
        HST_MediaScenario::Refusal refusal;
        if (!HST_MediaScenario::checkDrives(out.cameras, refusal))
            refuse(refusal.key, refusal.problem);
    }
    if (root.value(QLatin1String("files")).isArray()) {
        const QJsonArray files = readArray(root, QString(), QStringLiteral("files"));
        if (files.size() > 64)
            refuse(QStringLiteral("files"), QStringLiteral("more than 64 files"));
        for (int i = 0; i < files.size(); ++i)
            out.fileDocuments.append(
                readFile(files.at(i), QStringLiteral("files[%1]").arg(i), i, view));
        out.files = files.size();
    } else {
        out.files = readInt(root, QString(), QStringLiteral("files"), 0, 0, 64);
        for (int i = 0; i < out.files; ++i)
            out.fileDocuments.append(readFile(QJsonObject(), QString(), i, view));
    }
    if (root.contains(QLatin1String("hubs"))) {
        const QJsonArray hubs = readArray(root, QString(), QStringLiteral("hubs"));
        QSet<QString> seen;
        for (int i = 0; i < hubs.size(); ++i) {
            const QString name = QStringLiteral("hubs[%1]").arg(i);
            const HST_HubSpec hub = readHub(hubs.at(i), name, i);
            if (seen.contains(hub.ip))
                refuse(name + QStringLiteral(".ip"),
                    QStringLiteral("duplicate hub address %1").arg(hub.ip));
            seen.insert(hub.ip);
            out.hubs.append(hub);
        }
    }
    if (root.contains(QLatin1String("prefs"))) {
        const QJsonObject prefs = readObject(root, QString(), QStringLiteral("prefs"));
        for (auto it = prefs.begin(); it != prefs.end(); ++it)
            out.prefs.insert(it.key(), prefValue(it.value(), QStringLiteral("prefs.") + it.key()));
    }
    out.applySync = readOutcome(root, QString(), QStringLiteral("applySync"));
    out.versionText = readString(root, QString(), QStringLiteral("versionText"), out.versionText);
    out.defaultCameraName
        = readString(root, QString(), QStringLiteral("defaultCameraName"), QString());
    out.cameraNameList = readBool(root, QString(), QStringLiteral("cameraNameList"), true);
    out.deviceCount = readInt(root, QString(), QStringLiteral("deviceCount"), -1, 0, 9999);
    if (root.contains(QLatin1String("saveRegistry"))) {
        const QString path = QStringLiteral("saveRegistry");
        const QJsonObject registry = readObject(root, QString(), path);
        checkKeys(registry, path, { "groupDirectory", "directory" });
        out.saveGroupDirectory
            = readString(registry, path, QStringLiteral("groupDirectory"), QString());
        out.saveDirectory = readString(registry, path, QStringLiteral("directory"), QString());
    }
    out.exportSupportFile = readOutcome(root, QString(), QStringLiteral("exportSupportFile"));
    HST_MediaScenario::Refusal refusal;
    if (root.contains(QLatin1String("loopSave"))
        && !HST_MediaScenario::readLoopSave(
            root.value(QLatin1String("loopSave")), out.loopSaveMode, out.loopSaveActive, refusal))
        refuse(refusal.key, refusal.problem);
    if (root.contains(QLatin1String("writer"))
        && !HST_MediaScenario::readWriter(root.value(QLatin1String("writer")), out.writer, refusal))
        refuse(refusal.key, refusal.problem);
    if (root.contains(QLatin1String("status")))
        readStatus(root, out);
    out.recordingStatus = readInt(root, QString(), QStringLiteral("recordingStatus"), 0, 0, 4);
    if (root.contains(QLatin1String("timeCode"))) {
        QString key;
        QString problem;
        if (!HST_TimeCodeScenario::read(
                root.value(QLatin1String("timeCode")), out.timeCode, key, problem))
            refuse(key, problem);
    }
    out.visa = readBool(root, QString(), QStringLiteral("visa"), false);
    if (root.contains(QLatin1String("generator"))) {
        const QString path = QStringLiteral("generator");
        const QJsonObject generator = readObject(root, QString(), path);
        checkKeys(generator, path,
            { "listen", "portmapperPort", "model", "maker", "serial", "delayMs", "silentAt",
                "dropMidReply", "garbage", "maxLinks", "log" });
        // Tests send traffic to loopback only.
        const QString listen
            = readString(generator, path, QStringLiteral("listen"), QStringLiteral("127.0.0.1"));
        if (!QRegularExpression(QStringLiteral("^127\\.\\d{1,3}\\.\\d{1,3}\\.\\d{1,3}$"))
                 .match(listen)
                 .hasMatch())
            refuse(join(path, QStringLiteral("listen")), QStringLiteral("not a 127.x.x.x address"));
        readInt(generator, path, QStringLiteral("portmapperPort"), 0, 1, 65535);
        for (const char* key : { "model", "maker", "serial", "log" })
            readString(generator, path, QLatin1String(key), QString());
        readInt(generator, path, QStringLiteral("delayMs"), 0, 0, 600000);
        readInt(generator, path, QStringLiteral("maxLinks"), 16, 1, 1000);
        const QString silentAt = readString(generator, path, QStringLiteral("silentAt"), QString());
        if (!silentAt.isEmpty()
            && !QStringList { "portmapper", "create_link", "device_read" }.contains(silentAt))
            refuse(join(path, QStringLiteral("silentAt")),
                QStringLiteral("not portmapper, create_link or device_read"));
        readBool(generator, path, QStringLiteral("dropMidReply"), false);
        readBool(generator, path, QStringLiteral("garbage"), false);
        out.hasGenerator = true;
        out.generator = generator;
    }
    if (root.contains(QLatin1String("faults"))) {
        const QJsonObject faults = readObject(root, QString(), QStringLiteral("faults"));
        // Any operation the host offers the plug-in: hub and document operations carry the
        // prefix "hub." or "document.".
        static const QRegularExpression operationName(
            QStringLiteral("^((hub|document)\\.)?[a-z][A-Za-z0-9]*$"));
        for (auto it = faults.begin(); it != faults.end(); ++it) {
            const QString path = join(QStringLiteral("faults"), it.key());
            if (!operationName.match(it.key()).hasMatch())
                refuse(path, QStringLiteral("not the name of a host operation"));
            HST_Fault fault;
            if (it.value().isObject()) {
                const QJsonObject object = it.value().toObject();
                checkKeys(object, path, { "text", "steps" });
                fault.text = readString(object, path, QStringLiteral("text"), QString());
                fault.steps = readIntList(object, path, QStringLiteral("steps"));
                for (int step : qAsConst(fault.steps))
                    if (step < 0)
                        refuse(
                            join(path, QStringLiteral("steps")), QStringLiteral("a negative step"));
            } else {
                fault.text = readString(faults, QStringLiteral("faults"), it.key(), QString());
            }
            if (fault.text.isEmpty())
                refuse(path, QStringLiteral("no text"));
            out.faults.insert(it.key(), fault);
        }
    }
}

} // namespace

HST_DocumentSpec HST_Scenario::fileDocument(int index)
{
    HST_DocumentSpec document;
    document.baseName = QStringLiteral("file-%1").arg(index + 1);
    document.filePath = QStringLiteral("/simulated/file-%1.dat").arg(index + 1);
    return document;
}

bool HST_Scenario::fromFile(const QString& path, HST_Scenario& out, QString& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("%1: cannot read the scenario: %2").arg(path, file.errorString());
        return false;
    }
    return fromJson(file.readAll(), path, out, error);
}

bool HST_Scenario::fromJson(
    const QByteArray& json, const QString& source, HST_Scenario& out, QString& error)
{
    QJsonDocument document;
    if (!HST_Json::parse(json, source, document, error))
        return false;
    if (!document.isObject()) {
        error = QStringLiteral("%1: (top level): expected an object").arg(source);
        return false;
    }
    HST_Scenario scenario;
    scenario.source = source;
    try {
        readScenario(document.object(), scenario);
    } catch (const Refusal& refusal) {
        error = QStringLiteral("%1: \"%2\": %3").arg(source, refusal.key, refusal.problem);
        return false;
    }
    out = scenario;
    return true;
}
