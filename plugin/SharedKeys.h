#pragma once

#include <QString>

// Names shared with the host and every plug-in of it: preference keys, tools, page object
// classes, status names, formats and the table of information items. The texts are the host's
// contract and case-sensitive. All are defined in SharedKeys.cpp, one translation unit, so that
// INFO_ITEMS, which copies the named keys, is built after them.

// Plug-ins and tools of the host.
extern const QString PLUGIN_NAME_SYNCCONTROL;
extern const QString PLUGIN_NAME_ROI;
extern const QString TOOL_CROSSCURSOR;
extern const QString TOOL_MULTILOCK;
extern const QString TOOL_ZOOMFIT;
// The tool name that makes "IsImageOverlay" true.
extern const QString TOOL_IMAGEOVERLAY;
// A capability asked of a document (appliesTo).
extern const QString FEATURE_BINNING;

// Plug-ins whose widgets a page embeds through an object element.
extern const QString PAGE_OBJECT_HISTOGRAM;
extern const QString PAGE_OBJECT_IMAGETRIGGER;
extern const QString PAGE_OBJECT_LINEPROFILE;
extern const QString PAGE_OBJECT_LIVECONTROL;
extern const QString PAGE_OBJECT_LUT;
extern const QString PAGE_OBJECT_ANALOGGAIN;
extern const QString PAGE_OBJECT_FOCUSCHECK;
extern const QString PAGE_OBJECT_SENSORLUT;

// Values of text settings: a custom item used in file names, the medium of the information file.
extern const QString SETTING_VALUE_ON;
extern const QString SETTING_VALUE_FILE;

// Date and time formats of recordings.
extern const QString DATE_FORMAT;
extern const QString TIME_FORMAT_HM;
extern const QString TIME_FORMAT_HMS;

// Stands for a line break in a comment.
extern const QString COMMENT_SEPARATOR;

// Sync control.
extern const QString PREF_KEY_SYNCCONTROL_NRACK;
// Not read by the plug-in; a different key from PREF_KEY_SYNCCONTROL_NRACK.
extern const QString PREF_KEY_SYNCCONTROL_NRACK_IPADDRESS;
extern const QString PREF_KEY_SYNCCONTROL_EXTERNAL;
extern const QString PREF_KEY_SYNCCONTROL_MASTER_CAMERA;
extern const QString PREF_KEY_SYNCCONTROL_TRIGGER_SIGNAL_POLARITY;
extern const QString PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS;
extern const QString PREF_KEY_SYNCCONTROL_GENERATOR_CTRL;
extern const QString PREF_KEY_SYNCCONTROL_GENERATOR_FREQUENCY;
extern const QString PREF_KEY_SYNCCONTROL_GENERATOR_INPUT;
extern const QString PREF_KEY_SYNCCONTROL_GENERATOR_TRYCONNECT;

// Output naming: the keys of one family (save, convert, report, snapshot), each a full key
// such as "export/dir". A key that a family doesn't have is empty there.
struct OutputKeys
{
    QString dir;
    QString dirasoriginal;
    QString filename;
    QString filenameaddnumbersessionnodigits;
    QString filenameaddtime;
    QString filenameaddtimeformat;
    QString filenameasoriginal;
    QString filenameaspartitionname;
    QString filenameusecustom;
    QString filenameusecustomfromtarget;
    QString filenameusecustomfromtargetkey;
    QString filenameusecustomincludeunit;
    QString groupdir;
    QString groupdiraddnumber;
    QString groupdiraddnumberformat;
    QString groupdiraddtime;
    QString groupdiraddtimeformat;
    QString groupdirasfilename;
    QString groupdirasfilenameincludeoption;
    QString groupdirname;
    QString subdir;
    QString subdiraddnumber;
    QString subdiraddnumberformat;
    QString subdiraddnumbersessionnodigits;
    QString subdiraddtime;
    QString subdiraddtimeformat;
    QString subdirasfilename;
    QString subdirasfilenameincludeoption;
    QString subdirname;
    QString filenameaddnumbercameranodigits;
    QString filenameaddnumberheadnodigits;
    QString groupdiraddnumbercameranodigits;
    QString groupdiraddnumberheadnodigits;
    QString groupdiraddnumbersessionnodigits;
    QString subdiraddnumbercameranodigits;
    QString subdiraddnumberheadnodigits;
    QString qraw_bayersave;
    QString rawq_bayersave;
    QString tiff_bayersave;
    QString saveinf;
    QString saveinfo;
    QString savethumbnail;
    QString savethumbnailaddtextvalue;
    QString skipsaveframe;
    QString skipsavemsec;
    QString skipunit;
    QString inf_testno;
    QString media;
    QString multipathdevicelist;
    QString multipathlist;
    QString savecorrect;
    QString savescale;
    QString singlepath;
    QString vp_datanameaddnumbercameranodigits;
    QString vp_datanameaddnumberheadnodigits;
    QString vp_datanameaddnumbersessionnodigits;
    QString vp_datanameaddnumber;
};
extern const OutputKeys PREF_KEYS_EXPORT;
extern const OutputKeys PREF_KEYS_CONVERT;
extern const OutputKeys PREF_KEYS_REPORT;
extern const OutputKeys PREF_KEYS_SNAP;

