#include "generator/GUI_SyncSignalGeneratorConnect.h"

#include "generator/JS_Mediator_SyncSignalGeneratorConnect.h"

GUI_SyncSignalGeneratorConnect::GUI_SyncSignalGeneratorConnect(
    APP_Host* host, QWidget* parent, DOC_SignalGenerator* generator)
    : GUI_WebViewDialog(host, QStringLiteral("Connect with signal generator"),
        QStringLiteral("qrc:/sync_signal_generator_connect.html"),
        new JS_Mediator_SyncSignalGeneratorConnect(
            host, QStringLiteral("sync_signalconnect"), generator),
        parent)
{
    setFixedSize(290, 150);
}
