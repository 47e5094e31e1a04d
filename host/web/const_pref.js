// Preference keys that pages read and write through their mediator.
var PREF_KEY_ENV_STYLE = 'env/style';
var PREF_KEY_SYNCCONTROL_EXTERNAL = 'sync/external';
var PREF_KEY_SYNCCONTROL_MASTER_CAMERA = 'sync/masterCamera';
var PREF_KEY_SYNCCONTROL_GENERATOR_CTRL = 'sync/generator/ctrl';
var PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS = 'sync/generator/address';
var PREF_KEY_DEVICEMANAGER_CONNECTED_CAMERA_ONLY = 'devicemanager/connectedCameraOnlyShowing';
var PREF_KEY_SNAP_DIR = 'snap/dir';
// The save dialogs: output format and codec of each family, the naming keys behind a prefix
// ("export/", "convert/", "snap/", "report/", e.g. "export/groupdir"), the multiple paths.
var PREF_KEY_EXPORT_FILE_FORMAT = 'export/fileformat';
var PREF_KEY_EXPORT_CODEC = 'export/codec';
var PREF_KEY_CONVERT_FILE_FORMAT = 'convert/fileformat';
var PREF_KEY_CONVERT_CODEC = 'convert/codec';
var PREF_KEY_SNAP_FILE_FORMAT = 'snap/fileformat';
var PREF_KEY_REPORT_FILE_FORMAT = 'report/fileformat';
var PREF_KEY_EXPORT_SINGLE_PATH = 'export/singlepath';
var PREF_KEY_EXPORT_MULTI_PATH_LIST = 'export/multipathlist';
var PREF_KEY_EXPORT_MULTI_PATH_DEVICE_LIST = 'export/multipathdevicelist';
