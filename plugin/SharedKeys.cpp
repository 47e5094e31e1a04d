#include "plugin/SharedKeys.h"

// Order matters here: INFO_ITEMS and STATUS_NAMES copy the named constants defined above them.

const QString PLUGIN_NAME_SYNCCONTROL = QStringLiteral("synccontrol");
const QString PLUGIN_NAME_ROI = QStringLiteral("roi");
const QString TOOL_CROSSCURSOR = QStringLiteral("t_crosscursor");
const QString TOOL_MULTILOCK = QStringLiteral("t_multilock");
const QString TOOL_ZOOMFIT = QStringLiteral("t_zoomfit");
const QString TOOL_IMAGEOVERLAY = QStringLiteral("imageoverlay");
const QString FEATURE_BINNING = QStringLiteral("binning");

const QString PAGE_OBJECT_HISTOGRAM = QStringLiteral("histogram");
const QString PAGE_OBJECT_IMAGETRIGGER = QStringLiteral("imagetrigger");
const QString PAGE_OBJECT_LINEPROFILE = QStringLiteral("lineprofile");
const QString PAGE_OBJECT_LIVECONTROL = QStringLiteral("livecontrol");
const QString PAGE_OBJECT_LUT = QStringLiteral("lut");
const QString PAGE_OBJECT_ANALOGGAIN = QStringLiteral("m_analoggain");
const QString PAGE_OBJECT_FOCUSCHECK = QStringLiteral("m_focuscheck");
const QString PAGE_OBJECT_SENSORLUT = QStringLiteral("m_sensorlut");

const QString SETTING_VALUE_ON = QStringLiteral("on");
const QString SETTING_VALUE_FILE = QStringLiteral("file");

const QString DATE_FORMAT = QStringLiteral("yyyy/M/d");
const QString TIME_FORMAT_HM = QStringLiteral("HH:mm");
const QString TIME_FORMAT_HMS = QStringLiteral("HH:mm:ss");

const QString COMMENT_SEPARATOR = QStringLiteral("{Separator}");

const QString PREF_KEY_SYNCCONTROL_NRACK = QStringLiteral("sync/nrack");
const QString PREF_KEY_SYNCCONTROL_NRACK_IPADDRESS = QStringLiteral("sync/nrack/ipaddress");
const QString PREF_KEY_SYNCCONTROL_EXTERNAL = QStringLiteral("sync/external");
const QString PREF_KEY_SYNCCONTROL_MASTER_CAMERA = QStringLiteral("sync/masterCamera");
const QString PREF_KEY_SYNCCONTROL_TRIGGER_SIGNAL_POLARITY
    = QStringLiteral("sync/triggerSignalPolarity");
const QString PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS = QStringLiteral("sync/generator/address");
const QString PREF_KEY_SYNCCONTROL_GENERATOR_CTRL = QStringLiteral("sync/generator/ctrl");
const QString PREF_KEY_SYNCCONTROL_GENERATOR_FREQUENCY = QStringLiteral("sync/generator/frequency");
const QString PREF_KEY_SYNCCONTROL_GENERATOR_INPUT = QStringLiteral("sync/generator/input");
const QString PREF_KEY_SYNCCONTROL_GENERATOR_TRYCONNECT
    = QStringLiteral("sync/generator/tryconnect");

const OutputKeys PREF_KEYS_EXPORT = {
    QStringLiteral("export/dir"), QStringLiteral("export/dirasoriginal"),
    QStringLiteral("export/filename"), QStringLiteral("export/filenameaddnumbersessionnodigits"),
    QStringLiteral("export/filenameaddtime"), QStringLiteral("export/filenameaddtimeformat"),
    QStringLiteral("export/filenameasoriginal"), QStringLiteral("export/filenameaspartitionname"),
    QStringLiteral("export/filenameusecustom"),
    QStringLiteral("export/filenameusecustomfromtarget"),
    QStringLiteral("export/filenameusecustomfromtargetkey"),
    QStringLiteral("export/filenameusecustomincludeunit"), QStringLiteral("export/groupdir"),
    QStringLiteral("export/groupdiraddnumber"), QStringLiteral("export/groupdiraddnumberformat"),
    QStringLiteral("export/groupdiraddtime"), QStringLiteral("export/groupdiraddtimeformat"),
    QStringLiteral("export/groupdirasfilename"),
    QStringLiteral("export/groupdirasfilenameincludeoption"), QStringLiteral("export/groupdirname"),
    QStringLiteral("export/subdir"), QStringLiteral("export/subdiraddnumber"),
    QStringLiteral("export/subdiraddnumberformat"),
    QStringLiteral("export/subdiraddnumbersessionnodigits"), QStringLiteral("export/subdiraddtime"),
    QStringLiteral("export/subdiraddtimeformat"), QStringLiteral("export/subdirasfilename"),
    QStringLiteral("export/subdirasfilenameincludeoption"), QStringLiteral("export/subdirname"),
    QStringLiteral("export/filenameaddnumbercameranodigits"),
    QStringLiteral("export/filenameaddnumberheadnodigits"),
    QStringLiteral("export/groupdiraddnumbercameranodigits"),
    QStringLiteral("export/groupdiraddnumberheadnodigits"),
    QStringLiteral("export/groupdiraddnumbersessionnodigits"),
    QStringLiteral("export/subdiraddnumbercameranodigits"),
    QStringLiteral("export/subdiraddnumberheadnodigits"), QStringLiteral("export/qraw/bayersave"),
    QStringLiteral("export/rawq/bayersave"), QStringLiteral("export/tiff/bayersave"),
    QStringLiteral("export/saveinf"), QStringLiteral("export/saveinfo"),
    QStringLiteral("export/savethumbnail"), QStringLiteral("export/savethumbnailaddtextvalue"),
    QStringLiteral("export/skipsaveframe"), QStringLiteral("export/skipsavemsec"),
    QStringLiteral("export/skipunit"), QStringLiteral("export/inf_testno"),
    QStringLiteral("export/media"), QStringLiteral("export/multipathdevicelist"),
    QStringLiteral("export/multipathlist"), QStringLiteral("export/savecorrect"),
    QStringLiteral("export/savescale"), QStringLiteral("export/singlepath"),
    QStringLiteral("export/vp/datanameaddnumbercameranodigits"),
    QStringLiteral("export/vp/datanameaddnumberheadnodigits"),
    QStringLiteral("export/vp/datanameaddnumbersessionnodigits"),
    QString(), // vp/datanameaddnumber
};

