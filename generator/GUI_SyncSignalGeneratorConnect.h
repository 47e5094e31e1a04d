#pragma once

#include "web/GUI_WebViewDialog.h"

class DOC_SignalGenerator;

// Asks for the signal generator's address and tests it at once: accepted only when a supported
// instrument answered there, or when the text is empty. The page writes the address to
// "sync/generator/address" on every OK; the caller restores the old value unless accepted.
class GUI_SyncSignalGeneratorConnect : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_SyncSignalGeneratorConnect(APP_Host* host, QWidget* parent, DOC_SignalGenerator* generator);
};
