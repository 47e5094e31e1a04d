#include "host/HST_ScriptRunner.h"

#include "host/HST_InputSteps.h"
#include "host/HST_Json.h"
#include "host/HST_Recorder.h"
#include "host/HST_ScriptTargets.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QWebFrame>
#include <QWebView>

namespace {

const int pollIntervalMs = 50;

QString stepText(const QJsonValue& step)
{
    return QString::fromUtf8(QJsonDocument(step.toObject()).toJson(QJsonDocument::Compact));
}

bool isBusyDialog(QWidget* widget)
{
    return qobject_cast<QProgressDialog*>(widget) != nullptr;
}

// Posted, so that a modal dialog opened by the action doesn't block the caller.
template <typename Action> void post(QObject* target, Action action)
{
    QMetaObject::invokeMethod(target, action, Qt::QueuedConnection);
}

// A window the script acts in: not a message box, not a busy dialog.
bool isDialogWindow(QWidget* window)
{
    return window && !qobject_cast<QMessageBox*>(window) && !isBusyDialog(window);
}

} // namespace

HST_ScriptRunner::HST_ScriptRunner(HST_Recorder* recorder, QObject* parent)
    : QObject(parent)
    , m_recorder(recorder)
{
    m_timer.setInterval(pollIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &HST_ScriptRunner::poll);
}

bool HST_ScriptRunner::parse(
    const QByteArray& json, const QString& source, QJsonArray& steps, QString& error)
{
    QJsonDocument document;
    if (!HST_Json::parse(json, source, document, error))
        return false;
    if (!document.isArray()) {
        error = QStringLiteral("%1: expected a list of steps").arg(source);
        return false;
    }
    const QJsonArray list = document.array();
    for (int i = 0; i < list.size(); ++i) {
        QJsonObject step = list.at(i).toObject();
        const QString where = QStringLiteral("%1: step %2").arg(source).arg(i + 1);
        const QJsonValue window = step.take(QLatin1String("window"));
        if (!list.at(i).isObject() || step.size() != 1) {
            error = where
                + QStringLiteral(": expected an object with one key and an optional \"window\"");
            return false;
        }
        if (!window.isUndefined() && (!window.isString() || window.toString().isEmpty())) {
            error = where + QStringLiteral(": \"window\" must name a window");
            return false;
        }
        const QString kind = step.begin().key();
        const QJsonValue value = step.begin().value();
        bool ok = false;
        if (kind == QLatin1String("click") || kind == QLatin1String("js")
            || kind == QLatin1String("screenshot") || kind == QLatin1String("press")
            || kind == QLatin1String("open") || kind == QLatin1String("menu"))
            ok = value.isString() && !value.toString().isEmpty();
        else if (kind == QLatin1String("file"))
            ok = value.isString();
        else if (kind == QLatin1String("visit"))
            ok = value.isArray() && value.toArray().size() == 2 && value.toArray().at(0).isString()
                && !value.toArray().at(0).toString().isEmpty()
                && (value.toArray().at(1).isString() || value.toArray().at(1).isNull());
        else if (kind == QLatin1String("world"))
            ok = value.isObject();
        else if (kind == QLatin1String("close"))
            ok = value.isNull();
        else if (kind == QLatin1String("wait"))
            ok = value.isDouble() && value.toDouble() >= 0;
        else if (kind == QLatin1String("set"))
            ok = value.isArray() && value.toArray().size() == 2 && value.toArray().at(0).isString()
                && !value.toArray().at(1).isArray() && !value.toArray().at(1).isObject();
        else if (HST_InputSteps::handles(kind)) {
            QString problem;
            if (!HST_InputSteps::validate(kind, value, problem)) {
                error = where + QStringLiteral(": \"%1\": %2").arg(kind, problem);
                return false;
            }
            ok = true;
        } else {
            error = where + QStringLiteral(": unknown step \"%1\"").arg(kind);
            return false;
        }
        if (!ok) {
            error = where + QStringLiteral(": bad value for \"%1\"").arg(kind);
            return false;
        }
    }
    steps = list;
    return true;
}

