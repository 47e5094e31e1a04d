#pragma once

class JS_Mediator;
class QWidget;
struct PLG_DialogContext;

// How the factory opens the camera settings dialogs, the device panels and the select box. A
// bad argument is refused with APP_Exception, which the factory reports; nothing opens then.
class PLG_CameraDevicePages
{
public:
    PLG_CameraDevicePages() = delete;

    // "" or "file": the settings go to a settings file; "preset": into the cameras' presets.
    static int openCameraSettings(const PLG_DialogContext& context);
    // Takes no argument: loads a settings file into the cameras.
    static int openCameraSettingsLoad(const PLG_DialogContext& context);
    static JS_Mediator* makeDeviceList(const PLG_DialogContext& context);
    static JS_Mediator* makeDeviceControl(const PLG_DialogContext& context);
    static QWidget* makeSelectBox(const PLG_DialogContext& context, QWidget* parent);
};
