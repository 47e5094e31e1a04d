#pragma once

#include <QLatin1String>

// Keys and names shared with the host. The texts are the host's contract and case-sensitive.
// constexpr, so that loading the plug-in runs no constructor for them.
namespace SyncKeys {

constexpr QLatin1String PLUGIN_NAME_SYNCCONTROL("synccontrol");

constexpr QLatin1String TOOL_CROSSCURSOR("t_crosscursor");
constexpr QLatin1String TOOL_MULTILOCK("t_multilock");
constexpr QLatin1String TOOL_ZOOMFIT("t_zoomfit");

constexpr QLatin1String PREF_KEY_SYNCCONTROL_NRACK("sync/nrack");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_NRACK_IPADDRESS("sync/nrack/ipaddress");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_EXTERNAL("sync/external");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_MASTER_CAMERA("sync/masterCamera");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_TRIGGER_SIGNAL_POLARITY("sync/triggerSignalPolarity");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS("sync/generator/address");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_CTRL("sync/generator/ctrl");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_FREQUENCY("sync/generator/frequency");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_INPUT("sync/generator/input");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_TRYCONNECT("sync/generator/tryconnect");

constexpr QLatin1String PREF_KEY_ENV_STYLE("env/style");
constexpr QLatin1String PREF_KEY_MAIN_SCRNO("main/scrno");

} // namespace SyncKeys