QJsonArray HST_ScriptRunner::answerSteps(const QStringList& answers)
{
    QJsonArray steps;
    for (const QString& answer : answers)
        steps.append(QJsonObject { { QStringLiteral("click"), answer } });
    return steps;
}

void HST_ScriptRunner::setIdleWindow(QWidget* window, std::function<bool()> busy)
{
    m_idleWindow = window;
    m_busy = std::move(busy);
}

void HST_ScriptRunner::startAnswering()
{
    if (m_autoAnswer)
        m_timer.start();
}

void HST_ScriptRunner::answerOnly()
{
    m_timer.stop();
    m_finished = true;
    startAnswering();
}

void HST_ScriptRunner::start()
{
    m_started = true;
    m_index = 0;
    m_finished = m_steps.isEmpty();
    m_failure.clear();
    m_stepClock.start();
    if (m_finished)
        emit finished(true);
    if (!m_finished || m_autoAnswer || m_endClosed)
        m_timer.start();
}

void HST_ScriptRunner::poll()
{
    if (hasFailed()) {
        closeModalWindows();
        return;
    }
    if (m_autoAnswer) {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            answer(box);
            return;
        }
    }
    if (m_started && m_finished && m_endClosed)
        failLeftOpen();
    if (!m_started || m_finished)
        return;
    const QJsonObject step = m_steps.at(m_index).toObject();
    if (step.contains(QLatin1String("wait"))) {
        if (m_stepClock.elapsed() >= qint64(step.value(QLatin1String("wait")).toDouble()))
            nextStep();
        return;
    }
    QWidget* window = QApplication::activeModalWidget();
    if (window && isBusyDialog(window)) {
        // Work that takes long isn't the script's failure.
        m_stepClock.restart();
        return;
    }
    if (act(step, window) == Result::Done) {
        nextStep();
        return;
    }
    if (m_stepClock.elapsed() > m_timeoutMs)
        fail(QStringLiteral("found nothing to act on within %1 s").arg(m_timeoutMs / 1000.0));
}

HST_ScriptRunner::Result HST_ScriptRunner::act(QJsonObject step, QWidget* window)
{
    const QJsonValue named = step.take(QLatin1String("window"));
    if (!named.isUndefined()) {
        // A non-modal window or dock panel, out of reach while a modal window is up.
        if (window)
            return Result::Waiting;
        window = HST_ScriptTargets::namedWindow(named.toString());
        if (!window)
            return Result::Waiting;
    }
    const QString kind = step.begin().key();
    const QJsonValue value = step.begin().value();
    if (kind == QLatin1String("menu"))
        return chooseMenu(value.toString(), window);
    if (kind == QLatin1String("file"))
        return answerFileDialog(value.toString(), window);
    if (kind == QLatin1String("screenshot"))
        return screenshot(value.toString(), window);
    if (kind == QLatin1String("press"))
        return pressStep(value.toString(), window, 1);
    if (kind == QLatin1String("open"))
        return pressStep(value.toString(), window, 3);
    if (kind == QLatin1String("world"))
        return changeWorld(value.toObject(), window);
    if (kind == QLatin1String("visit"))
        return visit(value.toArray(), window);
    if (HST_InputSteps::handles(kind))
        return input(kind, value, window);
    if (!window)
        return Result::Waiting;
    if (kind == QLatin1String("close")) {
        // As the title bar's close button: the window gets its close event.
        QPointer<QWidget> guarded(window);
        postAction([guarded] {
            if (guarded)
                guarded->close();
        });
        return Result::Done;
    }
    if (kind == QLatin1String("click"))
        return click(value.toString(), window);
    if (kind == QLatin1String("set"))
        return set(value.toArray().at(0).toString(), value.toArray().at(1), window);
    return runScript(value.toString(), window);
}

template <typename Action> void HST_ScriptRunner::postAction(Action action)
{
    emit acting(m_index + 1);
    post(this, action);
}

