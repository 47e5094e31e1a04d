#include "host/HST_Application.h"

#include "host/HST_DialogOpener.h"
#include "host/HST_Document.h"
#include "host/HST_Faults.h"
#include "host/HST_GeneratorSimulator.h"
#include "host/HST_Host.h"
#include "host/HST_MainWindow.h"
#include "host/HST_PluginLoader.h"
#include "host/HST_Preferences.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "host/HST_ScriptRunner.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QLibrary>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>

namespace {

void printLine(FILE* stream, const QString& text)
{
    std::fprintf(stream, "tarvix4host: %s\n", qPrintable(text));
    std::fflush(stream);
}

} // namespace

QStringList HST_Application::defaultPluginFiles()
{
    QStringList files;
#ifdef HST_DEFAULT_PLUGIN_FILE
    files << QStringLiteral(HST_DEFAULT_PLUGIN_FILE);
#endif
#ifdef HST_ROI_PLUGIN_FILE
    files << QStringLiteral(HST_ROI_PLUGIN_FILE);
#endif
    return files;
}

const char* HST_Application::visaLibraryVariable()
{
    return "SYNC_VISA_LIBRARY";
}

QString HST_Application::visaLibraryFile()
{
#ifdef HST_VISA_LIBRARY_FILE
    return QStringLiteral(HST_VISA_LIBRARY_FILE);
#else
    return QString();
#endif
}

bool HST_Application::parseArguments(
    const QStringList& arguments, HST_Options& options, QString& error)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Reference host for the synccontrol plug-in"));
    parser.addHelpOption();
    const QCommandLineOption scenario(QStringLiteral("scenario"),
        QStringLiteral("Scenario file (JSON)."), QStringLiteral("FILE"));
    const QCommandLineOption plugin(QStringLiteral("plugin"),
        QStringLiteral("Plug-in file to load; may be given more than once."),
        QStringLiteral("FILE"));
    const QCommandLineOption pluginList(QStringLiteral("plugins"),
        QStringLiteral("Plug-in files to load, in order, separated by commas."),
        QStringLiteral("A,B"));
    const QCommandLineOption prefs(
        QStringLiteral("prefs"), QStringLiteral("Preferences file (INI)."), QStringLiteral("FILE"));
    const QCommandLineOption translations(QStringLiteral("translations"),
        QStringLiteral("Translation file (.qm)."), QStringLiteral("FILE"));
    const QCommandLineOption press(QStringLiteral("press"),
        QStringLiteral("Press the button of this plug-in once the window shows."),
        QStringLiteral("NAME"));
    const QCommandLineOption open(QStringLiteral("open"),
        QStringLiteral("Open this dialog or panel of the plug-in file once the window shows; "
                       "ARG is what the dialog needs beyond the documents."),
        QStringLiteral("PAGE[:ARG]"));
    const QCommandLineOption script(QStringLiteral("script"),
        QStringLiteral("Steps to run against modal windows (JSON)."), QStringLiteral("FILE"));
    const QCommandLineOption answer(QStringLiteral("answer"),
        QStringLiteral("Buttons to click, in order, after the script."), QStringLiteral("A,B,C"));
    const QCommandLineOption record(QStringLiteral("record"),
        QStringLiteral("Write every event as a JSON line."), QStringLiteral("FILE"));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
        QStringLiteral("Save the active window at the end."), QStringLiteral("FILE"));
    const QCommandLineOption quit(QStringLiteral("quit"),
        QStringLiteral("Leave when the pressed plug-in returns and the steps are done."));
    const QCommandLineOption autoAnswer(QStringLiteral("auto-answer"),
        QStringLiteral("Answer every message box as it shows: OK, else No."));
    parser.addOptions({ scenario, plugin, pluginList, prefs, translations, press, open, script,
        answer, record, screenshot, quit, autoAnswer });
    if (!parser.parse(arguments)) {
        error = parser.errorText();
        return false;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        options.help = true;
        error = parser.helpText();
        return true;
    }
    if (!parser.positionalArguments().isEmpty()) {
        error = QStringLiteral("unexpected argument: %1").arg(parser.positionalArguments().first());
        return false;
    }
    options.scenarioFile = parser.value(scenario);
    options.pluginFiles = parser.values(plugin);
    for (const QString& value : parser.values(pluginList))
        options.pluginFiles += value.split(QLatin1Char(','), Qt::SkipEmptyParts);
    options.prefsFile = parser.value(prefs);
    options.translationsFile = parser.value(translations);
    options.press = parser.value(press);
    options.open = parser.value(open);
    options.scriptFile = parser.value(script);
    for (const QString& value : parser.values(answer))
        options.answers += value.split(QLatin1Char(','), Qt::SkipEmptyParts);
    options.recordFile = parser.value(record);
    options.screenshotFile = parser.value(screenshot);
    options.quit = parser.isSet(quit);
    options.autoAnswer = parser.isSet(autoAnswer);
    return true;
}

HST_Application::HST_Application(const HST_Options& options, QObject* parent)
    : QObject(parent)
    , m_options(options)
{
}