const OutputKeys PREF_KEYS_CONVERT = {
    QStringLiteral("convert/dir"),
    QStringLiteral("convert/dirasoriginal"),
    QStringLiteral("convert/filename"),
    QStringLiteral("convert/filenameaddnumbersessionnodigits"),
    QStringLiteral("convert/filenameaddtime"),
    QStringLiteral("convert/filenameaddtimeformat"),
    QStringLiteral("convert/filenameasoriginal"),
    QStringLiteral("convert/filenameaspartitionname"),
    QStringLiteral("convert/filenameusecustom"),
    QStringLiteral("convert/filenameusecustomfromtarget"),
    QStringLiteral("convert/filenameusecustomfromtargetkey"),
    QStringLiteral("convert/filenameusecustomincludeunit"),
    QStringLiteral("convert/groupdir"),
    QStringLiteral("convert/groupdiraddnumber"),
    QStringLiteral("convert/groupdiraddnumberformat"),
    QStringLiteral("convert/groupdiraddtime"),
    QStringLiteral("convert/groupdiraddtimeformat"),
    QStringLiteral("convert/groupdirasfilename"),
    QStringLiteral("convert/groupdirasfilenameincludeoption"),
    QStringLiteral("convert/groupdirname"),
    QStringLiteral("convert/subdir"),
    QStringLiteral("convert/subdiraddnumber"),
    QStringLiteral("convert/subdiraddnumberformat"),
    QStringLiteral("convert/subdiraddnumbersessionnodigits"),
    QStringLiteral("convert/subdiraddtime"),
    QStringLiteral("convert/subdiraddtimeformat"),
    QStringLiteral("convert/subdirasfilename"),
    QStringLiteral("convert/subdirasfilenameincludeoption"),
    QStringLiteral("convert/subdirname"),
    QStringLiteral("convert/filenameaddnumbercameranodigits"),
    QStringLiteral("convert/filenameaddnumberheadnodigits"),
    QStringLiteral("convert/groupdiraddnumbercameranodigits"),
    QStringLiteral("convert/groupdiraddnumberheadnodigits"),
    QStringLiteral("convert/groupdiraddnumbersessionnodigits"),
    QStringLiteral("convert/subdiraddnumbercameranodigits"),
    QStringLiteral("convert/subdiraddnumberheadnodigits"),
    QStringLiteral("convert/qraw/bayersave"),
    QStringLiteral("convert/rawq/bayersave"),
    QStringLiteral("convert/tiff/bayersave"),
    QStringLiteral("convert/saveinf"),
    QStringLiteral("convert/saveinfo"),
    QStringLiteral("convert/savethumbnail"),
    QStringLiteral("convert/savethumbnailaddtextvalue"),
    QString(), // skipsaveframe
    QString(), // skipsavemsec
    QString(), // skipunit
    QString(), // inf_testno
    QString(), // media
    QString(), // multipathdevicelist
    QString(), // multipathlist
    QString(), // savecorrect
    QString(), // savescale
    QString(), // singlepath
    QString(), // vp/datanameaddnumbercameranodigits
    QString(), // vp/datanameaddnumberheadnodigits
    QString(), // vp/datanameaddnumbersessionnodigits
    QStringLiteral("convert/vp/datanameaddnumber"),
};