HST_ScriptRunner::Result HST_ScriptRunner::chooseMenu(const QString& path, QWidget* window)
{
    // The main window's menus: out of reach while a modal window is up.
    auto* mainWindow = qobject_cast<QMainWindow*>(m_idleWindow.data());
    if (window || !mainWindow)
        return Result::Waiting;
    QAction* found = HST_ScriptTargets::menuEntry(mainWindow, path);
    if (!found || !found->isEnabled())
        return Result::Waiting;
    QPointer<QAction> guarded(found);
    postAction([guarded] {
        if (guarded)
            guarded->trigger();
    });
    return Result::Done;
}

HST_ScriptRunner::Result HST_ScriptRunner::answerFileDialog(const QString& path, QWidget* window)
{
    QPointer<QFileDialog> dialog(qobject_cast<QFileDialog*>(window));
    if (!dialog)
        return Result::Waiting;
    postAction([dialog, path] {
        if (!dialog)
            return;
        if (path.isEmpty()) {
            dialog->reject();
            return;
        }
        // Typed, as a user would: selectFile leaves a focused name field as it is.
        if (auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
            name->setText(path);
        else
            dialog->selectFile(path);
        // QFileDialog's own accept, which checks the name as the dialog's button does.
        static_cast<QDialog*>(dialog.data())->accept();
    });
    return Result::Done;
}

HST_ScriptRunner::Result HST_ScriptRunner::click(const QString& target, QWidget* window)
{
    QPointer<QAbstractButton> guarded(HST_ScriptTargets::button(target, window));
    if (!guarded)
        return Result::Waiting;
    postAction([guarded] {
        if (guarded)
            guarded->click();
    });
    return Result::Done;
}

HST_ScriptRunner::Result HST_ScriptRunner::pressStep(
    const QString& name, QWidget* window, int maxPresses)
{
    // maxPresses > 1: the step is done when the plug-in's window is up; a press whose execute
    // ended without one (refused, or failed) is repeated.
    if (m_pressInFlight && *m_pressInFlight) {
        if (!isDialogWindow(window))
            return Result::Waiting;
        m_presses = 0;
        m_pressInFlight.reset();
        return Result::Done;
    }
    if (window || (m_host.pluginRunning && m_host.pluginRunning()))
        return Result::Waiting;
    if (m_presses >= maxPresses) {
        fail(QStringLiteral("no window came up after %1 presses").arg(maxPresses));
        return Result::Waiting;
    }
    if (!m_host.press || !m_host.canPress || !m_host.canPress(name))
        return Result::Waiting;
    ++m_presses;
    auto press = m_host.press;
    auto inFlight = std::make_shared<bool>(true);
    postAction([press, name, inFlight] {
        press(name);
        *inFlight = false;
    });
    if (maxPresses == 1) {
        m_presses = 0;
        return Result::Done;
    }
    m_pressInFlight = inFlight;
    return Result::Waiting;
}

HST_ScriptRunner::Result HST_ScriptRunner::visit(const QJsonArray& targets, QWidget* window)
{
    if (!m_visitReturned) {
        if (!isDialogWindow(window))
            return Result::Waiting;
        QPointer<QAbstractButton> opener(
            HST_ScriptTargets::button(targets.at(0).toString(), window));
        if (!opener)
            return Result::Waiting;
        m_visitWindow = window;
        m_visitClosed = false;
        auto returned = std::make_shared<bool>(false);
        m_visitReturned = returned;
        postAction([opener, returned] {
            if (opener)
                opener->click();
            *returned = true;
        });
        return Result::Waiting;
    }
    // The opener's click returns once whatever it opened has closed again.
    if (*m_visitReturned && window == m_visitWindow) {
        m_visitReturned.reset();
        return Result::Done;
    }
    if (!window || window == m_visitWindow || isBusyDialog(window) || m_visitClosed)
        return Result::Waiting;
    QPointer<QWidget> opened(window);
    if (targets.at(1).isString()) {
        QPointer<QAbstractButton> closer(
            HST_ScriptTargets::button(targets.at(1).toString(), window));
        if (!closer)
            return Result::Waiting;
        postAction([closer] {
            if (closer)
                closer->click();
        });
    } else {
        postAction([opened] {
            if (auto* dialog = qobject_cast<QDialog*>(opened.data()))
                dialog->reject();
            else if (opened)
                opened->close();
        });
    }
    m_visitClosed = true;
    return Result::Waiting;
}

HST_ScriptRunner::Result HST_ScriptRunner::changeWorld(const QJsonObject& world, QWidget* window)
{
    if (window || (m_host.pluginRunning && m_host.pluginRunning()) || !m_host.changeWorld)
        return Result::Waiting;
    emit acting(m_index + 1);
    QString error;
    if (!m_host.changeWorld(world, error)) {
        fail(error);
        return Result::Waiting;
    }
    return Result::Done;
}

HST_ScriptRunner::Result HST_ScriptRunner::input(
    const QString& kind, const QJsonValue& value, QWidget* window)
{
    // The document windows are out of reach while a modal window is up.
    if (window || !m_host.documentView || !m_host.currentKey)
        return Result::Waiting;
    const int key = HST_InputSteps::documentOf(kind, value, m_host.currentKey());
    QPointer<QWidget> view(m_host.documentView(key));
    if (!view || !view->isVisible())
        return Result::Waiting;
    HST_Recorder* recorder = m_recorder;
    const auto rectangle = m_host.rectangle;
    postAction([kind, value, view, key, recorder, rectangle] {
        if (view)
            HST_InputSteps::play(kind, value, view, key, recorder, rectangle);
    });
    return Result::Done;
}

void HST_ScriptRunner::answer(QMessageBox* box)
{
    if (box == m_answered)
        return;
    m_answered = box;
    QAbstractButton* button = box->button(QMessageBox::Ok);
    if (!button)
        button = box->button(QMessageBox::No);
    if (!button)
        button = box->defaultButton();
    QPointer<QAbstractButton> guarded(button);
    QPointer<QMessageBox> guardedBox(box);
    post(this, [guarded, guardedBox] {
        if (guarded)
            guarded->click();
        else if (guardedBox)
            guardedBox->reject();
    });
}

HST_ScriptRunner::Result HST_ScriptRunner::set(
    const QString& name, const QJsonValue& value, QWidget* window)
{
    QWidget* widget = window->findChild<QWidget*>(name);
    if (!widget || !widget->isEnabled())
        return Result::Waiting;
    QPointer<QWidget> guarded(widget);
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        const QString text = value.isString() ? value.toString() : value.toVariant().toString();
        postAction([guarded, edit, text] {
            if (guarded) {
                edit->setText(text);
                emit edit->editingFinished();
            }
        });
        return Result::Done;
    }
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        const int index = value.isDouble() ? value.toInt() : combo->findText(value.toString());
        if (index < 0 || index >= combo->count())
            return Result::Waiting;
        postAction([guarded, combo, index] {
            if (guarded) {
                combo->setCurrentIndex(index);
                emit combo->activated(index);
            }
        });
        return Result::Done;
    }
    if (auto* list = qobject_cast<QListWidget*>(widget)) {
        int row = value.isDouble() ? value.toInt() : -1;
        for (int i = 0; i < list->count() && row < 0; ++i) {
            if (list->item(i)->text() == value.toString())
                row = i;
        }
        if (row < 0 || row >= list->count())
            return Result::Waiting;
        postAction([guarded, list, row] {
            if (guarded)
                list->setCurrentRow(row);
        });
        return Result::Done;
    }
    if (auto* spin = qobject_cast<QSpinBox*>(widget)) {
        const int number = value.toVariant().toInt();
        postAction([guarded, spin, number] {
            if (guarded)
                spin->setValue(number);
        });
        return Result::Done;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        const bool on = value.toVariant().toBool();
        const bool radio = qobject_cast<QRadioButton*>(widget) != nullptr;
        // A click, so that the clicked signals fire; a radio button is clicked even when it
        // is checked already, as a user can.
        postAction([guarded, button, on, radio] {
            if (!guarded)
                return;
            if ((radio && on) || button->isChecked() != on)
                button->click();
        });
        return Result::Done;
    }
    return Result::Waiting;
}

