#pragma once

#include <QEventLoop>
#include <QJsonArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class HST_GeneratorSimulator;
class HST_Host;
class HST_MainWindow;
class HST_PluginLoader;
class HST_Recorder;
class HST_ScriptRunner;
class PLG_Interface;

// How one run of the reference host is set up: the command line, or a test's direct choice.
struct HST_Options
{
    QString scenarioFile;
    // Scenario given as JSON text; wins over scenarioFile.
    QByteArray scenarioJson;
    // The plug-in files, loaded in this order; pluginFile, when set, comes first. Both empty:
    // the default ones.
    QString pluginFile;
    QStringList pluginFiles;
    QString prefsFile;
    QString translationsFile;
    QString press;
    // --open PAGE[:ARG]: a registered dialog or panel of the plug-in file, once the window shows.
    QString open;
    QString scriptFile;
    // Steps given directly; run after those of scriptFile and before the answers.
    QJsonArray steps;
    QStringList answers;
    QString recordFile;
    QString screenshotFile;
    bool quit = false;
    // Answer every message box at once (HST_ScriptRunner::setAutoAnswer).
    bool autoAnswer = false;
    // --help: parseArguments leaves the help text in its error and gives true.
    bool help = false;
    int stepTimeoutMs = 10000;
};

// One run of the reference host: scenario, host, main window, plug-in, automation.
class HST_Application : public QObject
{
    Q_OBJECT

public:
    enum ExitCode {
        Success = 0,
        BadInput = 1, // command line, scenario, script, record or translation file
        PluginFailed = 2, // plug-in file missing, not loadable, or without its entry
        ScriptFailed = 3, // a step found nothing to act on, or --press or --open named nothing
    };

    // The plug-in files loaded when none is given: synccontrol, then roi, of the same build.
    static QStringList defaultPluginFiles();
    // Environment variable by which the plug-in finds the VISA library.
    static const char* visaLibraryVariable();
    // Our VISA library of the same build, offered when the scenario says so; empty if none.
    static QString visaLibraryFile();
    static bool parseArguments(const QStringList& arguments, HST_Options& options, QString& error);

    explicit HST_Application(const HST_Options& options, QObject* parent = nullptr);
    ~HST_Application() override;

    // Builds everything up to the loaded plug-in. Gives the exit code of a failure, after
    // telling it on stderr (and in a message box when the run is interactive).
    int start();
    // start(), then shows the window and runs until the automation has ended or, for an
    // interactive run, the window is closed. Gives the exit code.
    int run();
    QString error() const { return m_error; }
    bool isInteractive() const;

    HST_Recorder* recorder() const { return m_recorder.get(); }
    HST_Host* host() const { return m_host.get(); }
    HST_MainWindow* mainWindow() const { return m_window.get(); }
    // The first plug-in loaded; null if none.
    PLG_Interface* plugin() const;
    QList<PLG_Interface*> plugins() const;
    // The files to load, in order.
    QStringList pluginFiles() const;
    HST_ScriptRunner* script() const { return m_script.get(); }

private slots:
    void afterShow();
    void openPage();
    void checkFinished();

private:
    int refuse(int code, const QString& message);
    void finish(int code);
    void saveScreenshot();

    HST_Options m_options;
    QString m_error;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
    std::unique_ptr<HST_MainWindow> m_window;
    std::vector<std::unique_ptr<HST_PluginLoader>> m_loaders;
    std::unique_ptr<HST_ScriptRunner> m_script;
    std::unique_ptr<HST_GeneratorSimulator> m_generator;
    QEventLoop m_loop;
    bool m_started = false;
    bool m_pressDone = true;
    bool m_finished = false;
    int m_exitCode = Success;
};
