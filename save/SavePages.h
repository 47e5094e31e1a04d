#pragma once

struct PLG_DialogContext;

// How the dialog factory opens the save dialogs: the file dialog of each kind, the number
// dialog (ARG: the callback type, 0 when left out) and the conversion settings, for the host's
// current and selected documents.
class SavePages
{
public:
    SavePages() = delete;

    template <const char* Kind> static int openFileDialog(const PLG_DialogContext& context)
    {
        return openFileDialogOf(Kind, context);
    }
    static int openAddNumberDialog(const PLG_DialogContext& context);
    // ARG: the chosen partition, 1 when left out.
    static int openConvertParameterEditDialog(const PLG_DialogContext& context);

private:
    static int openFileDialogOf(const char* kind, const PLG_DialogContext& context);
};