// Information display, on screen (info/) and on saved images (saveinfo/).
extern const QString PREF_KEY_INFO_ALIGNMENT;
extern const QString PREF_KEY_INFO_BLANK_LINE;
extern const QString PREF_KEY_INFO_BOLD;
extern const QString PREF_KEY_INFO_FONT_NAME;
extern const QString PREF_KEY_INFO_FONT_SIZE;
extern const QString PREF_KEY_INFO_FOREGROUND_COLOR;
extern const QString PREF_KEY_INFO_ICON_SIZE;
extern const QString PREF_KEY_INFO_ITALIC;
extern const QString PREF_KEY_INFO_LOGO_PATH;
extern const QString PREF_KEY_INFO_REC_TIME_UNIT;
extern const QString PREF_KEY_INFO_WIDTH;
extern const QString PREF_KEY_INFO_DISPLAY;
extern const QString PREF_KEY_SAVEINFO_ALIGNMENT;
extern const QString PREF_KEY_SAVEINFO_BACKGROUND_COLOR;
extern const QString PREF_KEY_SAVEINFO_BOLD;
extern const QString PREF_KEY_SAVEINFO_COLUMN_NUM;
extern const QString PREF_KEY_SAVEINFO_COLUMN_SPACING;
extern const QString PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO;
extern const QString PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO_BASE_RESOLUTION;
extern const QString PREF_KEY_SAVEINFO_FONT_NAME;
extern const QString PREF_KEY_SAVEINFO_FONT_SIZE;
extern const QString PREF_KEY_SAVEINFO_FOREGROUND_COLOR;
extern const QString PREF_KEY_SAVEINFO_ITALIC;
extern const QString PREF_KEY_SAVEINFO_LOGO_PATH;
extern const QString PREF_KEY_SAVEINFO_TO_COLUMN;
extern const QString PREF_KEY_SAVEINFO_USE_BACKGROUND_COLOR;
extern const QString PREF_KEY_SAVEINFO_WIDTH;
extern const QString PREF_KEY_SAVEINFO_WITHIN_IMAGE;
extern const QString PREF_KEY_SAVEINFO_COLLECTIVE_SETTING;
extern const QString PREF_KEY_SAVEINFO_DISPLAY;

// Other preferences.
extern const QString PREF_KEY_CAMERACONNECTION_ADD_IP_DEFAULT;
extern const QString PREF_KEY_CAMERACONNECTION_SEARCH_IP;
extern const QString PREF_KEY_CAMERACONNECTION_SEARCH_WAY;
extern const QString PREF_KEY_CUSTOMIZE_UNIT_SYSTEM;
extern const QString PREF_KEY_DEVICEMANAGER_CONNECTED_CAMERA_ONLY_SHOWING;
extern const QString PREF_KEY_DISPLAY_WITH_REAL_BIT_DEPTH;
extern const QString PREF_KEY_DISPLAY_SHUTTER_SPEED;
extern const QString PREF_KEY_DISPLAY_SHUTTER_SPEED_UNIT;
extern const QString PREF_KEY_DISPLAY_SHUTTER_SPEED_INSERT_DELIMITER;
extern const QString PREF_KEY_DISPLAY_FRAME_INSERT_DELIMITER;
extern const QString PREF_KEY_DISPLAY_RECORD_RATE_INSERT_DELIMITER;
extern const QString PREF_KEY_DISPLAY_LANGUAGE;
extern const QString PREF_KEY_DISPLAY_OUTPUT_LANGUAGE;
extern const QString PREF_KEY_ENV_STYLE;
extern const QString PREF_KEY_IMPORT_DIR;
extern const QString PREF_KEY_MAIN_SCRNO;
extern const QString PREF_KEY_QSETX_FILENAME_ADD_TIME;
extern const QString PREF_KEY_QSETX_FILENAME_ADD_TIME_FORMAT;
extern const QString PREF_KEY_QSETX_FILENAME_AS_ORIGINAL;
extern const QString PREF_KEY_QSETX_PATH;
extern const QString PREF_KEY_QSETX_USER_FILE_NAME;
extern const QString PREF_KEY_RECORDING_AUTO_DOWNLOAD;
extern const QString PREF_KEY_RECORDING_AUTO_INCREMENT_PARTITION;
extern const QString PREF_KEY_RECORDING_LOOP_RECORD;
extern const QString PREF_KEY_RECORDING_STOP_RECORDING_AFTER_LAST_PARTITION;
extern const QString PREF_KEY_SAVE_ENABLE_BLANK_FILENAME;
extern const QString PREF_KEY_SAVE_SAVE_INF_FILE;
extern const QString PREF_KEY_USERCUSTOM_CAMERA_NAME_FILE_PATH;
extern const QString PREF_KEY_XML_DIR;
// The output format and movie codec of a save, a conversion, a snapshot and a report, as the
// settings page offers them.
extern const QString PREF_KEY_EXPORT_FILE_FORMAT;
extern const QString PREF_KEY_EXPORT_CODEC;
extern const QString PREF_KEY_CONVERT_FILE_FORMAT;
extern const QString PREF_KEY_CONVERT_CODEC;
extern const QString PREF_KEY_SNAP_FILE_FORMAT;
extern const QString PREF_KEY_REPORT_FILE_FORMAT;
// The address searched when "cameraconnection/SearchIP" holds none.
extern const QString DEFAULT_SEARCH_IP;