HST_Application::~HST_Application()
{
    // The plug-in's destructor still talks to the host and may write preferences, or report a
    // failure in a box that an automated run must answer.
    if (m_script)
        m_script->answerOnly();
    // Unloaded in the reverse order of loading.
    for (auto it = m_loaders.rbegin(); it != m_loaders.rend(); ++it)
        (*it)->release();
    m_window.reset();
    m_host.reset();
    m_generator.reset();
    m_recorder.reset();
}

bool HST_Application::isInteractive() const
{
    return m_options.press.isEmpty() && m_options.open.isEmpty() && m_options.scriptFile.isEmpty()
        && m_options.steps.isEmpty() && m_options.answers.isEmpty()
        && m_options.recordFile.isEmpty() && !m_options.quit && !m_options.autoAnswer;
}

PLG_Interface* HST_Application::plugin() const
{
    const QList<PLG_Interface*> loaded = plugins();
    return loaded.isEmpty() ? nullptr : loaded.first();
}

QList<PLG_Interface*> HST_Application::plugins() const
{
    QList<PLG_Interface*> loaded;
    for (const auto& loader : m_loaders) {
        if (loader->plugin())
            loaded.append(loader->plugin());
    }
    return loaded;
}

QStringList HST_Application::pluginFiles() const
{
    QStringList files = m_options.pluginFiles;
    if (!m_options.pluginFile.isEmpty())
        files.prepend(m_options.pluginFile);
    return files.isEmpty() ? defaultPluginFiles() : files;
}

int HST_Application::refuse(int code, const QString& message)
{
    m_error = message;
    m_exitCode = code;
    printLine(stderr, message);
    if (m_recorder)
        m_recorder->record(QStringLiteral("hostError"),
            { { QStringLiteral("code"), code }, { QStringLiteral("text"), message } });
    if (isInteractive())
        QMessageBox::critical(m_window.get(), QStringLiteral("tarvix4host"), message);
    return code;
}

int HST_Application::start()
{
    // Qt's own file dialogs, which a script's "file" step can answer.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_recorder.reset(new HST_Recorder(m_options.recordFile));
    if (!m_recorder->isOpen())
        return refuse(BadInput, m_recorder->errorString());

    HST_Scenario scenario;
    QString problem;
    if (!m_options.scenarioJson.isEmpty()) {
        if (!HST_Scenario::fromJson(
                m_options.scenarioJson, QStringLiteral("(scenario text)"), scenario, problem))
            return refuse(BadInput, problem);
    } else if (!m_options.scenarioFile.isEmpty()) {
        if (!HST_Scenario::fromFile(m_options.scenarioFile, scenario, problem))
            return refuse(BadInput, problem);
    }

    QJsonArray steps;
    if (!m_options.scriptFile.isEmpty()) {
        QFile file(m_options.scriptFile);
        if (!file.open(QIODevice::ReadOnly))
            return refuse(BadInput,
                QStringLiteral("%1: cannot read the script: %2")
                    .arg(m_options.scriptFile, file.errorString()));
        if (!HST_ScriptRunner::parse(file.readAll(), m_options.scriptFile, steps, problem))
            return refuse(BadInput, problem);
    }
    for (const auto& step : qAsConst(m_options.steps))
        steps.append(step);
    for (const auto& step : HST_ScriptRunner::answerSteps(m_options.answers))
        steps.append(step);

    const QString prefsPath
        = m_options.prefsFile.isEmpty() ? HST_Preferences::defaultPath() : m_options.prefsFile;
    m_host.reset(new HST_Host(scenario, m_recorder.get(), prefsPath));
    printLine(stdout, QStringLiteral("preferences in %1").arg(m_host->preferences()->path()));
    if (!m_options.translationsFile.isEmpty()
        && !m_host->loadTranslations(m_options.translationsFile, problem))
        return refuse(BadInput, problem);

    if (scenario.hasGenerator) {
        m_generator.reset(new HST_GeneratorSimulator);
        if (!m_generator->start(scenario.generator, problem))
            return refuse(BadInput, problem);
        printLine(stdout,
            QStringLiteral("generator at %1, portmapper port %2")
                .arg(m_generator->address())
                .arg(m_generator->portmapperPort()));
    }

    // The plug-in looks for the VISA library by this variable; a path that can't exist hides it.
    const QByteArray notOffered = QByteArrayLiteral("/nonexistent/visa-not-offered");
    if (!scenario.visa && !scenario.hasGenerator)
        qputenv(visaLibraryVariable(), notOffered);
#ifdef HST_VISA_LIBRARY_FILE
    else if (qgetenv(visaLibraryVariable()).isEmpty()
        || qgetenv(visaLibraryVariable()) == notOffered)
        qputenv(visaLibraryVariable(), QByteArrayLiteral(HST_VISA_LIBRARY_FILE));
#endif

    m_window.reset(new HST_MainWindow(m_host.get()));
    m_host->setMainWindow(m_window.get());
    m_script.reset(new HST_ScriptRunner(m_recorder.get()));
    m_script->setSteps(steps);
    m_script->setStepTimeout(m_options.stepTimeoutMs);
    m_script->setIdleWindow(
        m_window.get(), [this] { return m_window->isPluginRunning() || !m_pressDone; });
    HST_MainWindow* window = m_window.get();
    HST_Host* host = m_host.get();
    m_script->setHost({ [window] { return window->isPluginRunning(); },
        [window](const QString& name) { return window->canPress(name); },
        [window](const QString& name) { window->press(name); },
        [host](
            const QJsonObject& world, QString& error) { return host->changeWorld(world, error); },
        [host](int key) -> QWidget* {
            const HST_Document* document = host->openDocument(key);
            return document ? document->viewWidget() : nullptr;
        },
        [host] { return host->currentDocumentKey(); },
        [host](int key) { return host->rectangleRecord(key); } });
    m_script->setAutoAnswer(m_options.autoAnswer);
    m_script->setEndClosed(m_options.quit);
    connect(m_script.get(), &HST_ScriptRunner::acting, this,
        [host](int step) { host->faults()->setStep(step); });
    connect(m_script.get(), &HST_ScriptRunner::finished, this, &HST_Application::checkFinished,
        Qt::QueuedConnection);
    connect(m_window.get(), &HST_MainWindow::executeFinished, this, &HST_Application::checkFinished,
        Qt::QueuedConnection);

    // The plug-in may tell something while it loads.
    m_script->startAnswering();
    for (const QString& pluginFile : pluginFiles()) {
        m_loaders.emplace_back(new HST_PluginLoader(pluginFile));
        HST_PluginLoader* loader = m_loaders.back().get();
        if (!loader->load(m_host.get(), problem))
            return refuse(PluginFailed, problem);
        m_host->plugins().add(loader->plugin());
        m_window->addPlugin(loader->plugin());
        m_recorder->record(QStringLiteral("start"),
            { { QStringLiteral("plugin"), pluginFile }, { QStringLiteral("name"), loader->name() },
                { QStringLiteral("prefs"), m_host->preferences()->path() } });
    }
    m_started = true;
    return Success;
}

