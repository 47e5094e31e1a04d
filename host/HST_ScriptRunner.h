#pragma once

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonValue>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

class HST_Recorder;
class QMessageBox;
class QWidget;

// What the steps that act on the host itself need of it.
struct HST_ScriptHost
{
    std::function<bool()> pluginRunning;
    // A plug-in's button is there and enabled.
    std::function<bool(const QString& name)> canPress;
    std::function<void(const QString& name)> press;
    // Applies part of a scenario to the running host; false with error set when refused.
    std::function<bool(const QJsonObject& world, QString& error)> changeWorld;
    // The window of a document, null when it has none; the current document's key.
    std::function<QWidget*(int key)> documentView;
    std::function<int()> currentKey;
    // What the record says of the rectangle on a document after a mouse or key step.
    std::function<QJsonValue(int key)> rectangle;
};

// Plays a list of steps against the application's active modal window, as a user would:
// {"click": TEXT-OR-OBJECTNAME}, {"set": [OBJECTNAME, VALUE]}, {"js": CODE},
// {"screenshot": FILE}, {"wait": MS}, {"visit": [OPENER, CLOSER]}, {"close": null}, {"file": PATH}
// (the active file dialog); against the main window: {"menu": "Menu/Entry"}, and the mouse and
// keys on a document's window (HST_InputSteps); and against the host while no plug-in runs:
// {"press": NAME}, {"open": NAME}, {"world": SCENARIO-PART}. A step with "window": NAME acts in
// that non-modal window or dock panel instead. README lists them.
//
// A modal dialog blocks whoever opened it, so the steps are driven by a polling timer, and
// every action is posted rather than done in the timer's slot: an action that opens another
// modal dialog must not block the poll. Progress and busy dialogs are waited through. A step
// that finds nothing to act on in time fails the script; the runner then closes every modal
// window it meets, so that the plug-in returns.
class HST_ScriptRunner : public QObject
{
    Q_OBJECT

public:
    explicit HST_ScriptRunner(HST_Recorder* recorder, QObject* parent = nullptr);

    // Checks the form of every step; the error names the source, the step and the problem.
    static bool parse(
        const QByteArray& json, const QString& source, QJsonArray& steps, QString& error);
    static QJsonArray answerSteps(const QStringList& answers);

    void setSteps(const QJsonArray& steps) { m_steps = steps; }
    void setStepTimeout(int ms) { m_timeoutMs = ms; }
    // What a screenshot shows when no modal window is up and busy() says nothing will come.
    void setIdleWindow(QWidget* window, std::function<bool()> busy);
    void setHost(HST_ScriptHost host) { m_host = std::move(host); }
    // Every message box is answered as soon as it shows, with OK where it has one, else No:
    // for runs whose boxes can't be foreseen step by step (injected faults).
    void setAutoAnswer(bool on) { m_autoAnswer = on; }
    // For runs that must end: a modal window still up a step timeout after the last step is a
    // failure, and the window is closed.
    void setEndClosed(bool on) { m_endClosed = on; }
    // Answers boxes from now on, before the steps start (the plug-in may report while loading).
    void startAnswering();
    // No more steps; boxes are still answered (while the plug-in unloads).
    void answerOnly();
    void start();
    void stop() { m_timer.stop(); }

    bool isFinished() const { return m_finished; }
    bool hasFailed() const { return !m_failure.isEmpty(); }
    QString failure() const { return m_failure; }

signals:
    void finished(bool ok);
    // The step (counted from 1) whose action is about to run.
    void acting(int step);

private slots:
    void poll();

private:
    enum class Result { Done, Waiting };
    Result act(QJsonObject step, QWidget* window);
    Result chooseMenu(const QString& path, QWidget* window);
    Result answerFileDialog(const QString& path, QWidget* window);
    Result click(const QString& target, QWidget* window);
    Result set(const QString& name, const QJsonValue& value, QWidget* window);
    Result runScript(const QString& code, QWidget* window);
    Result screenshot(const QString& path, QWidget* window);
    Result pressStep(const QString& name, QWidget* window, int maxPresses);
    Result visit(const QJsonArray& targets, QWidget* window);
    Result changeWorld(const QJsonObject& world, QWidget* window);
    Result input(const QString& kind, const QJsonValue& value, QWidget* window);
    void answer(QMessageBox* box);
    // Posts an action of the current step.
    template <typename Action> void postAction(Action action);
    void nextStep();
    void fail(const QString& problem);
    void closeModalWindows();
    void failLeftOpen();
    // Records and logs the failure; the run ends with it.
    void failWith(int index, const QString& failure);

    HST_Recorder* m_recorder;
    QJsonArray m_steps;
    int m_index = 0;
    int m_timeoutMs = 10000;
    bool m_endClosed = false;
    QTimer m_timer;
    QElapsedTimer m_stepClock;
    QPointer<QWidget> m_idleWindow;
    std::function<bool()> m_busy;
    bool m_finished = false;
    bool m_started = false;
    QString m_failure;
    HST_ScriptHost m_host;
    bool m_autoAnswer = false;
    // State of the current step, where it takes more than one action.
    int m_presses = 0;
    std::shared_ptr<bool> m_pressInFlight;
    QPointer<QMessageBox> m_answered;
    QPointer<QWidget> m_visitWindow;
    std::shared_ptr<bool> m_visitReturned;
    bool m_visitClosed = false;
};
