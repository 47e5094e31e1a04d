#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class HST_Host;
class HST_PagePanel;
class QDockWidget;
class QMainWindow;

// The host's side of the plug-in file's dialog factory, a child of the plug-in object named
// "dialogFactory" that the host reaches through the meta-object system alone. Lists the pages,
// runs dialogs modally (recorded as "open", begin and end), and docks panels and the host's own
// pages in the main window, made on first use.
class HST_DialogOpener : public QObject
{
    Q_OBJECT

public:
    struct Page
    {
        QString name;
        // "dialog", "panel" or "page".
        QString kind;
        QString title;
    };

    HST_DialogOpener(HST_Host* host, QMainWindow* window);

    // Takes the pages of the plug-in's factory; false when the plug-in has none.
    bool addPlugin(QObject* plugin);
    QList<Page> pages() const { return m_pages; }
    bool hasPage(const QString& name) const;
    // A dialog runs modally and gives its result; a panel or page is shown, giving 1. -1 for a
    // name nobody registered, or a dialog that failed.
    int open(const QString& page, const QString& arg);
    // The dock of a panel or page, shown and raised; null when it can't be made.
    QDockWidget* showPanel(const QString& page);
    // The host page of a page's dock, made on first use; null for anything else.
    HST_PagePanel* pagePanel(const QString& page);
    // A panel the host places itself instead of docking it: open() hands it the argument.
    void setPanelHandler(
        const QString& page, const std::function<int(const QString& arg)>& handler);
    // The plug-in's widget of a panel, made for the parent; null when it can't be made.
    QWidget* makePanelWidget(const QString& page, QWidget* parent);

private:
    const Page* find(const QString& name) const;
    QDockWidget* makeDock(const Page& page);
    void record(const QString& page, const QString& arg, const char* phase, int result = 0);

    HST_Host* m_host;
    QMainWindow* m_window;
    QPointer<QObject> m_factory;
    QList<Page> m_pages;
    QMap<QString, QPointer<QDockWidget>> m_docks;
    QMap<QString, std::function<int(const QString& arg)>> m_panelHandlers;
};
