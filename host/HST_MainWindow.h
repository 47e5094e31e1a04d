#pragma once

#include <QMainWindow>
#include <QMap>

#include <exception>
#include <memory>

class HST_DialogOpener;
class HST_DocumentArea;
class HST_Host;
class HST_ToolPages;
class PLG_Interface;
class QAction;
class QComboBox;
class QMenu;
class QTableWidget;
class QToolBar;

// The host's window: one toolbar button per plug-in, the mode, a window per open document, the
// documents as a table in a dock, and menus through which a user reaches every dialog and panel
// of the plug-ins (HST_DialogOpener). A plug-in's button follows its isEnabled, asked again
// whenever the host's state changes.
class HST_MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HST_MainWindow(HST_Host* host);
    ~HST_MainWindow() override;

    void addPlugin(PLG_Interface* plugin);
    QAction* pluginAction(const QString& name) const;
    // Runs the plug-in's execute, as a click on its button would; false if the button is
    // unknown or disabled.
    bool press(const QString& name);
    // Asks the plug-in whether it is enabled now; false when there is no such button.
    bool canPress(const QString& name);
    bool isPluginRunning() const { return m_running > 0; }
    HST_DialogOpener* opener() const { return m_opener; }
    HST_DocumentArea* documentArea() const { return m_documentArea; }
    HST_ToolPages* toolPages() const { return m_toolPages; }

signals:
    void executeFinished(const QString& name);

public slots:
    void refreshState();

private:
    bool askEnabled(const QString& name, PLG_Interface* plugin);
    void recordLeak(const char* operation, const std::exception& e);

    void runPlugin(PLG_Interface* plugin, const QString& name);
    void fillDocuments();
    void buildMenus();
    void addPageActions();
    // The top-level menu of that title, made before Tools when it isn't there.
    QMenu* pageMenu(const QString& title);
    // Clicks a button of the host status page, so that the action stays the page's call.
    void clickStatusPageButton(const QString& id);

    HST_Host* m_host;
    QToolBar* m_toolBar;
    QComboBox* m_modeBox;
    HST_DocumentArea* m_documentArea;
    QTableWidget* m_documentTable;
    HST_DialogOpener* m_opener;
    QMenu* m_fileMenu = nullptr;
    // The file dialogs' entries go in front of it.
    QAction* m_fileDialogPlace = nullptr;
    HST_ToolPages* m_toolPages;
    QMenu* m_viewMenu = nullptr;
    QMenu* m_toolsMenu = nullptr;
    QList<QAction*> m_pageActions;
    QMap<QString, PLG_Interface*> m_plugins;
    QMap<QString, QAction*> m_actions;
    int m_running = 0;
};