HST_ScriptRunner::Result HST_ScriptRunner::runScript(const QString& code, QWidget* window)
{
    QWebView* view = qobject_cast<QWebView*>(window);
    if (!view) {
        for (QWebView* candidate : window->findChildren<QWebView*>()) {
            if (candidate->isVisible()) {
                view = candidate;
                break;
            }
        }
    }
    if (!view)
        return Result::Waiting;
    // A page still loading hasn't run its scripts yet: wait, as a user waits for it to fill.
    QWebFrame* frame = view->page()->mainFrame();
    if (frame->url().isEmpty()
        || frame->evaluateJavaScript(QStringLiteral("document.readyState")).toString()
            != QLatin1String("complete"))
        return Result::Waiting;
    QPointer<QWebView> guarded(view);
    HST_Recorder* recorder = m_recorder;
    postAction([guarded, code, recorder] {
        if (!guarded)
            return;
        const QVariant result = guarded->page()->mainFrame()->evaluateJavaScript(code);
        recorder->record(QStringLiteral("js"),
            { { QStringLiteral("code"), code },
                { QStringLiteral("result"), QJsonValue::fromVariant(result) } });
    });
    return Result::Done;
}

HST_ScriptRunner::Result HST_ScriptRunner::screenshot(const QString& path, QWidget* window)
{
    QWidget* target = window;
    if (!target && !(m_busy && m_busy()))
        target = m_idleWindow;
    if (!target)
        return Result::Waiting;
    if (!target->grab().save(path)) {
        fail(QStringLiteral("cannot write the screenshot %1").arg(path));
        return Result::Waiting;
    }
    m_recorder->record(QStringLiteral("screenshot"), { { QStringLiteral("file"), path } });
    return Result::Done;
}

