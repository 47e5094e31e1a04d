#pragma once

#include <QString>
#include <QStringList>

class APP_Host;

// The export of the support file: the question listing what goes into it, the file name, the
// host's export on a pool thread behind its busy dialog, and the folder kept for next time.
class JS_SupportFileExport
{
public:
    JS_SupportFileExport() = delete;

    // The whole dialog flow; failures go to the host's report.
    static void run(APP_Host* host);

    // The items the question lists, source texts in their order; the camera log only when a
    // camera keeps one.
    static QStringList items(bool withCameraLog);

private:
    static bool anyCameraLog(APP_Host* host);
};
