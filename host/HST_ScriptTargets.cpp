#include "host/HST_ScriptTargets.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

QAbstractButton* HST_ScriptTargets::button(const QString& target, QWidget* window)
{
    const QList<QAbstractButton*> buttons = window->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        const bool matches
            = button->objectName() == target || button->text().remove(QLatin1Char('&')) == target;
        if (matches && button->isVisible() && button->isEnabled())
            return button;
    }
    return nullptr;
}

QWidget* HST_ScriptTargets::namedWindow(const QString& name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* top : windows) {
        if (!top->isVisible())
            continue;
        if (top->objectName() == name || top->windowTitle() == name)
            return top;
        for (QWidget* child : top->findChildren<QWidget*>()) {
            // Only windows and docks go by their title: any widget may carry one unseen.
            const bool titled = child->isWindow() || qobject_cast<QDockWidget*>(child);
            if (child->isVisible()
                && (child->objectName() == name || (titled && child->windowTitle() == name)))
                return child;
        }
    }
    return nullptr;
}

QAction* HST_ScriptTargets::menuEntry(QMainWindow* window, const QString& path)
{
    QList<QAction*> actions = window->menuBar()->actions();
    QAction* found = nullptr;
    for (const QString& title : path.split(QLatin1Char('/'))) {
        found = nullptr;
        for (QAction* action : qAsConst(actions)) {
            if (action->text().remove(QLatin1Char('&')) == title) {
                found = action;
                break;
            }
        }
        if (!found)
            return nullptr;
        actions = found->menu() ? found->menu()->actions() : QList<QAction*>();
    }
    return found && !found->menu() ? found : nullptr;
}
