#include "web/JS_DeviceInfo.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/UTL_Barrier.h"
#include "web/JS_OrderedJson.h"

namespace {

QString mark(bool on, const char* text)
{
    return on ? QLatin1String(text) : QString();
}

void fill(JS_OrderedJson& entry, int key, DOC_Interface* doc)
{
    // Every document answers as a camera, whether it has one or not.
    DOC_Camera* camera = doc;
    entry.add(QStringLiteral("key"), QString::number(key));
    entry.add(QStringLiteral("cameraname"), camera->cameraName(false));
    QString device;
    doc->deviceName(device);
    entry.add(QStringLiteral("devicename"), device.isEmpty() ? camera->modelText(true) : device);
    entry.add(QStringLiteral("ipaddress"), camera->ipAddress(true));
    entry.add(QStringLiteral("headno"), camera->headNumber());
    entry.add(QStringLiteral("selected"), mark(doc->isSelected(), "ui-selected"));
    entry.add(QStringLiteral("found"), mark(doc->isConnected(), "found"));
    entry.add(QStringLiteral("mobile"), mark(doc->isMobile(), "mobile"));
    entry.add(QStringLiteral("dummy"), mark(camera->isDummy(), "dummy"));
    entry.add(
        QStringLiteral("shutdown"), mark(camera->isFunctionSupported(117, true), "sup-shutdown"));
    entry.add(QStringLiteral("sup-wifi"), mark(camera->isFunctionSupported(112, true), "sup-wifi"));
    entry.add(QStringLiteral("con-wifi"), mark(camera->supportsWifiConnected() == 1, "connected"));
    entry.add(
        QStringLiteral("sup-linkspeed"), mark(camera->supportsLinkSpeed() == 1, "sup-linkspeed"));
}

} // namespace

QVariantList JS_DeviceInfo::list(APP_Host* host, bool isMinilist)
{
    QList<int> keys;
    host->documentKeysForList(keys, 1);
    // Asked once for the whole list: neither changes while it is built.
    const bool connectedOnly = isMinilist && host->saveTargetKind() == 0
        && host->getPrefBool(PREF_KEY_DEVICEMANAGER_CONNECTED_CAMERA_ONLY_SHOWING, false);
    QVariantList entries;
    entries.reserve(keys.size());
    for (int key : qAsConst(keys)) {
        DOC_Interface* doc = host->documentForList(key);
        if (!doc || (connectedOnly && !doc->isConnected()))
            continue;
        entries.append(entry(host, key, doc));
    }
    return entries;
}

QString JS_DeviceInfo::entry(APP_Host* host, int key, DOC_Interface* doc)
{
    JS_OrderedJson entry;
    try {
        fill(entry, key, doc);
    } catch (const std::exception& e) {
        entry.set(QStringLiteral("found"), QString());
        UTL_Barrier::report(host, e);
    }
    return entry.text();
}
