#pragma once

#include <QList>
#include <QString>

// A menu entry of the main window that opens a page of the plug-in file with an argument.
struct HST_PageMenuEntry
{
    // A top-level menu, made when first needed, before Tools.
    QString menu;
    QString text;
    QString arg;
};

// Where the main window offers the plug-in file's dialogs that have a place of their own (the
// device dialogs under Device, custom info under Info), with the argument of each entry. Pages
// without one go to Tools under their title.
class HST_PageMenus
{
public:
    HST_PageMenus() = delete;

    static QList<HST_PageMenuEntry> entries(const QString& page);
};