int HST_Application::run()
{
    const int code = start();
    // An interactive host goes on without a plug-in it couldn't load.
    if (code != Success && !(code == PluginFailed && isInteractive() && m_window))
        return code;
    m_window->show();
    if (isInteractive()) {
        connect(qApp, &QGuiApplication::lastWindowClosed, this, [this] { finish(m_exitCode); });
        // A user sees the host's state at once; automated runs open what they ask for.
        m_window->opener()->showPanel(QStringLiteral("hoststatus"));
    }
    QTimer::singleShot(0, this, &HST_Application::afterShow);
    m_loop.exec();
    return m_exitCode;
}

void HST_Application::afterShow()
{
    m_script->start();
    if (!m_options.press.isEmpty() && m_started) {
        if (!m_window->pluginAction(m_options.press)) {
            refuse(ScriptFailed,
                QStringLiteral("--press: no plug-in button named \"%1\"").arg(m_options.press));
            finish(ScriptFailed);
            return;
        }
        m_pressDone = false;
        m_window->press(m_options.press);
        m_pressDone = true;
    }
    if (!m_options.open.isEmpty() && m_started)
        openPage();
    checkFinished();
}

void HST_Application::openPage()
{
    const int colon = m_options.open.indexOf(QLatin1Char(':'));
    const QString page = colon < 0 ? m_options.open : m_options.open.left(colon);
    const QString arg = colon < 0 ? QString() : m_options.open.mid(colon + 1);
    if (!m_window->opener()->hasPage(page)) {
        refuse(ScriptFailed,
            QStringLiteral("--open: the plug-in has no dialog or panel named \"%1\"").arg(page));
        finish(ScriptFailed);
        return;
    }
    m_pressDone = false;
    m_window->opener()->open(page, arg);
    m_pressDone = true;
}

void HST_Application::checkFinished()
{
    if (m_finished)
        return;
    if (m_script->hasFailed()) {
        // The runner is closing the plug-in's windows; leave once its execute has returned.
        if (!m_window->isPluginRunning() && m_pressDone) {
            m_error = m_script->failure();
            printLine(stderr, m_error);
            finish(ScriptFailed);
        }
        return;
    }
    if (!m_options.quit || !m_pressDone || m_window->isPluginRunning() || !m_script->isFinished())
        return;
    finish(m_exitCode);
}

void HST_Application::finish(int code)
{
    if (m_finished)
        return;
    m_finished = true;
    m_exitCode = code;
    m_script->stop();
    saveScreenshot();
    m_recorder->record(QStringLiteral("finish"), { { QStringLiteral("code"), code } });
    m_loop.exit(code);
}

void HST_Application::saveScreenshot()
{
    if (m_options.screenshotFile.isEmpty())
        return;
    QWidget* window = QApplication::activeModalWidget();
    if (!window)
        window = QApplication::activeWindow();
    if (!window)
        window = m_window.get();
    if (!window->grab().save(m_options.screenshotFile))
        printLine(
            stderr, QStringLiteral("cannot write the screenshot %1").arg(m_options.screenshotFile));
    else
        printLine(stdout, QStringLiteral("screenshot in %1").arg(m_options.screenshotFile));
}
