#pragma once

#include <QJsonValue>
#include <QString>

#include <functional>

class HST_Recorder;
class QWidget;

// The script steps that use the mouse and the keyboard on a document's window, as a user
// would: {"drag": {"document": KEY, "from": [X, Y], "to": [X, Y], "steps": N}} presses the
// left button at from, moves in N even steps to to and releases there; {"mouse": {"document":
// KEY, "press" | "move" | "release": [X, Y]}} or {"mouse": {"document": KEY, "leave": true}}
// does one of those; {"key": "Shift+Left"} presses and releases a key with its modifiers on
// the current document's window. Positions are the window's own coordinates; without
// "document" the current document's window. After the step the record gets "input" with the
// rectangle the host then reads from the plug-in that has one.
class HST_InputSteps
{
public:
    HST_InputSteps() = delete;

    static bool handles(const QString& kind);
    // False with problem set when the value can't be played.
    static bool validate(const QString& kind, const QJsonValue& value, QString& problem);
    // The document the step acts on: its "document", else currentKey.
    static int documentOf(const QString& kind, const QJsonValue& value, int currentKey);
    // Plays a checked step on the document's window, then records it with what rectangle
    // gives for the document.
    static void play(const QString& kind, const QJsonValue& value, QWidget* view, int key,
        HST_Recorder* recorder, const std::function<QJsonValue(int key)>& rectangle);
};