// Status names, one bool each in the map that getControlStatus gives.
extern const QString STATUS_EXIST_LOWLIGHT;
extern const QString STATUS_IS_ACTIVE_TARVIX_ON_ROSTRA;
extern const QString STATUS_IS_ADJUSTING_IMAGE;
extern const QString STATUS_IS_ALL_LOWLIGHT_OFF;
extern const QString STATUS_IS_ALL_LOWLIGHT_ON;
extern const QString STATUS_IS_ALL_ROSTRA_LOCK_DEVICE;
extern const QString STATUS_IS_AUTO_EXPOSURE_SETTING;
extern const QString STATUS_IS_AUTO_EXPOTING;
extern const QString STATUS_IS_AUTO_FOCUSSING;
extern const QString STATUS_IS_BG_CONVERTING;
extern const QString STATUS_IS_BG_SAVING;
extern const QString STATUS_IS_CTS_READY;
extern const QString STATUS_IS_CONFLICT_PARTITION;
extern const QString STATUS_IS_CURRENT_DISCONNECTED;
extern const QString STATUS_IS_CYCLE_VIEW;
extern const QString STATUS_IS_DETECTING_PIXEL_DEFECT;
extern const QString STATUS_IS_DIRECT_SAVING;
extern const QString STATUS_IS_FILE_MODE;
extern const QString STATUS_IS_FULL_SCREEN;
extern const QString STATUS_IS_HW_TRIGGER_SETTING;
extern const QString STATUS_IS_IMAGE_OVERLAY;
extern const QString STATUS_IS_IMAGE_TRIGGER_CAPTURING;
extern const QString STATUS_IS_IMAGE_TRIGGER_DETECTING;
extern const QString STATUS_IS_LENS_CALIBRATION;
extern const QString STATUS_IS_LIVE_MODE;
extern const QString STATUS_IS_LIVE_NO_AUTO_DOWNLOAD_SETTING;
extern const QString STATUS_IS_LOWLIGHT;
extern const QString STATUS_IS_MEMORY_MODE;
extern const QString STATUS_IS_MODAL_DIALOG_OPENING;
extern const QString STATUS_IS_MODALESS_DIALOG_TEXT_FOCUSSING;
extern const QString STATUS_IS_MOUSE_DRAGGING;
extern const QString STATUS_IS_MULTI_WINDOW;
extern const QString STATUS_IS_NONE_DOCUMENT;
extern const QString STATUS_IS_NONE_WAVEFORM_DATA;
extern const QString STATUS_IS_NONE_WINDOW;
extern const QString STATUS_IS_NOT_CURRENT_AUTO_FOCUS;
extern const QString STATUS_IS_NOT_LIVE_AND_DEVICE_SETTING_PAGE;
extern const QString STATUS_IS_NOT_RECORDING;
extern const QString STATUS_IS_NOT_REDO;
extern const QString STATUS_IS_NOT_UNDO;
extern const QString STATUS_IS_NOTLIVE_PAGE;
extern const QString STATUS_IS_OTHER_PLUGIN_OPEN;
extern const QString STATUS_IS_PHASE_ADJUSTING;
extern const QString STATUS_IS_PREF_DIALOG_OPENING;
extern const QString STATUS_IS_READY;
extern const QString STATUS_IS_RECORDING;
extern const QString STATUS_IS_RECORDING_ERROR;
extern const QString STATUS_IS_ROSTRA;
extern const QString STATUS_IS_ROSTRA_LOCK_DEVICE;
extern const QString STATUS_IS_SENDING_NODE_COMMAND;
extern const QString STATUS_IS_SHADING;
extern const QString STATUS_IS_SINGLE_SELECTED_DOCUMENT;
extern const QString STATUS_IS_SINGLE_WINDOW;
extern const QString STATUS_IS_TRACKING;
extern const QString STATUS_IS_VARIABLE_SETTING;

