#pragma once

#include <QMainWindow>
#include <QMap>

#include <exception>

class HST_Host;
class PLG_Interface;
class QAction;
class QComboBox;
class QTableWidget;
class QToolBar;

// The host's window: one toolbar button per plug-in, the mode, and the list of documents.
// A plug-in's button follows its isEnabled, asked again whenever the host's state changes.
class HST_MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HST_MainWindow(HST_Host* host);

    void addPlugin(PLG_Interface* plugin);
    QAction* pluginAction(const QString& name) const;
    // Runs the plug-in's execute, as a click on its button would; false if the button is
    // unknown or disabled.
    bool press(const QString& name);
    // Asks the plug-in whether it is enabled now; false when there is no such button.
    bool canPress(const QString& name);
    bool isPluginRunning() const { return m_running > 0; }

signals:
    void executeFinished(const QString& name);

public slots:
    void refreshState();

private:
    bool askEnabled(const QString& name, PLG_Interface* plugin);
    void recordLeak(const char* operation, const std::exception& e);

    void runPlugin(PLG_Interface* plugin, const QString& name);
    void fillDocuments();

    HST_Host* m_host;
    QToolBar* m_toolBar;
    QComboBox* m_modeBox;
    QTableWidget* m_documentTable;
    QMap<QString, PLG_Interface*> m_plugins;
    QMap<QString, QAction*> m_actions;
    int m_running = 0;
};
