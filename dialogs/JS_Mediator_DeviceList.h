#pragma once

#include "web/JS_Mediator.h"

#include <QVariant>

// The device list panel's object: selects, adds and removes the host's device entries. An
// unknown key or a document that has gone ends a slot with no effect.
class JS_Mediator_DeviceList : public JS_Mediator
{
    Q_OBJECT

public:
    JS_Mediator_DeviceList(APP_Host* host, const QString& name);

public slots:
    // A connected document becomes current; one that isn't is marked to be connected.
    void selectDoc(const QVariant& key);
    void unselectDoc(const QVariant& key);
    void addDoc(bool connect);
    void addDoc();
    void deleteDoc(quint32 dockey);
    void deleteAllDocs(bool unselectOnly);
    void deleteAllDocs();
    bool isSelectedDoc(const QVariant& key);
    bool isSelectedMultiDoc(const QVariant& key);
    bool isMultiHead(const QVariant& key);
};