const OutputKeys PREF_KEYS_REPORT = {
    QStringLiteral("report/dir"), QStringLiteral("report/dirasoriginal"),
    QStringLiteral("report/filename"), QStringLiteral("report/filenameaddnumbersessionnodigits"),
    QStringLiteral("report/filenameaddtime"), QStringLiteral("report/filenameaddtimeformat"),
    QStringLiteral("report/filenameasoriginal"), QStringLiteral("report/filenameaspartitionname"),
    QStringLiteral("report/filenameusecustom"),
    QStringLiteral("report/filenameusecustomfromtarget"),
    QStringLiteral("report/filenameusecustomfromtargetkey"),
    QStringLiteral("report/filenameusecustomincludeunit"), QStringLiteral("report/groupdir"),
    QStringLiteral("report/groupdiraddnumber"), QStringLiteral("report/groupdiraddnumberformat"),
    QStringLiteral("report/groupdiraddtime"), QStringLiteral("report/groupdiraddtimeformat"),
    QStringLiteral("report/groupdirasfilename"),
    QStringLiteral("report/groupdirasfilenameincludeoption"), QStringLiteral("report/groupdirname"),
    QStringLiteral("report/subdir"), QStringLiteral("report/subdiraddnumber"),
    QStringLiteral("report/subdiraddnumberformat"),
    QStringLiteral("report/subdiraddnumbersessionnodigits"), QStringLiteral("report/subdiraddtime"),
    QStringLiteral("report/subdiraddtimeformat"), QStringLiteral("report/subdirasfilename"),
    QStringLiteral("report/subdirasfilenameincludeoption"), QStringLiteral("report/subdirname"),
    QString(), // filenameaddnumbercameranodigits
    QString(), // filenameaddnumberheadnodigits
    QString(), // groupdiraddnumbercameranodigits
    QString(), // groupdiraddnumberheadnodigits
    QStringLiteral("report/groupdiraddnumbersessionnodigits"),
    QString(), // subdiraddnumbercameranodigits
    QString(), // subdiraddnumberheadnodigits
    QString(), // qraw/bayersave
    QString(), // rawq/bayersave
    QString(), // tiff/bayersave
    QString(), // saveinf
    QString(), // saveinfo
    QString(), // savethumbnail
    QString(), // savethumbnailaddtextvalue
    QStringLiteral("report/skipsaveframe"), QStringLiteral("report/skipsavemsec"),
    QStringLiteral("report/skipunit"),
    QString(), // inf_testno
    QString(), // media
    QString(), // multipathdevicelist
    QString(), // multipathlist
    QString(), // savecorrect
    QString(), // savescale
    QString(), // singlepath
    QString(), // vp/datanameaddnumbercameranodigits
    QString(), // vp/datanameaddnumberheadnodigits
    QString(), // vp/datanameaddnumbersessionnodigits
    QString(), // vp/datanameaddnumber
};

const OutputKeys PREF_KEYS_SNAP = {
    QStringLiteral("snap/dir"), QStringLiteral("snap/dirasoriginal"),
    QStringLiteral("snap/filename"), QStringLiteral("snap/filenameaddnumbersessionnodigits"),
    QStringLiteral("snap/filenameaddtime"), QStringLiteral("snap/filenameaddtimeformat"),
    QStringLiteral("snap/filenameasoriginal"), QStringLiteral("snap/filenameaspartitionname"),
    QStringLiteral("snap/filenameusecustom"), QStringLiteral("snap/filenameusecustomfromtarget"),
    QStringLiteral("snap/filenameusecustomfromtargetkey"),
    QStringLiteral("snap/filenameusecustomincludeunit"), QStringLiteral("snap/groupdir"),
    QStringLiteral("snap/groupdiraddnumber"), QStringLiteral("snap/groupdiraddnumberformat"),
    QStringLiteral("snap/groupdiraddtime"), QStringLiteral("snap/groupdiraddtimeformat"),
    QStringLiteral("snap/groupdirasfilename"),
    QStringLiteral("snap/groupdirasfilenameincludeoption"), QStringLiteral("snap/groupdirname"),
    QStringLiteral("snap/subdir"), QStringLiteral("snap/subdiraddnumber"),
    QStringLiteral("snap/subdiraddnumberformat"),
    QStringLiteral("snap/subdiraddnumbersessionnodigits"), QStringLiteral("snap/subdiraddtime"),
    QStringLiteral("snap/subdiraddtimeformat"), QStringLiteral("snap/subdirasfilename"),
    QStringLiteral("snap/subdirasfilenameincludeoption"), QStringLiteral("snap/subdirname"),
    QStringLiteral("snap/filenameaddnumbercameranodigits"),
    QStringLiteral("snap/filenameaddnumberheadnodigits"),
    QStringLiteral("snap/groupdiraddnumbercameranodigits"),
    QStringLiteral("snap/groupdiraddnumberheadnodigits"),
    QStringLiteral("snap/groupdiraddnumbersessionnodigits"),
    QStringLiteral("snap/subdiraddnumbercameranodigits"),
    QStringLiteral("snap/subdiraddnumberheadnodigits"),
    QString(), // qraw/bayersave
    QString(), // rawq/bayersave
    QString(), // tiff/bayersave
    QString(), // saveinf
    QString(), // saveinfo
    QString(), // savethumbnail
    QString(), // savethumbnailaddtextvalue
    QString(), // skipsaveframe
    QString(), // skipsavemsec
    QString(), // skipunit
    QString(), // inf_testno
    QString(), // media
    QString(), // multipathdevicelist
    QString(), // multipathlist
    QString(), // savecorrect
    QString(), // savescale
    QString(), // singlepath
    QString(), // vp/datanameaddnumbercameranodigits
    QString(), // vp/datanameaddnumberheadnodigits
    QString(), // vp/datanameaddnumbersessionnodigits
    QString(), // vp/datanameaddnumber
};
const QString PREF_KEY_INFO_ALIGNMENT = QStringLiteral("info/Alignment");
const QString PREF_KEY_INFO_BLANK_LINE = QStringLiteral("info/BlankLine");
const QString PREF_KEY_INFO_BOLD = QStringLiteral("info/Bold");
const QString PREF_KEY_INFO_FONT_NAME = QStringLiteral("info/FontName");
const QString PREF_KEY_INFO_FONT_SIZE = QStringLiteral("info/FontSize");
const QString PREF_KEY_INFO_FOREGROUND_COLOR = QStringLiteral("info/ForegroundColor");
const QString PREF_KEY_INFO_ICON_SIZE = QStringLiteral("info/IconSize");
const QString PREF_KEY_INFO_ITALIC = QStringLiteral("info/Italic");
const QString PREF_KEY_INFO_LOGO_PATH = QStringLiteral("info/LogoPath");
const QString PREF_KEY_INFO_REC_TIME_UNIT = QStringLiteral("info/RecTimeUnit");
const QString PREF_KEY_INFO_WIDTH = QStringLiteral("info/Width");
const QString PREF_KEY_INFO_DISPLAY = QStringLiteral("info/display");
const QString PREF_KEY_SAVEINFO_ALIGNMENT = QStringLiteral("saveinfo/Alignment");
const QString PREF_KEY_SAVEINFO_BACKGROUND_COLOR = QStringLiteral("saveinfo/BackgroundColor");
const QString PREF_KEY_SAVEINFO_BOLD = QStringLiteral("saveinfo/Bold");
const QString PREF_KEY_SAVEINFO_COLUMN_NUM = QStringLiteral("saveinfo/ColumnNum");
const QString PREF_KEY_SAVEINFO_COLUMN_SPACING = QStringLiteral("saveinfo/ColumnSpacing");
const QString PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO
    = QStringLiteral("saveinfo/FixedFontSizeRatio");
