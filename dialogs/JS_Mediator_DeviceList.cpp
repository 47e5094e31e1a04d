#include "dialogs/JS_Mediator_DeviceList.h"

#include "dialogs/GUI_AddDeviceDialog.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "web/OperationEventHandler.h"

namespace {

QString keyParameter(const QVariant& key)
{
    return FunctionLogGuard::parameter(QStringLiteral("key"), key);
}

} // namespace

JS_Mediator_DeviceList::JS_Mediator_DeviceList(APP_Host* host, const QString& name)
    : JS_Mediator(host, name)
{
}

void JS_Mediator_DeviceList::selectDoc(const QVariant& key)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_DeviceList::selectDoc"), keyParameter(key));
    UTL_Barrier::reported(m_host, [&] {
        const int docKey = int(key.toUInt());
        DOC_Interface* document = m_host->document(docKey, true);
        if (!document)
            return;
        if (document->isConnected())
            m_host->setCurrentDocument(docKey, true);
        else
            document->setConnectWanted(true);
    });
}

void JS_Mediator_DeviceList::unselectDoc(const QVariant& key)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_DeviceList::unselectDoc"), keyParameter(key));
    UTL_Barrier::reported(m_host, [&] { m_host->unselectDocument(int(key.toUInt())); });
}

void JS_Mediator_DeviceList::addDoc(bool connect)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator_DeviceList::addDoc"),
        FunctionLogGuard::parameter(QStringLiteral("connect"), connect));
    UTL_Barrier::reported(m_host, [&] {
        GUI_AddDeviceDialog dialog(m_host, connect, m_host->getMainWindow());
        dialog.exec();
    });
}

void JS_Mediator_DeviceList::addDoc()
{
    addDoc(true);
}

void JS_Mediator_DeviceList::deleteDoc(quint32 dockey)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator_DeviceList::deleteDoc"),
        FunctionLogGuard::parameter(QStringLiteral("dockey"), dockey));
    UTL_Barrier::reported(m_host, [&] {
        DOC_Interface* document = m_host->document(int(dockey), true);
        if (!document)
            return;
        const QString question = document->hasSiblingHeads()
            ? QStringLiteral(
                "Heads connected to the same device are also removed from the list. Is it OK?")
            : QStringLiteral("Do you want to delete?");
        if (m_host->confirm(UTL_Messages::translate(m_host, question), nullptr, QVariantMap()))
            m_host->removeDocument(int(dockey));
    });
}

void JS_Mediator_DeviceList::deleteAllDocs(bool unselectOnly)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator_DeviceList::deleteAllDocs"),
        FunctionLogGuard::parameter(QStringLiteral("unselectOnly"), unselectOnly));
    UTL_Barrier::reported(m_host, [&] { m_host->removeAllDocuments(0, unselectOnly); });
}

void JS_Mediator_DeviceList::deleteAllDocs()
{
    deleteAllDocs(false);
}

bool JS_Mediator_DeviceList::isSelectedDoc(const QVariant& key)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_DeviceList::isSelectedDoc"), keyParameter(key));
    return UTL_Barrier::reported(m_host, false, [&] {
        DOC_Interface* document = m_host->documentForList(int(key.toUInt()));
        return document && document->isSelected() && document->isConnected();
    });
}

bool JS_Mediator_DeviceList::isSelectedMultiDoc(const QVariant& key)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_DeviceList::isSelectedMultiDoc"), keyParameter(key));
    return UTL_Barrier::reported(m_host, false, [&] {
        DOC_Interface* document = m_host->documentForList(int(key.toUInt()));
        return document && document->isSelectedMulti();
    });
}

bool JS_Mediator_DeviceList::isMultiHead(const QVariant& key)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_DeviceList::isMultiHead"), keyParameter(key));
    return UTL_Barrier::reported(m_host, false, [&] {
        DOC_Interface* document = m_host->documentForList(int(key.toUInt()));
        if (!document)
            return false;
        DOC_Camera* camera = document->asCamera();
        return camera && camera->headCount() > 1 && document->isConnected();
    });
}
