#include "host/HST_PluginSet.h"

#include "host/HST_Recorder.h"
#include "plugin/PLG_Interface.h"

#include <QJsonArray>
#include <QJsonObject>

HST_PluginSet::HST_PluginSet(HST_Recorder* recorder)
    : m_recorder(recorder)
{
}

void HST_PluginSet::add(PLG_Interface* plugin)
{
    if (plugin && !m_plugins.contains(plugin))
        m_plugins.append(plugin);
}

QList<PLG_Interface*> HST_PluginSet::plugins() const
{
    QList<PLG_Interface*> alive;
    for (const QPointer<PLG_Interface>& plugin : m_plugins) {
        if (plugin)
            alive.append(plugin.data());
    }
    return alive;
}

PLG_Interface* HST_PluginSet::byName(const QString& name) const
{
    for (PLG_Interface* plugin : plugins()) {
        QString pluginName;
        call("pageName", [&] { pluginName = plugin->pageName(); });
        if (pluginName == name)
            return plugin;
    }
    return nullptr;
}

std::optional<HST_RectangleState> HST_PluginSet::rectangleOf(DOC_Interface* doc, int key) const
{
    if (!doc)
        return std::nullopt;
    for (PLG_Interface* plugin : plugins()) {
        std::optional<HST_RectangleState> found;
        call("hasRectangle", [&] {
            if (plugin->hasRectangle(doc))
                found = HST_RectangleState { plugin, key, plugin->rectangle(doc) };
        });
        if (found)
            return found;
    }
    return std::nullopt;
}

QJsonValue HST_PluginSet::rectangleJson(DOC_Interface* doc, int key) const
{
    const std::optional<HST_RectangleState> state = rectangleOf(doc, key);
    if (!state)
        return QJsonValue::Null;
    QString name;
    call("pageName", [&] { name = state->plugin->pageName(); });
    return QJsonObject { { QStringLiteral("name"), name },
        { QStringLiteral("rect"), rectJson(state->rect) } };
}

QJsonValue HST_PluginSet::rectJson(const QRect& rect)
{
    return QJsonArray { rect.x(), rect.y(), rect.width(), rect.height() };
}

void HST_PluginSet::recordLeak(const char* operation, const std::exception& e) const
{
    // A plug-in must end its own exceptions; the host survives one, and says so.
    qCritical("A plug-in let an exception out of %s: %s", operation, e.what());
    if (m_recorder)
        m_recorder->record(QStringLiteral("leak"),
            { { QStringLiteral("operation"), QLatin1String(operation) },
                { QStringLiteral("text"), QString::fromUtf8(e.what()) } });
}