const QString PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO_BASE_RESOLUTION
    = QStringLiteral("saveinfo/FixedFontSizeRatioBaseResolution");
const QString PREF_KEY_SAVEINFO_FONT_NAME = QStringLiteral("saveinfo/FontName");
const QString PREF_KEY_SAVEINFO_FONT_SIZE = QStringLiteral("saveinfo/FontSize");
const QString PREF_KEY_SAVEINFO_FOREGROUND_COLOR = QStringLiteral("saveinfo/ForegroundColor");
const QString PREF_KEY_SAVEINFO_ITALIC = QStringLiteral("saveinfo/Italic");
const QString PREF_KEY_SAVEINFO_LOGO_PATH = QStringLiteral("saveinfo/LogoPath");
const QString PREF_KEY_SAVEINFO_TO_COLUMN = QStringLiteral("saveinfo/ToColumn");
const QString PREF_KEY_SAVEINFO_USE_BACKGROUND_COLOR
    = QStringLiteral("saveinfo/UseBackgroundColor");
const QString PREF_KEY_SAVEINFO_WIDTH = QStringLiteral("saveinfo/Width");
const QString PREF_KEY_SAVEINFO_WITHIN_IMAGE = QStringLiteral("saveinfo/WithinImage");
const QString PREF_KEY_SAVEINFO_COLLECTIVE_SETTING = QStringLiteral("saveinfo/collectiveSetting");
const QString PREF_KEY_SAVEINFO_DISPLAY = QStringLiteral("saveinfo/display");

const QString PREF_KEY_CAMERACONNECTION_ADD_IP_DEFAULT
    = QStringLiteral("cameraconnection/AddIPDefault");
const QString PREF_KEY_CAMERACONNECTION_SEARCH_IP = QStringLiteral("cameraconnection/SearchIP");
const QString PREF_KEY_CAMERACONNECTION_SEARCH_WAY = QStringLiteral("cameraconnection/SearchWay");
const QString PREF_KEY_CUSTOMIZE_UNIT_SYSTEM = QStringLiteral("customize/unitSystem");
const QString PREF_KEY_DEVICEMANAGER_CONNECTED_CAMERA_ONLY_SHOWING
    = QStringLiteral("devicemanager/connectedCameraOnlyShowing");
const QString PREF_KEY_DISPLAY_WITH_REAL_BIT_DEPTH
    = QStringLiteral("display/DisplayWithRealBitDepth");
const QString PREF_KEY_DISPLAY_SHUTTER_SPEED = QStringLiteral("display/ShutterSpeed");
const QString PREF_KEY_DISPLAY_SHUTTER_SPEED_UNIT = QStringLiteral("display/ShutterSpeedUnit");
const QString PREF_KEY_DISPLAY_SHUTTER_SPEED_INSERT_DELIMITER
    = QStringLiteral("display/shutterSpeedInsertDelimiter");
const QString PREF_KEY_DISPLAY_FRAME_INSERT_DELIMITER
    = QStringLiteral("display/frameInsertDelimiter");
const QString PREF_KEY_DISPLAY_RECORD_RATE_INSERT_DELIMITER
    = QStringLiteral("display/recordRateInsertDelimiter");
const QString PREF_KEY_DISPLAY_LANGUAGE = QStringLiteral("display/language");
const QString PREF_KEY_DISPLAY_OUTPUT_LANGUAGE = QStringLiteral("display/outputLanguage");
const QString PREF_KEY_ENV_STYLE = QStringLiteral("env/style");
const QString PREF_KEY_IMPORT_DIR = QStringLiteral("import/dir");
const QString PREF_KEY_MAIN_SCRNO = QStringLiteral("main/scrno");
const QString PREF_KEY_QSETX_FILENAME_ADD_TIME = QStringLiteral("qsetx/filenameaddtime");
const QString PREF_KEY_QSETX_FILENAME_ADD_TIME_FORMAT
    = QStringLiteral("qsetx/filenameaddtimeformat");
const QString PREF_KEY_QSETX_FILENAME_AS_ORIGINAL = QStringLiteral("qsetx/filenameasoriginal");
const QString PREF_KEY_QSETX_PATH = QStringLiteral("qsetx/path");
const QString PREF_KEY_QSETX_USER_FILE_NAME = QStringLiteral("qsetx/userFileName");
const QString PREF_KEY_RECORDING_AUTO_DOWNLOAD = QStringLiteral("recording/AutoDownload");
const QString PREF_KEY_RECORDING_AUTO_INCREMENT_PARTITION
    = QStringLiteral("recording/AutoIncrementPartition");
