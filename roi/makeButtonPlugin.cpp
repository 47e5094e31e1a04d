#include "roi/PLG_roi.h"

// The plug-in file's one export, under exactly this name, with plain C naming.
extern "C" SYNC_EXPORT PLG_Interface* makeButtonPlugin()
{
    return makeRoiPlugin();
}
