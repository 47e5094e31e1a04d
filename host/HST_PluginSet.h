#pragma once

#include "plugin/PLG_Interface.h"

#include <QJsonValue>
#include <QList>
#include <QPointer>
#include <QRect>
#include <QString>

#include <exception>
#include <optional>
#include <stdexcept>

class DOC_Interface;
class HST_Recorder;

// One plug-in's rectangle on one document, as the host keeps it for undo.
struct HST_RectangleState
{
    QPointer<PLG_Interface> plugin;
    int key = -1;
    QRect rect;

    bool operator==(const HST_RectangleState& other) const
    {
        return plugin == other.plugin && key == other.key && rect == other.rect;
    }
};
using HST_RectangleStates = QList<HST_RectangleState>;

// The plug-ins the host has loaded, in load order, borrowed from their loaders. The host calls
// them through here: a plug-in that lets an exception out is recorded as a leak, and the host
// goes on with the next.
class HST_PluginSet
{
public:
    explicit HST_PluginSet(HST_Recorder* recorder);

    void add(PLG_Interface* plugin);
    // The loaded plug-ins still alive, in load order.
    QList<PLG_Interface*> plugins() const;
    PLG_Interface* byName(const QString& name) const;

    // Calls f(plugin) on every plug-in.
    template <typename F> void each(const char* operation, F f) const
    {
        for (PLG_Interface* plugin : plugins())
            call(operation, [&] { f(plugin); });
    }
    // f(), or false after a leak was recorded.
    template <typename F> bool call(const char* operation, F f) const
    {
        try {
            f();
            return true;
        } catch (const std::exception& e) {
            recordLeak(operation, e);
        } catch (...) {
            recordLeak(operation, std::runtime_error("an exception of unknown type"));
        }
        return false;
    }

    // The first plug-in that has a rectangle on the document, with that rectangle.
    std::optional<HST_RectangleState> rectangleOf(DOC_Interface* doc, int key) const;
    // {"name": PLUG-IN, "rect": [x, y, width, height]} of rectangleOf, or null.
    QJsonValue rectangleJson(DOC_Interface* doc, int key) const;
    static QJsonValue rectJson(const QRect& rect);

private:
    void recordLeak(const char* operation, const std::exception& e) const;

    HST_Recorder* m_recorder;
    QList<QPointer<PLG_Interface>> m_plugins;
};
