// HST_Host's page stack as far as the select box reaches it, apart from the rest of the host.
#include "host/HST_Host.h"
#include "host/HST_LiveControlPage.h"
#include "host/HST_Recorder.h"

PLG_Interface* HST_Host::currentPage()
{
    hostCall("currentPage");
    // The host's panel shows the live control page while it is in camera mode.
    return m_mode == 0 ? m_liveControlPage.get() : nullptr;
}

void HST_Host::selectVariable(int number)
{
    hostCall("selectVariable");
    m_recorder->record(QStringLiteral("selectVariable"), { { QStringLiteral("number"), number } });
}
