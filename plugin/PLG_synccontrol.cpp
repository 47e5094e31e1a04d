#include "plugin/PLG_synccontrol.h"

#include "plugin/APP_Host.h"
#include "plugin/PLG_DialogFactory.h"
#include "plugin/SharedKeys.h"
#include "sync/GUI_SyncControl.h"
#include "util/UTL_Barrier.h"

#include <new>

PLG_synccontrol::PLG_synccontrol(QObject* parent)
    : PLG_Button(parent)
{
}

PLG_synccontrol::~PLG_synccontrol()
{
    // Null when the host's window, the dialog's parent, has deleted it already.
    delete m_syncControl.data();
}

GUI_SyncControl* PLG_synccontrol::syncControl() const
{
    return m_syncControl;
}

void PLG_synccontrol::setHost(APP_Host* host)
{
    PLG_Button::setHost(host);
    // Nobody has asked for anything yet: a failure is logged here, and execute tries again.
    UTL_Barrier::logged("PLG_synccontrol::setHost", [this] { makeDialog(); });
    // A child, found by its name: the host's way to the file's other dialogs.
    if (host && !findChild<PLG_DialogFactory*>(QString(), Qt::FindDirectChildrenOnly))
        new (std::nothrow) PLG_DialogFactory(host, this);
}

void PLG_synccontrol::makeDialog()
{
    if (!m_syncControl && m_host)
        m_syncControl = new (std::nothrow) GUI_SyncControl(m_host, m_host->parentWidget());
}

void PLG_synccontrol::update()
{
    UTL_Barrier::reported(m_host, [this] {
        if (m_syncControl && m_syncControl->isVisible())
            m_syncControl->guiUpdate();
    });
}

void PLG_synccontrol::execute()
{
    UTL_Barrier::reported(m_host, [this] {
        makeDialog();
        if (m_syncControl)
            m_syncControl->exec();
    });
}

bool PLG_synccontrol::isEnabled()
{
    // Asked whenever the host redraws its tool bar: a failure leaves the button off and a
    // line in the log, not a box at every redraw.
    return UTL_Barrier::logged("PLG_synccontrol::isEnabled", false, [this] {
        if (!m_host || !m_host->isCameraMode())
            return false;
        return m_host->documentKeys(0).size() >= 2;
    });
}

PLG_Interface* makeSyncControlPlugin()
{
    auto* plugin = new (std::nothrow) PLG_synccontrol();
    if (!plugin)
        return nullptr;
    plugin->m_syncControl = nullptr;
    plugin->m_name = PLUGIN_NAME_SYNCCONTROL;
    plugin->m_pluginType = 5;
    return plugin;
}
