#pragma once

#include "save/JS_Mediator_FileDialog.h"

// The bridge of the dialog that edits the automatic conversion's settings for a list of
// documents ("convertparametereditdialog"). The settings themselves go through the settings
// page's bridge beside it, straight to the preferences.
class JS_Mediator_ConvertParameterEditDialog : public JS_Mediator_FileDialog
{
    Q_OBJECT

public:
    // dockeyList: the documents' keys as decimal texts.
    JS_Mediator_ConvertParameterEditDialog(
        APP_Host* host, const QVariantList& dockeyList, int selectDocKey, int selectPartitionNo);

public slots:
    void ok();
    void cancel();
    // Hands the information flag to the documents; there are no rows here, the text is empty.
    QString list(bool temporary) override;
    QVariantList getTargetItems();
    // With "convert/dirasoriginal" the directory the chosen partition's output would go to,
    // looked at without leaving a trace in the save registry.
    QString getExportPath() override;

private:
    QVariantList m_dockeyList;
};
