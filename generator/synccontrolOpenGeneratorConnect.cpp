// Test entry of the plug-in file, for the reference host's --open-connect-dialog: runs the
// generator connect dialog as the sync dialog's button does, with a driver of its own, until
// the sync dialog's form offers the button. Lives in the plug-in file only, like the export.
#include "generator/DOC_VIGen.h"
#include "generator/GUI_SyncSignalGeneratorConnect.h"
#include "plugin/APP_Host.h"
#include "plugin/SyncGlobal.h"

namespace {

const char* const addressKey = "sync/generator/address";

} // namespace

// Gives the dialog's exec result, or -1 when VISA can't be bound or something threw.
extern "C" SYNC_EXPORT int synccontrolOpenGeneratorConnect(APP_Host* host, QWidget* parent)
{
    DOC_VIGen generator(host);
    int result = -1;
    try {
        if (!generator.loadLibrary())
            return -1;
        QString stored;
        host->getPrefString(stored, QLatin1String(addressKey), QString());
        auto* dialog = new GUI_SyncSignalGeneratorConnect(host, parent, &generator);
        result = dialog->exec();
        // The page wrote every address it tried; only an accepted one stays.
        if (result != 1)
            host->setPrefString(QLatin1String(addressKey), stored);
        delete dialog;
    } catch (const std::exception& e) {
        host->reportException(e);
    }
    generator.disconnect();
    generator.unloadLibrary();
    return result;
}
