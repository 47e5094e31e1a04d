#pragma once

#include <QList>
#include <QObject>

#include <functional>

class HST_Host;
class QAction;
struct HST_ViewState;
class QMenu;

// The View menu's entries for the current document's window (zoom, turn, mirrors, binning,
// scale factor) and the host's cross cursor and multi-lock. Their checks follow the current
// document and the host's state.
class HST_ViewMenu : public QObject
{
    Q_OBJECT

public:
    HST_ViewMenu(HST_Host* host, QMenu* menu);

public slots:
    void refresh();

private:
    // A checkable entry that changes the current document's view, checked when shows says so.
    QAction* addViewEntry(QMenu* menu, const QString& text, const QString& name,
        std::function<void(HST_ViewState&)> change,
        std::function<bool(const HST_ViewState&)> shows);
    QAction* addToggle(QMenu* menu, const QString& text, const QString& name,
        std::function<bool()> state, std::function<void(bool)> set);

    HST_Host* m_host;
    QList<std::function<void()>> m_refreshers;
};
