#pragma once

#include <QString>
#include <QVariantList>

class APP_Host;
class DOC_Interface;

// The entries of the device lists: one compact JSON object per document, whose string values
// serve pages directly as class names ("ui-selected", "found", ...).
class JS_DeviceInfo
{
public:
    JS_DeviceInfo() = delete;

    // isMinilist in camera mode drops the documents that aren't connected while
    // "devicemanager/connectedCameraOnlyShowing" is on. Throws what the key list threw.
    static QVariantList list(APP_Host* host, bool isMinilist);

    // A failure while filling ends the entry with what it has and "found" empty, told to the
    // host; the entry is listed all the same.
    static QString entry(APP_Host* host, int key, DOC_Interface* doc);
};
