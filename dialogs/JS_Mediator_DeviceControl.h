#pragma once

#include "web/JS_Mediator_Plugin.h"

#include <QVariant>

// The device control panel's object: the selection of documents, aware of multi-head devices
// (an owner selects all its heads, a head is selected through its owner), and the dialogs that
// edit a document's information.
class JS_Mediator_DeviceControl : public JS_Mediator_Plugin
{
    Q_OBJECT

public:
    JS_Mediator_DeviceControl(APP_Host* host, const QString& name);

public slots:
    QString name() override;
    QString uiName() override;
    void onOpen() override { }
    void onApply() override { }
    void onOK() override { }
    void onCancel() override { }
    void onReset() override { }
    void onClose() override { }
    void onClosed() override { }
    void undo() override { }
    void redo() override { }
    void beginMacro() override { }
    void endMacro() override { }
    bool isCurrentDummy() override;

    bool isDisplayInfoShowing();
    void setDisplayInfoShowing(bool show);
    void editInfo();
    void editComment();
    void editCustom();
    void selectDoc(const QVariant& key);
    void unselectDoc(const QVariant& key);
    void viewAll();

private:
    void changeSelection(const QVariant& key, bool select);
};
