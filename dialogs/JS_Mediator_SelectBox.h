#pragma once

#include "web/JS_Mediator.h"

#include <QVariantList>

class PLG_Interface;

// The select box's object "items": the box's owner tells the page what to offer by the signals,
// and the user's choice comes back through a slot, which closes the box.
class JS_Mediator_SelectBox : public JS_Mediator
{
    Q_OBJECT

public:
    JS_Mediator_SelectBox(APP_Host* host, const QString& name);

signals:
    void signalShowPartition(const QVariantList& partitions);
    void signalShowVariable(const QString& variables);
    void signalShowVariableRegist(const QString& value);
    void signalSetHeight(int height);

public slots:
    // A number above the current camera's partitions leads to the recording settings.
    void slotNotifyPartition(const QString& value);
    // "go-variable" opens the live control page's variable tab; a number applies that variable.
    void slotNotifyVariable(const QString& value);
    int getCurrentPartition();
    void slotNotifyVariableRegist(const QString& value);

private:
    // The host's current page when it is the live control page in camera mode, else null.
    PLG_Interface* liveControlPage();
};
