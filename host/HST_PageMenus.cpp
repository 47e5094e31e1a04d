#include "host/HST_PageMenus.h"

namespace {

const struct
{
    const char* page;
    const char* menu;
    const char* text;
    const char* arg;
} placed[] = {
    { "livecontrol_adddevice", "Device", "Add device...", "" },
    { "livecontrol_editdevice", "Device", "Edit device...", "" },
    { "livecontrol_searchsetting", "Device", "Camera search settings...", "" },
    { "custominfo", "Info", "Custom info...", "" },
    { "custominfo", "Info", "Custom info for file names...", "2" },
    { "custominfo", "Info", "Custom info of temporary documents...", "15:temporary" },
    { "camerasettings", "Device", "Save camera settings...", "file" },
    { "camerasettings", "Device", "Write camera presets...", "preset" },
    { "camerasettingsload", "Device", "Load camera settings...", "" },
    { "selectbox", "View", "Select partition", "partition" },
    { "selectbox", "View", "Select variable", "variable" },
};

} // namespace

QList<HST_PageMenuEntry> HST_PageMenus::entries(const QString& page)
{
    QList<HST_PageMenuEntry> found;
    for (const auto& entry : placed) {
        if (page == QLatin1String(entry.page))
            found.append(
                { QLatin1String(entry.menu), QLatin1String(entry.text), QLatin1String(entry.arg) });
    }
    return found;
}