const QString PREF_KEY_RECORDING_LOOP_RECORD = QStringLiteral("recording/LoopRecord");
const QString PREF_KEY_RECORDING_STOP_RECORDING_AFTER_LAST_PARTITION
    = QStringLiteral("recording/StopRecordingAfterLastPartition");
const QString PREF_KEY_SAVE_ENABLE_BLANK_FILENAME = QStringLiteral("save/EnableBlankFilename");
const QString PREF_KEY_SAVE_SAVE_INF_FILE = QStringLiteral("save/SaveInfFile");
const QString PREF_KEY_EXPORT_FILE_FORMAT = QStringLiteral("export/fileformat");
const QString PREF_KEY_EXPORT_CODEC = QStringLiteral("export/codec");
const QString PREF_KEY_CONVERT_FILE_FORMAT = QStringLiteral("convert/fileformat");
const QString PREF_KEY_CONVERT_CODEC = QStringLiteral("convert/codec");
const QString PREF_KEY_SNAP_FILE_FORMAT = QStringLiteral("snap/fileformat");
const QString PREF_KEY_REPORT_FILE_FORMAT = QStringLiteral("report/fileformat");
const QString PREF_KEY_USERCUSTOM_CAMERA_NAME_FILE_PATH
    = QStringLiteral("usercustom/cameraNameFilePath");
const QString PREF_KEY_XML_DIR = QStringLiteral("xml/dir");
const QString DEFAULT_SEARCH_IP = QStringLiteral("192.168.0.0");

const QString STATUS_EXIST_LOWLIGHT = QStringLiteral("ExistLowlight");
const QString STATUS_IS_ACTIVE_TARVIX_ON_ROSTRA = QStringLiteral("IsActiveTarvixOnRostra");
const QString STATUS_IS_ADJUSTING_IMAGE = QStringLiteral("IsAdjustingImage");
const QString STATUS_IS_ALL_LOWLIGHT_OFF = QStringLiteral("IsAllLowlightOFF");
const QString STATUS_IS_ALL_LOWLIGHT_ON = QStringLiteral("IsAllLowlightON");
const QString STATUS_IS_ALL_ROSTRA_LOCK_DEVICE = QStringLiteral("IsAllRostraLockDevice");
const QString STATUS_IS_AUTO_EXPOSURE_SETTING = QStringLiteral("IsAutoExposureSetting");
const QString STATUS_IS_AUTO_EXPOTING = QStringLiteral("IsAutoExpoting");
const QString STATUS_IS_AUTO_FOCUSSING = QStringLiteral("IsAutoFocussing");
const QString STATUS_IS_BG_CONVERTING = QStringLiteral("IsBgConverting");
const QString STATUS_IS_BG_SAVING = QStringLiteral("IsBgSaving");
const QString STATUS_IS_CTS_READY = QStringLiteral("IsCTSReady");
const QString STATUS_IS_CONFLICT_PARTITION = QStringLiteral("IsConflictPartition");
const QString STATUS_IS_CURRENT_DISCONNECTED = QStringLiteral("IsCurrentDisconnected");
const QString STATUS_IS_CYCLE_VIEW = QStringLiteral("IsCycleView");
const QString STATUS_IS_DETECTING_PIXEL_DEFECT = QStringLiteral("IsDetectingPixelDefect");
const QString STATUS_IS_DIRECT_SAVING = QStringLiteral("IsDirectSaving");
const QString STATUS_IS_FILE_MODE = QStringLiteral("IsFileMode");
const QString STATUS_IS_FULL_SCREEN = QStringLiteral("IsFullScreen");
const QString STATUS_IS_HW_TRIGGER_SETTING = QStringLiteral("IsHwTriggerSetting");
const QString STATUS_IS_IMAGE_OVERLAY = QStringLiteral("IsImageOverlay");
const QString STATUS_IS_IMAGE_TRIGGER_CAPTURING = QStringLiteral("IsImageTriggerCapturing");
const QString STATUS_IS_IMAGE_TRIGGER_DETECTING = QStringLiteral("IsImageTriggerDetecting");
const QString STATUS_IS_LENS_CALIBRATION = QStringLiteral("IsLensCalibration");
const QString STATUS_IS_LIVE_MODE = QStringLiteral("IsLiveMode");
const QString STATUS_IS_LIVE_NO_AUTO_DOWNLOAD_SETTING
    = QStringLiteral("IsLiveNoAutoDownloadSetting");
const QString STATUS_IS_LOWLIGHT = QStringLiteral("IsLowlight");
const QString STATUS_IS_MEMORY_MODE = QStringLiteral("IsMemoryMode");
const QString STATUS_IS_MODAL_DIALOG_OPENING = QStringLiteral("IsModalDialogOpening");
const QString STATUS_IS_MODALESS_DIALOG_TEXT_FOCUSSING
    = QStringLiteral("IsModalessDialogTextFocussing");
const QString STATUS_IS_MOUSE_DRAGGING = QStringLiteral("IsMouseDragging");
const QString STATUS_IS_MULTI_WINDOW = QStringLiteral("IsMultiWindow");
const QString STATUS_IS_NONE_DOCUMENT = QStringLiteral("IsNoneDocument");
const QString STATUS_IS_NONE_WAVEFORM_DATA = QStringLiteral("IsNoneWaveformData");
const QString STATUS_IS_NONE_WINDOW = QStringLiteral("IsNoneWindow");
const QString STATUS_IS_NOT_CURRENT_AUTO_FOCUS = QStringLiteral("IsNotCurrentAutoFocus");
const QString STATUS_IS_NOT_LIVE_AND_DEVICE_SETTING_PAGE
    = QStringLiteral("IsNotLiveAndDeviceSettingPage");
