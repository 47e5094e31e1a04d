// Preference keys that pages read and write through their mediator.
var PREF_KEY_ENV_STYLE = 'env/style';
var PREF_KEY_SYNCCONTROL_EXTERNAL = 'sync/external';
var PREF_KEY_SYNCCONTROL_MASTER_CAMERA = 'sync/masterCamera';
var PREF_KEY_SYNCCONTROL_GENERATOR_CTRL = 'sync/generator/ctrl';
var PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS = 'sync/generator/address';
var PREF_KEY_DEVICEMANAGER_CONNECTED_CAMERA_ONLY = 'devicemanager/connectedCameraOnlyShowing';
var PREF_KEY_SNAP_DIR = 'snap/dir';
