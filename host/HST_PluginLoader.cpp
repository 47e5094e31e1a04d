#include "host/HST_PluginLoader.h"

#include "plugin/PLG_Interface.h"

#include <QFileInfo>

namespace {
const char entryName[] = "makeButtonPlugin";
}

HST_PluginLoader::HST_PluginLoader(const QString& path)
    : m_path(path)
    , m_library(path)
{
}

HST_PluginLoader::~HST_PluginLoader()
{
    release();
}

bool HST_PluginLoader::load(APP_Host* host, QString& error)
{
    if (!QFileInfo(m_path).isFile()) {
        error = QStringLiteral("Plug-in file not found: %1").arg(m_path);
        return false;
    }
    if (!m_library.load()) {
        error = QStringLiteral("Cannot load the plug-in file %1: %2")
                    .arg(m_path, m_library.errorString());
        return false;
    }
    auto make = reinterpret_cast<PLG_MakeButtonPlugin>(m_library.resolve(entryName));
    if (!make) {
        error = QStringLiteral("The plug-in file %1 has no entry %2")
                    .arg(m_path, QLatin1String(entryName));
        return false;
    }
    m_plugin = make();
    if (!m_plugin) {
        error = QStringLiteral("%1 of the plug-in file %2 gave no plug-in")
                    .arg(QLatin1String(entryName), m_path);
        return false;
    }
    m_name = m_plugin->pageName();
    m_plugin->setHost(host);
    return true;
}

void HST_PluginLoader::release()
{
    delete m_plugin;
    m_plugin = nullptr;
}
