#include "host/HST_Devices.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_Recorder.h"
#include "util/APP_Exception.h"

#include <QRegularExpression>

namespace {

// Dummy cameras' addresses such as "999.999.999.1" pass, as the plug-in makes them.
void checkAddress(const QString& text, bool mayBeEmpty)
{
    static const QRegularExpression dotted(QStringLiteral("^\\d{1,3}(\\.\\d{1,3}){3}$"));
    if ((mayBeEmpty && text.isEmpty()) || dotted.match(text).hasMatch())
        return;
    throw APP_Exception(QStringLiteral("\"%1\" is not a network address.").arg(text), 1);
}

void checkFree(
    const HST_Devices::Cameras& cameras, const QString& ip, const HST_CameraState* except)
{
    for (const auto& camera : cameras) {
        if (camera.get() != except && camera->spec.ip == ip)
            throw APP_Exception(QStringLiteral("A device with the address %1 exists.").arg(ip), 1);
    }
}

} // namespace

QString HST_Devices::defaultName(int count)
{
    return QStringLiteral("Camera %1").arg(count + 1);
}

HST_CameraSpec HST_Devices::newDevice(
    const Cameras& cameras, const QString& name, const QString& ip, bool isDummy)
{
    checkAddress(ip, false);
    checkFree(cameras, ip, nullptr);
    HST_CameraSpec spec;
    spec.name = name.trimmed().isEmpty() ? defaultName(int(cameras.size())) : name;
    spec.deviceName = spec.name;
    spec.ip = ip;
    spec.dummy = isDummy;
    spec.model = QStringLiteral("HX-%1 type A model 1").arg(spec.type);
    return spec;
}

void HST_Devices::recordAdded(HST_Recorder* recorder, const HST_CameraState& camera, bool connect)
{
    recorder->record(QStringLiteral("addDevice"),
        { { QStringLiteral("name"), camera.spec.name }, { QStringLiteral("ip"), camera.spec.ip },
            { QStringLiteral("dummy"), camera.spec.dummy }, { QStringLiteral("connect"), connect },
            { QStringLiteral("key"), camera.primary ? camera.primary->key() : -1 } });
}

void HST_Devices::edit(const Cameras& cameras, HST_CameraState* camera, const QString& name,
    const QString& ip, const QString& subnetmask, const QString& gateway)
{
    if (!camera)
        throw APP_Exception(QStringLiteral("The device is no longer there."), 1);
    if (name.trimmed().isEmpty())
        throw APP_Exception(QStringLiteral("A device needs a name."), 1);
    checkAddress(ip, false);
    checkAddress(subnetmask, false);
    checkAddress(gateway, true);
    checkFree(cameras, ip, camera);
    // A device name that followed the camera's name goes on following it.
    if (camera->spec.deviceName == camera->spec.name)
        camera->spec.deviceName = name;
    camera->spec.name = name;
    camera->spec.ip = ip;
    camera->spec.subnetmask = subnetmask;
    camera->spec.gateway = gateway;
}
