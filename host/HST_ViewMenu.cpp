#include "host/HST_ViewMenu.h"

#include "host/HST_Document.h"
#include "host/HST_Host.h"
#include "host/HST_ViewState.h"

#include <QAction>
#include <QMenu>
#include <QSignalBlocker>

#include <utility>

HST_ViewMenu::HST_ViewMenu(HST_Host* host, QMenu* menu)
    : QObject(menu)
    , m_host(host)
{
    QMenu* zoom = menu->addMenu(QStringLiteral("Zoom"));
    addViewEntry(
        zoom, QStringLiteral("Fit"), QStringLiteral("host_zoom_fit"),
        [](HST_ViewState& view) { view.zoom = 0; },
        [](const HST_ViewState& view) { return view.zoom <= 0; });
    for (int percent : { 25, 50, 100, 200, 400 }) {
        const double factor = percent / 100.0;
        addViewEntry(
            zoom, QStringLiteral("%1 %").arg(percent), QStringLiteral("host_zoom_%1").arg(percent),
            [factor](HST_ViewState& view) { view.zoom = factor; },
            [factor](const HST_ViewState& view) { return view.zoom == factor; });
    }
    QMenu* rotation = menu->addMenu(QStringLiteral("Rotation"));
    for (int degrees : { 0, 90, 180, 270 })
        addViewEntry(
            rotation, QStringLiteral("%1 degrees").arg(degrees),
            QStringLiteral("host_rotation_%1").arg(degrees),
            [degrees](HST_ViewState& view) { view.rotation = degrees; },
            [degrees](const HST_ViewState& view) { return view.rotation == degrees; });
    addViewEntry(
        menu, QStringLiteral("Mirror horizontally"), QStringLiteral("host_mirrorHorizontally"),
        [](HST_ViewState& view) { view.mirroredHorizontally = !view.mirroredHorizontally; },
        [](const HST_ViewState& view) { return view.mirroredHorizontally; });
    addViewEntry(
        menu, QStringLiteral("Mirror vertically"), QStringLiteral("host_mirrorVertically"),
        [](HST_ViewState& view) { view.mirroredVertically = !view.mirroredVertically; },
        [](const HST_ViewState& view) { return view.mirroredVertically; });
    QMenu* binning = menu->addMenu(QStringLiteral("Binning"));
    for (int exponent = 0; exponent <= HST_ViewState::MaxBinningExponent; ++exponent) {
        const int side = 1 << exponent;
        addViewEntry(
            binning, exponent == 0 ? QStringLiteral("None") : QStringLiteral("%1 x %1").arg(side),
            QStringLiteral("host_binning_%1").arg(exponent),
            [exponent](HST_ViewState& view) { view.binningExponent = exponent; },
            [exponent](const HST_ViewState& view) { return view.binningExponent == exponent; });
    }
    QMenu* scale = menu->addMenu(QStringLiteral("Scale factor"));
    for (int factor = 1; factor <= HST_ViewState::MaxScaleFactor; factor *= 2)
        addViewEntry(
            scale, QString::number(factor), QStringLiteral("host_scaleFactor_%1").arg(factor),
            [factor](HST_ViewState& view) { view.scaleFactor = factor; },
            [factor](const HST_ViewState& view) { return view.scaleFactor == factor; });
    menu->addSeparator();
    addToggle(
        menu, QStringLiteral("Cross cursor"), QStringLiteral("host_crossCursor"),
        [host] { return host->crossCursor(); }, [host](bool on) { host->setCrossCursor(on); });
    addToggle(
        menu, QStringLiteral("Multi-lock"), QStringLiteral("host_multiLock"),
        [host] { return host->multiLock(); }, [host](bool on) { host->setMultiLock(on); });

    connect(host, &HST_Host::stateChanged, this, &HST_ViewMenu::refresh);
    connect(menu, &QMenu::aboutToShow, this, &HST_ViewMenu::refresh);
    refresh();
}

QAction* HST_ViewMenu::addViewEntry(QMenu* menu, const QString& text, const QString& name,
    std::function<void(HST_ViewState&)> change, std::function<bool(const HST_ViewState&)> shows)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    action->setCheckable(true);
    HST_Host* host = m_host;
    connect(action, &QAction::triggered, this, [this, host, change = std::move(change)] {
        const HST_Document* document = host->openDocument(host->currentDocumentKey());
        if (document) {
            HST_ViewState view = document->view();
            change(view);
            host->changeView(document->key(), view);
        }
        refresh();
    });
    m_refreshers.append([host, action, shows = std::move(shows)] {
        const HST_Document* document = host->openDocument(host->currentDocumentKey());
        const QSignalBlocker quiet(action);
        action->setEnabled(document != nullptr);
        action->setChecked(document && shows(document->view()));
    });
    return action;
}

QAction* HST_ViewMenu::addToggle(QMenu* menu, const QString& text, const QString& name,
    std::function<bool()> state, std::function<void(bool)> set)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, state, set = std::move(set)] {
        set(!state());
        refresh();
    });
    m_refreshers.append([action, state = std::move(state)] {
        const QSignalBlocker quiet(action);
        action->setChecked(state());
    });
    return action;
}

void HST_ViewMenu::refresh()
{
    for (const auto& refresher : qAsConst(m_refreshers))
        refresher();
}
