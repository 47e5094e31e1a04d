#pragma once

#include <QString>

class QAbstractButton;
class QAction;
class QMainWindow;
class QWidget;

// What a script step acts on, found as a user would find it: visible and enabled.
class HST_ScriptTargets
{
public:
    HST_ScriptTargets() = delete;

    // A visible, enabled button of the window by object name or text (without "&").
    static QAbstractButton* button(const QString& target, QWidget* window);
    // A visible top-level window, or a window or dock panel inside one, by object name or title.
    static QWidget* namedWindow(const QString& name);
    // The entry at the end of a path of menu titles ("Help/About"); null when the path leads
    // nowhere or to a submenu.
    static QAction* menuEntry(QMainWindow* window, const QString& path);
};
