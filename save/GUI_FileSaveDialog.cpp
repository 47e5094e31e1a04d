#include "save/GUI_FileSaveDialog.h"

#include "save/FileDialogKind.h"
#include "save/JS_Mediator_FileSaveDialog.h"
#include "save/JS_Mediator_SaveFile.h"
#include "save/SaveBatch.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"

GUI_FileSaveDialog::GUI_FileSaveDialog(APP_Host* host, QWidget* parent, const QString& name)
    : GUI_WebViewDialog(host, titleOf(name), QStringLiteral("qrc:/filedialog.html"),
        new JS_Mediator_FileSaveDialog(host, name), parent)
{
    JS_Mediator_FileSaveDialog* files = fileMediator();
    if (!files->kind().isOpen()) {
        m_saveFile = new JS_Mediator_SaveFile(host, name);
        addMediator(m_saveFile);
        connect(files, &JS_Mediator_FileDialog::selectedDocCount, m_saveFile,
            &JS_Mediator_SaveFile::selectedDocCount);
        connect(files, &JS_Mediator_FileDialog::selectedDocHeadCount, m_saveFile,
            &JS_Mediator_SaveFile::selectedDocHeadCount);
    }
    connect(
        files, &JS_Mediator_FileSaveDialog::exportTarget, this, &GUI_FileSaveDialog::exportTarget);
    connect(
        files, &JS_Mediator_FileSaveDialog::saveAction, this, &GUI_FileSaveDialog::saveAndClose);
    connect(
        files, &JS_Mediator_FileSaveDialog::applyAction, this, &GUI_FileSaveDialog::saveAndStay);
    connect(files, &JS_Mediator_FileSaveDialog::cancelAction, this, &QDialog::reject);
    setFixedSize(1060, 700);
}

JS_Mediator_FileSaveDialog* GUI_FileSaveDialog::fileMediator() const
{
    return static_cast<JS_Mediator_FileSaveDialog*>(mediator());
}

QString GUI_FileSaveDialog::titleOf(const QString& name)
{
    const FileDialogKind kind(name);
    if (kind.isOpen())
        return QStringLiteral("Open");
    if (kind.isConvert())
        return QStringLiteral("Batch conversion");
    if (kind.isReport())
        return QStringLiteral("Report output");
    if (kind.isSnapshot())
        return QStringLiteral("Snapshot");
    return QStringLiteral("Save");
}

void GUI_FileSaveDialog::exportTarget(int dockey, int partitionNo)
{
    m_targets.append({ dockey, partitionNo });
}

bool GUI_FileSaveDialog::save()
{
    SYNC_TRACE(QStringLiteral("GUI_FileSaveDialog::save"),
        FunctionLogGuard::parameter(QStringLiteral("targets"), m_targets.size()));
    JS_Mediator_FileSaveDialog* files = fileMediator();
    // The page names the targets anew for every save.
    const QList<QPair<int, int>> targets = m_targets;
    m_targets.clear();
    return UTL_Barrier::reported(m_host, false, [&] {
        SaveBatch batch(m_host, files->kind(), files->dateTime());
        for (const auto& target : targets)
            batch.add(target.first, target.second);
        batch.run();
        return true;
    });
}

void GUI_FileSaveDialog::saveAndClose()
{
    if (fileMediator()->kind().isOpen() || save())
        accept();
}

void GUI_FileSaveDialog::saveAndStay()
{
    if (!fileMediator()->kind().isOpen())
        save();
}
