#include "plugin/PLG_synccontrol.h"

#include "plugin/APP_Host.h"
#include "plugin/SyncKeys.h"
#include "sync/GUI_SyncControl.h"

#include <new>

PLG_synccontrol::PLG_synccontrol(QObject* parent)
    : PLG_Button(parent)
{
}

PLG_synccontrol::~PLG_synccontrol()
{
    delete m_syncControl;
}

void PLG_synccontrol::setHost(APP_Host* host)
{
    PLG_Button::setHost(host);
    m_syncControl = new (std::nothrow) GUI_SyncControl(host, host->parentWidget());
}

void PLG_synccontrol::update()
{
    if (m_syncControl && m_syncControl->isVisible())
        m_syncControl->guiUpdate();
}

void PLG_synccontrol::execute()
{
    if (!m_syncControl)
        return;
    try {
        m_syncControl->exec();
    } catch (const std::exception& e) {
        m_host->reportException(e);
    }
}

bool PLG_synccontrol::isEnabled()
{
    if (!m_host || !m_host->isCameraMode())
        return false;
    return m_host->documentKeys(0).size() >= 2;
}

PLG_Interface* makeSyncControlPlugin()
{
    auto* plugin = new (std::nothrow) PLG_synccontrol();
    if (!plugin)
        return nullptr;
    plugin->m_syncControl = nullptr;
    plugin->m_name = SyncKeys::PLUGIN_NAME_SYNCCONTROL;
    plugin->m_pluginType = 5;
    return plugin;
}
