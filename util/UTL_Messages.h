#pragma once

#include <QMap>
#include <QString>

class APP_Host;
class QWidget;

// The one message box the host does not offer (Yes / No / Cancel), the host's message box
// styles, and the placing of a window while the host has no main window.
class UTL_Messages
{
public:
    UTL_Messages() = delete;

    // Gives the value of the pressed button (QMessageBox::StandardButton).
    static int confirmYesNoCancel(const QString& text, APP_Host* host, QWidget* parent,
                                  const QMap<int, QString>& buttonTexts);

    static void setMessageBoxStyle(APP_Host* host, QWidget* widget);
    static void setNativeStyle(APP_Host* host, QWidget* widget);
    static void centerOnScreen(APP_Host* host, QWidget* widget);

    // The host's translation of a text for the user. A translation that fails leaves the
    // source text and a line in the log: an untranslated text beats no dialog at all.
    static QString translate(APP_Host* host, const QString& sourceText);

    // Name of a standard button for the log; empty for a value without a name.
    static QString buttonName(int button);

private:
    static bool isDarkTheme(APP_Host* host);
    static QString styleSheet(const QString& resource);
};