const QString STATUS_IS_NOT_RECORDING = QStringLiteral("IsNotRecording");
const QString STATUS_IS_NOT_REDO = QStringLiteral("IsNotRedo");
const QString STATUS_IS_NOT_UNDO = QStringLiteral("IsNotUndo");
const QString STATUS_IS_NOTLIVE_PAGE = QStringLiteral("IsNotlivePage");
const QString STATUS_IS_OTHER_PLUGIN_OPEN = QStringLiteral("IsOtherPluginOpen");
const QString STATUS_IS_PHASE_ADJUSTING = QStringLiteral("IsPhaseAdjusting");
const QString STATUS_IS_PREF_DIALOG_OPENING = QStringLiteral("IsPrefDialogOpening");
const QString STATUS_IS_READY = QStringLiteral("IsReady");
const QString STATUS_IS_RECORDING = QStringLiteral("IsRecording");
const QString STATUS_IS_RECORDING_ERROR = QStringLiteral("IsRecordingError");
const QString STATUS_IS_ROSTRA = QStringLiteral("IsRostra");
const QString STATUS_IS_ROSTRA_LOCK_DEVICE = QStringLiteral("IsRostraLockDevice");
const QString STATUS_IS_SENDING_NODE_COMMAND = QStringLiteral("IsSendingNodeCommand");
const QString STATUS_IS_SHADING = QStringLiteral("IsShading");
const QString STATUS_IS_SINGLE_SELECTED_DOCUMENT = QStringLiteral("IsSingleSelectedDocument");
const QString STATUS_IS_SINGLE_WINDOW = QStringLiteral("IsSingleWindow");
const QString STATUS_IS_TRACKING = QStringLiteral("IsTracking");
const QString STATUS_IS_VARIABLE_SETTING = QStringLiteral("IsVariableSetting");

const QString INFO_KEY_SYNC_SIGNAL_STATE = QStringLiteral("SyncSignalState");
const QString INFO_KEY_CAMERA_STATE = QStringLiteral("CameraState");
const QString INFO_KEY_ELAPSED_TIME = QStringLiteral("ElapsedTime");
const QString INFO_KEY_SEPARATOR = QStringLiteral("<hr>");
const QString INFO_KEY_CAMERA_NAME = QStringLiteral("Camera name");
const QString INFO_KEY_FILE_NAME = QStringLiteral("File name");
const QString INFO_KEY_DEVICE = QStringLiteral("Device");
const QString INFO_KEY_HEAD = QStringLiteral("Head");
const QString INFO_KEY_PARTITION_NUMBER = QStringLiteral("PartitionNumber");
const QString INFO_KEY_DATE = QStringLiteral("Date");
const QString INFO_KEY_TIME = QStringLiteral("Time");
const QString INFO_KEY_REC_DATE_TIME = QStringLiteral("RecDateTime");
const QString INFO_KEY_FRAME_RATE = QStringLiteral("FrameRate");
const QString INFO_KEY_SHUTTER_SPEED = QStringLiteral("ShutterSpeed");
const QString INFO_KEY_RESOLUTION = QStringLiteral("Resolution");
const QString INFO_KEY_LIVE_SPEED = QStringLiteral("LiveSpeed");
const QString INFO_KEY_FRAME_NUMBER = QStringLiteral("FrameNumber");
const QString INFO_KEY_MAX_FRAMES = QStringLiteral("MaxFrames");
const QString INFO_KEY_LENGTH = QStringLiteral("Length");
const QString INFO_KEY_TIME_IRIG_CODE = QStringLiteral("TimeIrigCode");
const QString INFO_KEY_TIME_CODE = QStringLiteral("TimeCode");
const QString INFO_KEY_IRIG_CODE = QStringLiteral("IrigCode");
const QString INFO_KEY_TRIGGER = QStringLiteral("Trigger");
const QString INFO_KEY_HW_TRIGGER_INFO = QStringLiteral("HWTriggerInfo");
const QString INFO_KEY_EVENT_MARKER = QStringLiteral("EventMarker");
const QString INFO_KEY_IGNORE_TRIGGER = QStringLiteral("IgnoreTrigger");
const QString INFO_KEY_LUT = QStringLiteral("LUT");
const QString INFO_KEY_SATURATION = QStringLiteral("Saturation");
const QString INFO_KEY_ZOOM_RATE = QStringLiteral("ZoomRate");
const QString INFO_KEY_CROSS_CURSOR = QStringLiteral("CrossCursor");
const QString INFO_KEY_COMMENT = QStringLiteral("Comment");
const QString INFO_KEY_LOGO = QStringLiteral("Logo");
const QString INFO_KEY_CUSTOM = QStringLiteral("Custom");
const QString INFO_KEY_OVER_SYNC = QStringLiteral("OverSync");
const QString INFO_KEY_TRIGGER_EXPOSE_TIME = QStringLiteral("TriggerExposeTime");
const QString INFO_KEY_VAULT_PACK = QStringLiteral("VaultPack");
const QString INFO_KEY_CFAST = QStringLiteral("CFast");
const QString INFO_KEY_FAN_STATUS = QStringLiteral("FanStatus");
const QString INFO_KEY_SIMPLE_MEASUREMENT = QStringLiteral("SimpleMeasurement");
const QString INFO_KEY_BATTERY = QStringLiteral("Battery");
const QString INFO_KEY_ACCELERATION_SENSOR = QStringLiteral("AccelerationSensor");
const QString INFO_KEY_LENS_INFO = QStringLiteral("LensInfo");

