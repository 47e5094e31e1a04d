#pragma once

#include <QElapsedTimer>
#include <QJsonArray>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class HST_Recorder;
class QWidget;

// Plays a list of steps against the application's active modal window, as a user would:
// {"click": TEXT-OR-OBJECTNAME}, {"set": [OBJECTNAME, VALUE]}, {"js": CODE},
// {"screenshot": FILE}, {"wait": MS}.
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
    void start();
    void stop() { m_timer.stop(); }

    bool isFinished() const { return m_finished; }
    bool hasFailed() const { return !m_failure.isEmpty(); }
    QString failure() const { return m_failure; }

signals:
    void finished(bool ok);

private slots:
    void poll();

private:
    enum class Result { Done, Waiting };
    Result act(const QJsonObject& step, QWidget* window);
    Result click(const QString& target, QWidget* window);
    Result set(const QString& name, const QJsonValue& value, QWidget* window);
    Result runScript(const QString& code, QWidget* window);
    Result screenshot(const QString& path, QWidget* window);
    void nextStep();
    void fail(const QString& problem);
    void closeModalWindows();

    HST_Recorder* m_recorder;
    QJsonArray m_steps;
    int m_index = 0;
    int m_timeoutMs = 10000;
    QTimer m_timer;
    QElapsedTimer m_stepClock;
    QPointer<QWidget> m_idleWindow;
    std::function<bool()> m_busy;
    bool m_finished = false;
    QString m_failure;
};
