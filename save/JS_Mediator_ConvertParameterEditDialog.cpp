#include "save/JS_Mediator_ConvertParameterEditDialog.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "save/FileDialogKind.h"
#include "save/OutputNaming.h"
#include "util/FunctionLogGuard.h"
#include "util/ScopeExit.h"
#include "util/UTL_Barrier.h"

JS_Mediator_ConvertParameterEditDialog::JS_Mediator_ConvertParameterEditDialog(
    APP_Host* host, const QVariantList& dockeyList, int selectDocKey, int selectPartitionNo)
    : JS_Mediator_FileDialog(host, QLatin1String(FileDialogKind::convertParameters))
    , m_dockeyList(dockeyList)
{
    m_targets.select(selectDocKey, selectPartitionNo);
}

void JS_Mediator_ConvertParameterEditDialog::ok()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_ConvertParameterEditDialog::ok"), QString());
    emit accept();
}

void JS_Mediator_ConvertParameterEditDialog::cancel()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_ConvertParameterEditDialog::cancel"), QString());
    emit reject();
}

QString JS_Mediator_ConvertParameterEditDialog::list(bool)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_ConvertParameterEditDialog::list"), QString());
    UTL_Barrier::reported(m_host, [this] {
        const bool saveInfo = m_host->getPrefBool(PREF_KEYS_CONVERT.saveinfo, QVariant());
        for (const QVariant& entry : qAsConst(m_dockeyList)) {
            bool ok = false;
            const uint key = entry.toString().toUInt(&ok, 10);
            if (!ok)
                continue;
            if (DOC_Interface* document = m_host->document(int(key)))
                document->setSaveInfo(saveInfo);
        }
    });
    return QString();
}

QVariantList JS_Mediator_ConvertParameterEditDialog::getTargetItems()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_ConvertParameterEditDialog::getTargetItems"), QString());
    return m_dockeyList;
}

QString JS_Mediator_ConvertParameterEditDialog::getExportPath()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_ConvertParameterEditDialog::getExportPath"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] {
        if (!m_host->getPrefBool(PREF_KEYS_CONVERT.dirasoriginal, QVariant()))
            return m_targets.exportPath();
        DOC_Interface* document = m_host->document(m_targets.selectDocKey());
        if (!document)
            return QString();
        const int partition = m_targets.selectPartitionNo();
        const int kept = document->currentPartition(true);
        // The names planned for this look must leave no trace in the registry.
        const ScopeExit restore([&] {
            UTL_Barrier::sealed(
                m_host, "JS_Mediator_ConvertParameterEditDialog::getExportPath", [&] {
                    document->selectPartition(kept);
                    m_host->commitPendingNames();
                    m_host->beginGroupPass();
                    m_host->beginNamePass();
                });
        });
        document->selectPartition(partition);
        QMap<int, QString> groupDirs;
        QMap<int, QString> dirs;
        QMap<int, QString> paths;
        composeSavePaths(
            m_host, 1, document, false, groupDirs, dirs, paths, QDateTime::currentDateTime(), 0);
        return dirs.value(partition);
    });
}