const QString STATUS_NAMES[STATUS_COUNT] = {
    STATUS_EXIST_LOWLIGHT,
    STATUS_IS_ACTIVE_TARVIX_ON_ROSTRA,
    STATUS_IS_ADJUSTING_IMAGE,
    STATUS_IS_ALL_LOWLIGHT_OFF,
    STATUS_IS_ALL_LOWLIGHT_ON,
    STATUS_IS_ALL_ROSTRA_LOCK_DEVICE,
    STATUS_IS_AUTO_EXPOSURE_SETTING,
    STATUS_IS_AUTO_EXPOTING,
    STATUS_IS_AUTO_FOCUSSING,
    STATUS_IS_BG_CONVERTING,
    STATUS_IS_BG_SAVING,
    STATUS_IS_CTS_READY,
    STATUS_IS_CONFLICT_PARTITION,
    STATUS_IS_CURRENT_DISCONNECTED,
    STATUS_IS_CYCLE_VIEW,
    STATUS_IS_DETECTING_PIXEL_DEFECT,
    STATUS_IS_DIRECT_SAVING,
    STATUS_IS_FILE_MODE,
    STATUS_IS_FULL_SCREEN,
    STATUS_IS_HW_TRIGGER_SETTING,
    STATUS_IS_IMAGE_OVERLAY,
    STATUS_IS_IMAGE_TRIGGER_CAPTURING,
    STATUS_IS_IMAGE_TRIGGER_DETECTING,
    STATUS_IS_LENS_CALIBRATION,
    STATUS_IS_LIVE_MODE,
    STATUS_IS_LIVE_NO_AUTO_DOWNLOAD_SETTING,
    STATUS_IS_LOWLIGHT,
    STATUS_IS_MEMORY_MODE,
    STATUS_IS_MODAL_DIALOG_OPENING,
    STATUS_IS_MODALESS_DIALOG_TEXT_FOCUSSING,
    STATUS_IS_MOUSE_DRAGGING,
    STATUS_IS_MULTI_WINDOW,
    STATUS_IS_NONE_DOCUMENT,
    STATUS_IS_NONE_WAVEFORM_DATA,
    STATUS_IS_NONE_WINDOW,
    STATUS_IS_NOT_CURRENT_AUTO_FOCUS,
    STATUS_IS_NOT_LIVE_AND_DEVICE_SETTING_PAGE,
    STATUS_IS_NOT_RECORDING,
    STATUS_IS_NOT_REDO,
    STATUS_IS_NOT_UNDO,
    STATUS_IS_NOTLIVE_PAGE,
    STATUS_IS_OTHER_PLUGIN_OPEN,
    STATUS_IS_PHASE_ADJUSTING,
    STATUS_IS_PREF_DIALOG_OPENING,
    STATUS_IS_READY,
    STATUS_IS_RECORDING,
    STATUS_IS_RECORDING_ERROR,
    STATUS_IS_ROSTRA,
    STATUS_IS_ROSTRA_LOCK_DEVICE,
    STATUS_IS_SENDING_NODE_COMMAND,
    STATUS_IS_SHADING,
    STATUS_IS_SINGLE_SELECTED_DOCUMENT,
    STATUS_IS_SINGLE_WINDOW,
    STATUS_IS_TRACKING,
    STATUS_IS_VARIABLE_SETTING,
};

