#pragma once

struct PLG_DialogContext;
class JS_Mediator;

// How the dialog factory reaches the removable media pages (mediators for the host's panels)
// and the storage unit's password dialogs, which take the same greatest length as the file
// dialog gives them.
class MediaPages
{
public:
    MediaPages() = delete;

    static JS_Mediator* makeSdMediator(const PLG_DialogContext& context);
    static JS_Mediator* makeVaultPackMediator(const PLG_DialogContext& context);
    static JS_Mediator* makeCFastMediator(const PLG_DialogContext& context);
    static int openInputPasswordDialog(const PLG_DialogContext& context);
    static int openChangePasswordDialog(const PLG_DialogContext& context);
};
