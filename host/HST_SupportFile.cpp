#include "host/HST_SupportFile.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_DocumentView.h"
#include "host/HST_Host.h"
#include "host/HST_Preferences.h"
#include "host/HST_Recorder.h"

#include <KZip>

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>
#include <QSysInfo>
#include <QThread>
#include <QWidget>

namespace {

QByteArray cameraSettings(const QList<HST_CameraSpec>& cameras)
{
    QJsonArray list;
    for (const HST_CameraSpec& camera : cameras)
        list.append(QJsonObject { { QStringLiteral("name"), camera.name },
            { QStringLiteral("ip"), camera.ip }, { QStringLiteral("type"), camera.type },
            { QStringLiteral("model"), camera.model },
            { QStringLiteral("triggerMode"), camera.triggerMode },
            { QStringLiteral("lowLightMode"), camera.lowLightMode },
            { QStringLiteral("bitDepth"), camera.bitDepth },
            { QStringLiteral("connected"), camera.connected } });
    return QJsonDocument(list).toJson();
}

// The plug-in's log lines, in the order they came.
QByteArray operationLog(const HST_Recorder& recorder)
{
    QByteArray text;
    for (const QJsonObject& event : recorder.events(QStringLiteral("log")))
        text += event.value(QStringLiteral("level")).toString().toUtf8() + ' '
            + event.value(QStringLiteral("text")).toString().toUtf8() + '\n';
    return text;
}

// What went to the simulated cameras and hubs: the camera-facing part of the record.
QByteArray sdkLog(const HST_Recorder& recorder)
{
    QByteArray text;
    for (const QJsonObject& event : recorder.events()) {
        const QString call = event.value(QStringLiteral("call")).toString();
        const bool camera = call == QLatin1String("applySync")
            || call == QLatin1String("eraseRecordedData") || call == QLatin1String("linkCore")
            || (call == QLatin1String("hostCall")
                && event.value(QStringLiteral("operation"))
                       .toString()
                       .startsWith(QLatin1String("document.")));
        if (camera)
            text += QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n';
    }
    return text;
}

QByteArray cameraLog(const QList<HST_CameraSpec>& cameras)
{
    QByteArray text;
    for (const HST_CameraSpec& camera : cameras) {
        if (!camera.functions.contains(176) && !camera.functions.contains(158))
            continue;
        text += QStringLiteral("[%1 %2]\n%3 firmware 1.00, trigger mode %4\n")
                    .arg(camera.ip, camera.name, camera.model)
                    .arg(camera.triggerMode)
                    .toUtf8();
    }
    return text;
}

QByteArray environment()
{
    QStringList lines { QStringLiteral("os: ") + QSysInfo::prettyProductName(),
        QStringLiteral("kernel: ") + QSysInfo::kernelType() + QLatin1Char(' ')
            + QSysInfo::kernelVersion(),
        QStringLiteral("cpu: ") + QSysInfo::currentCpuArchitecture(),
        QStringLiteral("threads: ") + QString::number(QThread::idealThreadCount()),
        QStringLiteral("qt: ") + QLatin1String(qVersion()),
        QStringLiteral("platform: ") + QGuiApplication::platformName() };
    for (const QScreen* screen : QGuiApplication::screens())
        lines << QStringLiteral("screen: %1 %2x%3")
                     .arg(screen->name())
                     .arg(screen->size().width())
                     .arg(screen->size().height());
    return lines.join(QLatin1Char('\n')).toUtf8() + '\n';
}

} // namespace

HST_SupportFile::Sources HST_SupportFile::collect(HST_Host& host)
{
    Sources sources;
    const QList<HST_CameraSpec> cameras = host.scenario().cameras;
    sources.cameraSettings = cameraSettings(cameras);
    QFile settings(host.preferences()->path());
    if (settings.open(QIODevice::ReadOnly))
        sources.hostSettings = settings.readAll();
    sources.operationLog = operationLog(*host.recorder());
    sources.sdkLog = sdkLog(*host.recorder());
    sources.cameraLog = cameraLog(cameras);
    sources.environment = environment();
    sources.version = host.version().toUtf8() + '\n';
    if (QWidget* window = host.mainWindow())
        sources.screenCapture = window->grab().toImage();
    int key = 0;
    QString title = QStringLiteral("(no document)");
    for (const HST_Document* document : host.openDocuments()) {
        if (document->key() == host.currentDocumentKey()) {
            key = document->key();
            title = document->title();
        }
    }
    sources.currentImage = HST_DocumentView::makeFrame(key, title);
    return sources;
}

QByteArray HST_SupportFile::png(const QImage& image)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    // A host without a window still lists the capture, as an empty picture.
    (image.isNull() ? QImage(1, 1, QImage::Format_ARGB32) : image).save(&buffer, "PNG");
    return data;
}

bool HST_SupportFile::write(
    const QString& path, const Sources& sources, QStringList& entries, QString& error)
{
    QList<QPair<QString, QByteArray>> files { { QStringLiteral("camera-settings.json"),
                                                  sources.cameraSettings },
        { QStringLiteral("host-settings.ini"), sources.hostSettings },
        { QStringLiteral("operation.log"), sources.operationLog },
        { QStringLiteral("sdk.log"), sources.sdkLog } };
    if (!sources.cameraLog.isEmpty())
        files.append({ QStringLiteral("camera.log"), sources.cameraLog });
    files.append({ QStringLiteral("pc-environment.txt"), sources.environment });
    files.append({ QStringLiteral("version.txt"), sources.version });
    files.append({ QStringLiteral("screen-capture.png"), png(sources.screenCapture) });
    files.append({ QStringLiteral("current-image.png"), png(sources.currentImage) });

    KZip zip(path);
    if (!zip.open(QIODevice::WriteOnly)) {
        error = zip.errorString();
        return false;
    }
    entries.clear();
    for (const auto& file : qAsConst(files)) {
        if (!zip.writeFile(file.first, file.second)) {
            error = zip.errorString();
            zip.close();
            QFile::remove(path);
            return false;
        }
        entries.append(file.first);
    }
    if (!zip.close()) {
        error = zip.errorString();
        return false;
    }
    return true;
}
