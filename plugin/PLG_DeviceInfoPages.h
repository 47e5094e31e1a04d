#pragma once

struct PLG_DialogContext;

// How the factory opens the device and custom info dialogs: what each takes from the host's
// argument and which documents it works on. A bad argument is refused with APP_Exception, which
// the factory reports; no dialog opens then.
class PLG_DeviceInfoPages
{
public:
    PLG_DeviceInfoPages() = delete;

    // "TYPE[:temporary]": the callback type (15 when left out; 2, 5, 8, 11 for the file name
    // flag) and the form for the temporary documents.
    static int openCustomInfo(const PLG_DialogContext& context);
    // "" or "connect": the camera is connected once added; "noconnect": it is only listed.
    static int openAddDevice(const PLG_DialogContext& context);
    // "" for the current document, or a document's key; it must be a camera's.
    static int openEditDevice(const PLG_DialogContext& context);
    // Takes no argument.
    static int openSearchSetting(const PLG_DialogContext& context);
};