// Keys of the information items, the key column of INFO_ITEMS.
extern const QString INFO_KEY_SYNC_SIGNAL_STATE;
extern const QString INFO_KEY_CAMERA_STATE;
extern const QString INFO_KEY_ELAPSED_TIME;
extern const QString INFO_KEY_SEPARATOR;
extern const QString INFO_KEY_CAMERA_NAME;
extern const QString INFO_KEY_FILE_NAME;
extern const QString INFO_KEY_DEVICE;
extern const QString INFO_KEY_HEAD;
extern const QString INFO_KEY_PARTITION_NUMBER;
extern const QString INFO_KEY_DATE;
extern const QString INFO_KEY_TIME;
extern const QString INFO_KEY_REC_DATE_TIME;
extern const QString INFO_KEY_FRAME_RATE;
extern const QString INFO_KEY_SHUTTER_SPEED;
extern const QString INFO_KEY_RESOLUTION;
extern const QString INFO_KEY_LIVE_SPEED;
extern const QString INFO_KEY_FRAME_NUMBER;
extern const QString INFO_KEY_MAX_FRAMES;
extern const QString INFO_KEY_LENGTH;
extern const QString INFO_KEY_TIME_IRIG_CODE;
extern const QString INFO_KEY_TIME_CODE;
extern const QString INFO_KEY_IRIG_CODE;
extern const QString INFO_KEY_TRIGGER;
extern const QString INFO_KEY_HW_TRIGGER_INFO;
extern const QString INFO_KEY_EVENT_MARKER;
extern const QString INFO_KEY_IGNORE_TRIGGER;
extern const QString INFO_KEY_LUT;
extern const QString INFO_KEY_SATURATION;
extern const QString INFO_KEY_ZOOM_RATE;
extern const QString INFO_KEY_CROSS_CURSOR;
extern const QString INFO_KEY_COMMENT;
extern const QString INFO_KEY_LOGO;
extern const QString INFO_KEY_CUSTOM;
extern const QString INFO_KEY_OVER_SYNC;
extern const QString INFO_KEY_TRIGGER_EXPOSE_TIME;
extern const QString INFO_KEY_VAULT_PACK;
extern const QString INFO_KEY_CFAST;
extern const QString INFO_KEY_FAN_STATUS;
extern const QString INFO_KEY_SIMPLE_MEASUREMENT;
extern const QString INFO_KEY_BATTERY;
extern const QString INFO_KEY_ACCELERATION_SENSOR;
extern const QString INFO_KEY_LENS_INFO;
constexpr int STATUS_COUNT = 55;
// Every status name, in the order listed above.
extern const QString STATUS_NAMES[STATUS_COUNT];

// One row of the table of information items.
struct InfoItem
{
    // Empty in the end row; "<hr>" in a separator row.
    QString key;
    // 0 or 1; for the host, not read by the plug-in.
    int defaultOn;
    QString label;
    QString shortLabel;
    // 1: the item exists in live mode, memory mode, file mode, on saved images.
    unsigned char live;
    unsigned char memory;
    unsigned char file;
    unsigned char saved;
};

constexpr int INFO_ITEM_COUNT = 51;
// The information items in their fixed order, separators counted, and an end row.
extern const InfoItem INFO_ITEMS[INFO_ITEM_COUNT + 1];

// Camera settings files and the pages of the device panels and the select box.
// The suffix and type of a camera settings file.
extern const QString SETTINGS_FILE_SUFFIX;
// The preferences page of the recording settings.
extern const QString PREFS_PAGE_RECORD;
// What the select box's variable list sends to open the live control page's variable tab.
extern const QString SELECT_BOX_GO_VARIABLE;
