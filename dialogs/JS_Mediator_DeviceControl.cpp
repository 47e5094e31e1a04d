#include "dialogs/JS_Mediator_DeviceControl.h"

#include "dialogs/GUI_CommentDialog.h"
#include "dialogs/GUI_CustomInfoDialog.h"
#include "dialogs/GUI_EditInfoDialog.h"
#include "plugin/APP_Host.h"
#include "plugin/APP_PauseGuard.h"
#include "plugin/DOC_Interface.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "web/OperationEventHandler.h"

#include <QDateTime>

namespace {

// Released at the end of the scope, whatever happens inside.
class DeterredUpdates
{
public:
    explicit DeterredUpdates(APP_Host* host)
        : m_host(host)
    {
        m_host->deterUpdateUI(true);
    }
    ~DeterredUpdates()
    {
        UTL_Barrier::sealed(m_host, "DeterredUpdates", [this] { m_host->deterUpdateUI(false); });
    }
    DeterredUpdates(const DeterredUpdates&) = delete;
    DeterredUpdates& operator=(const DeterredUpdates&) = delete;

private:
    APP_Host* m_host;
};

} // namespace

JS_Mediator_DeviceControl::JS_Mediator_DeviceControl(APP_Host* host, const QString& name)
    : JS_Mediator_Plugin(host, name)
{
}

QString JS_Mediator_DeviceControl::name()
{
    return m_name;
}

QString JS_Mediator_DeviceControl::uiName()
{
    return UTL_Messages::translate(m_host, QStringLiteral("Device control"));
}

bool JS_Mediator_DeviceControl::isCurrentDummy()
{
    return UTL_Barrier::reported(m_host, false, [this] {
        DOC_Interface* document = m_host->currentDocument();
        DOC_Camera* camera = document ? document->asCamera() : nullptr;
        return camera && camera->isDummy();
    });
}

bool JS_Mediator_DeviceControl::isDisplayInfoShowing()
{
    return UTL_Barrier::reported(m_host, false, [this] { return m_host->isDisplayInfoShowing(); });
}

void JS_Mediator_DeviceControl::setDisplayInfoShowing(bool show)
{
    OperationEventHandler guard(this,
        QStringLiteral("JS_Mediator_DeviceControl::setDisplayInfoShowing"),
        FunctionLogGuard::parameter(QStringLiteral("show"), show));
    UTL_Barrier::reported(m_host, [&] { m_host->setDisplayInfoShowing(show); });
}

void JS_Mediator_DeviceControl::editInfo()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_DeviceControl::editInfo"), QString());
    UTL_Barrier::reported(m_host, [this] {
        // The selected documents, or the current one when none is selected.
        QList<int> keys;
        for (int key : m_host->documentKeys(0)) {
            DOC_Interface* document = m_host->document(key);
            if (document && document->isSelected())
                keys.append(key);
        }
        if (keys.isEmpty() && m_host->currentKey() != -1)
            keys.append(m_host->currentKey());
        GUI_EditInfoDialog dialog(
            m_host, 1, false, nullptr, -1, keys, QDateTime::currentDateTime());
        dialog.exec();
    });
}

void JS_Mediator_DeviceControl::editComment()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_DeviceControl::editComment"), QString());
    UTL_Barrier::reported(m_host, [this] {
        GUI_CommentDialog dialog(m_host, m_host->currentDocument());
        dialog.exec();
    });
}

void JS_Mediator_DeviceControl::editCustom()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_DeviceControl::editCustom"), QString());
    UTL_Barrier::reported(m_host, [this] {
        GUI_CustomInfoDialog dialog(m_host, nullptr, false);
        dialog.exec();
    });
}

void JS_Mediator_DeviceControl::changeSelection(const QVariant& key, bool select)
{
    UTL_Barrier::reported(m_host, [&] {
        const APP_PauseGuard pause(m_host, false, false);
        const int docKey = int(key.toUInt());
        DOC_Interface* document = m_host->document(docKey, true);
        if (!document)
            return;
        if (document->isHeadGroupOwner()) {
            if (select) {
                m_host->selectDocument(docKey);
                document->selectAllHeads();
            } else {
                m_host->unselectDocument(docKey);
                document->unselectAllHeads();
            }
        } else if (document->isHeadOfGroup()) {
            if (DOC_Interface* owner = m_host->headParent(document)) {
                if (select)
                    owner->selectHead(document);
                else
                    owner->unselectHead(document);
            }
        } else if (select) {
            m_host->selectDocument(docKey);
        } else {
            m_host->unselectDocument(docKey);
        }
    });
}

void JS_Mediator_DeviceControl::selectDoc(const QVariant& key)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_DeviceControl::selectDoc"),
        FunctionLogGuard::parameter(QStringLiteral("key"), key));
    changeSelection(key, true);
}

void JS_Mediator_DeviceControl::unselectDoc(const QVariant& key)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_DeviceControl::unselectDoc"),
        FunctionLogGuard::parameter(QStringLiteral("key"), key));
    changeSelection(key, false);
}

void JS_Mediator_DeviceControl::viewAll()
{
    UTL_Barrier::reported(m_host, [this] {
        const int current = m_host->currentKey();
        {
            OperationEventHandler guard(
                this, QStringLiteral("JS_Mediator_DeviceControl::viewAll"), QString());
            const DeterredUpdates deterred(m_host);
            m_host->selectAllDocuments(this);
        }
        if (current != -1)
            m_host->setCurrentDocument(current, true);
    });
}
