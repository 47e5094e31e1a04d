#pragma once

#include <QLatin1String>

// Keys and names shared with the host. The texts are the host's contract and case-sensitive.
// constexpr, so that loading the plug-in runs no constructor for them.
// The length is given, so the constant is a constant expression on every compiler.
#define SYNC_KEY(text) QLatin1String(text, int(sizeof(text) - 1))

namespace SyncKeys {

constexpr QLatin1String PLUGIN_NAME_SYNCCONTROL = SYNC_KEY("synccontrol");

constexpr QLatin1String TOOL_CROSSCURSOR = SYNC_KEY("t_crosscursor");
constexpr QLatin1String TOOL_MULTILOCK = SYNC_KEY("t_multilock");
constexpr QLatin1String TOOL_ZOOMFIT = SYNC_KEY("t_zoomfit");

constexpr QLatin1String PREF_KEY_SYNCCONTROL_NRACK = SYNC_KEY("sync/nrack");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_NRACK_IPADDRESS = SYNC_KEY("sync/nrack/ipaddress");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_EXTERNAL = SYNC_KEY("sync/external");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_MASTER_CAMERA = SYNC_KEY("sync/masterCamera");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_TRIGGER_SIGNAL_POLARITY = SYNC_KEY("sync/triggerSignalPolarity");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS = SYNC_KEY("sync/generator/address");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_CTRL = SYNC_KEY("sync/generator/ctrl");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_FREQUENCY = SYNC_KEY("sync/generator/frequency");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_INPUT = SYNC_KEY("sync/generator/input");
constexpr QLatin1String PREF_KEY_SYNCCONTROL_GENERATOR_TRYCONNECT = SYNC_KEY("sync/generator/tryconnect");

constexpr QLatin1String PREF_KEY_ENV_STYLE = SYNC_KEY("env/style");
constexpr QLatin1String PREF_KEY_MAIN_SCRNO = SYNC_KEY("main/scrno");

} // namespace SyncKeys