const InfoItem INFO_ITEMS[INFO_ITEM_COUNT + 1] = {
    { INFO_KEY_SYNC_SIGNAL_STATE, 1, QStringLiteral("Sync signal input state"),
        QStringLiteral("SyncSignalState"), 1, 0, 0, 0 },
    { INFO_KEY_CAMERA_STATE, 1, QStringLiteral("State of the camera"),
        QStringLiteral("CameraState"), 1, 0, 0, 0 },
    { INFO_KEY_ELAPSED_TIME, 1, QStringLiteral("Elapsed time"), QStringLiteral("ElapsedTime"), 1, 0,
        0, 0 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 1, 0, 0, 0 },
    { INFO_KEY_CAMERA_NAME, 1, QStringLiteral("Camera name"), QString(), 1, 1, 0, 1 },
    { INFO_KEY_FILE_NAME, 1, QStringLiteral("File name"), QString(), 0, 0, 0, 1 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 1, 0, 0, 0 },
    { INFO_KEY_DEVICE, 1, QStringLiteral("Device name"), QString(), 0, 0, 1, 1 },
    { INFO_KEY_HEAD, 1, QStringLiteral("Head number"), QString(), 1, 1, 0, 1 },
    { INFO_KEY_PARTITION_NUMBER, 1, QStringLiteral("Partition number"), QString(), 1, 1, 0, 1 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 1, 0, 0, 0 },
    { INFO_KEY_DATE, 0, QStringLiteral("Date"), QStringLiteral("Date"), 0, 0, 0, 1 },
    { INFO_KEY_TIME, 0, QStringLiteral("Time"), QStringLiteral("Time(Alt)"), 0, 0, 0, 1 },
    { INFO_KEY_REC_DATE_TIME, 0, QStringLiteral("Recording date and time"),
        QStringLiteral("Date/Time Rec"), 0, 0, 1, 1 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 1, 0, 0, 0 },
    { INFO_KEY_FRAME_RATE, 1, QStringLiteral("Frame rate"), QStringLiteral("Frame rate"), 1, 1, 1,
        1 },
    { INFO_KEY_SHUTTER_SPEED, 1, QStringLiteral("Shutter speed"), QStringLiteral("Shutter speed"),
        1, 1, 1, 1 },
    { INFO_KEY_RESOLUTION, 1, QStringLiteral("Resolution"), QStringLiteral("Resolution"), 1, 1, 1,
        1 },
    { INFO_KEY_LIVE_SPEED, 1, QStringLiteral("Live speed"), QStringLiteral("Live speed"), 1, 0, 0,
        0 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 1, 0, 0, 0 },
    { INFO_KEY_FRAME_NUMBER, 1, QStringLiteral("Frame number"), QStringLiteral("Frame No"), 0, 1, 1,
        1 },
    { INFO_KEY_MAX_FRAMES, 1, QStringLiteral("Maximum of frames"), QStringLiteral("Frame Count"), 1,
        1, 1, 0 },
    { INFO_KEY_LENGTH, 1, QStringLiteral("Length of Time"), QStringLiteral("Rec Time"), 1, 1, 1,
        0 },
    { INFO_KEY_TIME_IRIG_CODE, 1, QStringLiteral("Time code/IRIG code"),
        QStringLiteral("Current Time"), 1, 1, 1, 0 },
    { INFO_KEY_TIME_CODE, 1, QStringLiteral("Current time"), QStringLiteral("Current Time"), 0, 0,
        0, 1 },
    { INFO_KEY_IRIG_CODE, 0, QStringLiteral("IRIG code"), QStringLiteral("IRIG Time"), 0, 0, 0, 1 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 1, 0, 0, 0 },
    { INFO_KEY_TRIGGER, 1, QStringLiteral("Trigger"), QStringLiteral("Trigger mode"), 1, 1, 1, 1 },
    { INFO_KEY_HW_TRIGGER_INFO, 1, QStringLiteral("H/W Image Trigger Info"),
        QStringLiteral("H/W ImageTrg"), 1, 0, 0, 0 },
    { INFO_KEY_EVENT_MARKER, 1, QStringLiteral("Event Marker"), QStringLiteral("Event"), 0, 1, 1,
        1 },
    { INFO_KEY_IGNORE_TRIGGER, 0, QStringLiteral("Number of Ignore Trigger"),
        QStringLiteral("Ignore Trg"), 1, 1, 1, 0 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 1, 0, 0, 0 },
    { INFO_KEY_LUT, 1, QStringLiteral("LUT"), QString(), 1, 1, 1, 0 },
    { INFO_KEY_SATURATION, 1, QStringLiteral("Saturation"), QStringLiteral("Saturation"), 1, 1, 1,
        0 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 0, 0, 0, 0 },
    { INFO_KEY_ZOOM_RATE, 1, QStringLiteral("Zoom rate"), QStringLiteral("Zoom rate"), 1, 1, 1, 0 },
    { INFO_KEY_CROSS_CURSOR, 1, QStringLiteral("Cross cursor"), QString(), 1, 1, 1, 0 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 0, 0, 0, 0 },
    { INFO_KEY_COMMENT, 1, QStringLiteral("Comment"), QStringLiteral("Comment"), 1, 1, 1, 1 },
    { INFO_KEY_LOGO, 0, QStringLiteral("Logo"), QStringLiteral("Logo"), 1, 1, 1, 1 },
    { INFO_KEY_CUSTOM, 0, QStringLiteral("Custom"), QString(), 1, 1, 1, 1 },
    { INFO_KEY_SEPARATOR, 0, QString(), QString(), 0, 0, 0, 0 },
    { INFO_KEY_OVER_SYNC, 0, QStringLiteral("Over Sync occurred or not"), QString(), 1, 1, 0, 0 },
    { INFO_KEY_TRIGGER_EXPOSE_TIME, 0, QStringLiteral("Trigger and Exposure Gap time"),
        QStringLiteral("TRG-EXP"), 0, 1, 1, 1 },
    { INFO_KEY_VAULT_PACK, 0, QStringLiteral("Available VAULT PACK space"),
        QStringLiteral("Vault Pack Free Space"), 1, 0, 0, 0 },
    { INFO_KEY_CFAST, 0, QStringLiteral("Available CFast space"),
        QStringLiteral("CFast Free Space"), 1, 0, 0, 0 },
    { INFO_KEY_FAN_STATUS, 1, QStringLiteral("Fan Status"), QStringLiteral("Fan"), 1, 0, 0, 0 },
    { INFO_KEY_SIMPLE_MEASUREMENT, 1, QStringLiteral("Simple measurement result"),
        QStringLiteral("Simple measurement result"), 1, 1, 1, 1 },
    { INFO_KEY_BATTERY, 1, QStringLiteral("Battery info"), QStringLiteral("Battery"), 1, 0, 0, 0 },
    { INFO_KEY_ACCELERATION_SENSOR, 0, QStringLiteral("Acceleration Sensor"),
        QStringLiteral("Acceleration Sensor"), 1, 0, 0, 0 },
    { INFO_KEY_LENS_INFO, 1, QStringLiteral("Lens Info"), QStringLiteral("Lens"), 1, 0, 0, 0 },
    { QString(), 0, QString(), QString(), 0, 0, 0, 0 },
};

const QString SETTINGS_FILE_SUFFIX = QStringLiteral("qsetx");
const QString PREFS_PAGE_RECORD = QStringLiteral("s_record");
const QString SELECT_BOX_GO_VARIABLE = QStringLiteral("go-variable");
