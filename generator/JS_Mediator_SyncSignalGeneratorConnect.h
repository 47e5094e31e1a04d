#pragma once

#include "web/JS_Mediator_Dialog.h"

class DOC_SignalGenerator;

// The connect page's object "sync_signalconnect": tests an address on the sync dialog's driver
// and closes the dialog only when a supported instrument answered there.
class JS_Mediator_SyncSignalGeneratorConnect : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    JS_Mediator_SyncSignalGeneratorConnect(
        APP_Host* host, const QString& name, DOC_SignalGenerator* generator);

public slots:
    // True leaves the driver connected to the address; false leaves it disconnected (or
    // untouched, for a text that is no address) after one warning.
    bool checkGeneratorConnect(const QString& address);
    void ok();
    void cancel();

private:
    DOC_SignalGenerator* m_generator;
};
