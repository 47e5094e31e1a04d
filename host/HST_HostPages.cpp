// HST_Host's page stack as far as the select box reaches it, apart from the rest of the host.
#include "host/HST_Host.h"
#include "host/HST_LiveControlPage.h"
#include "host/HST_Recorder.h"

PLG_Interface* HST_Host::currentPage()
{
    // A plug-in's page the host shows wins; else the live control page, while the select box
    // offers its variables in camera mode.
    if (PLG_Interface* page = HST_ViewHost::currentPage())
        return page;
    return m_liveControlShown && m_mode == 0 ? m_liveControlPage.get() : nullptr;
}

void HST_Host::selectVariable(int number)
{
    hostCall("selectVariable");
    m_recorder->record(QStringLiteral("selectVariable"), { { QStringLiteral("number"), number } });
}
