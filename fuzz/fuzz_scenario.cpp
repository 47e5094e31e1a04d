// The reference host's scenario loader on arbitrary bytes: a scenario file is hand-written and
// may be anything. A refusal always names the source; an accepted scenario keeps the rules the
// loader promises (unique addresses, counts in range).

#include "host/HST_Scenario.h"
#include "plugin/SharedKeys.h"

#include <QByteArray>
#include <QSet>
#include <QString>

#include "FuzzCheck.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char*>(data), int(size));
    const QString source = QStringLiteral("fuzz.json");
    HST_Scenario scenario;
    QString error;
    if (!HST_Scenario::fromJson(json, source, scenario, error)) {
        check(error.startsWith(source + QLatin1Char(':')));
        check(scenario.source.isEmpty() && scenario.cameras.isEmpty());
        return 0;
    }
    check(error.isEmpty());
    check(scenario.source == source);
    check(scenario.mode >= 0 && scenario.mode <= 2);
    check(scenario.files >= 0 && scenario.files <= 64);
    check(scenario.fileDocuments.size() == scenario.files);
    const auto checkView = [](const HST_ViewState& view) {
        check(view.zoom == 0 || (view.zoom >= 1.0 / 64 && view.zoom <= 64));
        check(view.rotation % 90 == 0 && view.rotation >= 0 && view.rotation < 360);
        check(
            view.binningExponent >= 0 && view.binningExponent <= HST_ViewState::MaxBinningExponent);
        check(view.scaleFactor >= 1 && view.scaleFactor <= HST_ViewState::MaxScaleFactor);
        check(!view.imageSize.isEmpty());
        check(view.wholeImageSize().width() >= view.imageSize.width()
            && view.wholeImageSize().height() >= view.imageSize.height());
        check(!view.shownFrameSize().isEmpty());
        // Where the window is at least as fine as the image, the window pixel under an image
        // pixel maps back to it.
        const QSize window(97, 61);
        if (view.effectiveZoom(window) >= 1) {
            const QPoint last(view.imageSize.width() - 1, 0);
            const QPointF centre = view.imageToView(window).map(QPointF(last) + QPointF(0.5, 0.5));
            check(view.viewToImage(
                      QPoint(int(std::floor(centre.x())), int(std::floor(centre.y()))), window)
                == last);
        }
    };
    for (const HST_DocumentSpec& file : scenario.fileDocuments)
        checkView(file.view);
    QSet<QString> cameraIps;
    for (const HST_CameraSpec& camera : scenario.cameras) {
        checkView(camera.document.view);
        check(camera.documents >= 0 && camera.documents <= 64);
        check(camera.bitDepth >= 1 && camera.bitDepth <= 16);
        check(camera.realBitDepth >= 1 && camera.realBitDepth <= 16);
        check(!cameraIps.contains(camera.ip));
        cameraIps.insert(camera.ip);
    }
    QSet<QString> hubIps;
    for (const HST_HubSpec& hub : scenario.hubs) {
        check(!hubIps.contains(hub.ip));
        hubIps.insert(hub.ip);
        check(hub.connected == (hub.connects == HST_HubConnects::AtStart));
    }
    check(scenario.applySync.delayMs >= 0 && scenario.applySync.delayMs <= 600000);
    check(scenario.recordingStatus >= 0 && scenario.recordingStatus <= 4);
    // Only status names, and none the host derives from its own state.
    for (auto it = scenario.status.begin(); it != scenario.status.end(); ++it) {
        check(std::find(std::begin(STATUS_NAMES), std::end(STATUS_NAMES), it.key())
            != std::end(STATUS_NAMES));
        check(it.key() != STATUS_IS_LIVE_MODE && it.key() != STATUS_IS_NOT_RECORDING);
    }
    return 0;
}
