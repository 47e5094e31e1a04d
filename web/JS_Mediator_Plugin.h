#pragma once

#include "web/JS_Mediator.h"

// The page that is a plug-in's panel in the host. Each concrete plug-in page supplies these.
class JS_Mediator_Plugin : public JS_Mediator
{
    Q_OBJECT

public:
    JS_Mediator_Plugin(APP_Host* host, const QString& name);

public slots:
    virtual QString name() = 0;
    virtual QString uiName() = 0;
    virtual void onOpen() = 0;
    virtual void onApply() = 0;
    virtual void onOK() = 0;
    virtual void onCancel() = 0;
    virtual void onReset() = 0;
    virtual void onClose() = 0;
    virtual void onClosed() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual void beginMacro() = 0;
    virtual void endMacro() = 0;
    virtual bool isCurrentDummy() = 0;
};