void HST_ScriptRunner::nextStep()
{
    m_recorder->record(QStringLiteral("step"),
        { { QStringLiteral("index"), m_index + 1 },
            { QStringLiteral("step"), m_steps.at(m_index) } });
    ++m_index;
    m_stepClock.restart();
    if (m_index < m_steps.size())
        return;
    m_finished = true;
    if (!m_autoAnswer && !m_endClosed)
        m_timer.stop();
    emit finished(true);
}

void HST_ScriptRunner::fail(const QString& problem)
{
    if (hasFailed())
        return;
    failWith(m_index + 1,
        QStringLiteral("script step %1 %2: %3")
            .arg(m_index + 1)
            .arg(stepText(m_steps.at(m_index)), problem));
}

void HST_ScriptRunner::failWith(int index, const QString& failure)
{
    m_failure = failure;
    m_recorder->record(QStringLiteral("scriptError"),
        { { QStringLiteral("index"), index }, { QStringLiteral("text"), m_failure } });
    qCritical("%s", qPrintable(m_failure));
    m_finished = true;
    emit finished(false);
}

void HST_ScriptRunner::failLeftOpen()
{
    QWidget* window = QApplication::activeModalWidget();
    if (!window || isBusyDialog(window)) {
        m_stepClock.restart();
        return;
    }
    if (m_stepClock.elapsed() <= m_timeoutMs)
        return;
    failWith(int(m_steps.size()),
        QStringLiteral("after the last step: the window \"%1\" is still open")
            .arg(window->windowTitle()));
}

void HST_ScriptRunner::closeModalWindows()
{
    QWidget* window = QApplication::activeModalWidget();
    if (!window || isBusyDialog(window))
        return;
    if (auto* dialog = qobject_cast<QDialog*>(window)) {
        QPointer<QDialog> guarded(dialog);
        post(this, [guarded] {
            if (guarded)
                guarded->reject();
        });
    } else {
        window->close();
    }
}
