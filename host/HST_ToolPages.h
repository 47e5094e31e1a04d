#pragma once

#include <QDockWidget>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>

class HST_Host;
class PLG_Interface;
class QMainWindow;

// The pages of paged tools in the host's panel, each a dock of the main window that holds the
// plug-in's pageWidget. Pressing a paged tool's button runs its execute and then shows its page
// (the plug-in is active while it shows); closing the dock leaves the tool, whose leaveTool
// takes the panel back to the previous page or the default one, where no plug-in shows.
class HST_ToolPages : public QObject
{
    Q_OBJECT

public:
    HST_ToolPages(HST_Host* host, QMainWindow* window);

    // After the plug-in's execute: shows its page when it is a paged tool.
    void executed(PLG_Interface* plugin);
    QDockWidget* dock(const QString& name) const { return m_docks.value(name); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    // Brings the docks in line with the page the host shows.
    void showCurrent(const QString& current);
    QDockWidget* makeDock(const QString& name, PLG_Interface* plugin);

    HST_Host* m_host;
    QMainWindow* m_window;
    QMap<QString, QPointer<QDockWidget>> m_docks;
    // Set while the docks follow the host, whose hiding is no user's close.
    bool m_following = false;
};
