#include "plugin/PLG_PageRegistry.h"

#include "dialogs/GUI_CommentDialog.h"
#include "dialogs/GUI_EditInfoDialog.h"
#include "dialogs/GUI_FrameFormatDialog.h"
#include "dialogs/GUI_RecordRateFormatDialog.h"
#include "dialogs/GUI_RectimeFormatDialog.h"
#include "dialogs/GUI_ShutterSpeedFormatDialog.h"
#include "dialogs/GUI_TimeCodeCustomDialog.h"
#include "generator/DOC_VIGen.h"
#include "generator/GUI_SyncSignalGeneratorConnect.h"
#include "plugin/APP_Host.h"
#include "plugin/PLG_CameraDevicePages.h"
#include "plugin/PLG_DeviceInfoPages.h"
#include "plugin/SharedKeys.h"
#include "save/FileDialogKind.h"
#include "save/MediaPages.h"
#include "save/SavePages.h"
#include "util/ScopeExit.h"
#include "web/JS_Mediator_Page.h"

#include <QDateTime>
#include <QDebug>
#include <QDialog>
#include <QPointer>

namespace {

// The generator connect dialog on a driver of its own: the address it accepts is stored, and
// Cancel keeps the one stored before, as from the sync dialog.
int openGeneratorConnect(const PLG_DialogContext& context)
{
    APP_Host* host = context.host;
    QString before;
    host->getPrefString(before, PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS, QVariant());
    DOC_VIGen generator(host);
    generator.loadLibrary();
    const int result = PLG_PageRegistry::exec(
        new GUI_SyncSignalGeneratorConnect(host, context.parent, &generator));
    if (result != QDialog::Accepted)
        host->setPrefString(PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS, before);
    generator.disconnect();
    return result;
}

JS_Mediator* makeHostStatusMediator(const PLG_DialogContext& context)
{
    return new JS_Mediator_Page(context.host, QStringLiteral("hoststatus"));
}

// The information block's dialogs.

// The current document first, then the other selected ones.
QList<int> currentAndSelected(const PLG_DialogContext& context)
{
    QList<int> keys;
    if (context.currentKey != INVALID_DOCKEY)
        keys.append(context.currentKey);
    for (int key : context.selectedKeys) {
        if (!keys.contains(key))
            keys.append(key);
    }
    return keys;
}

int openTimeCode(const PLG_DialogContext& context)
{
    return PLG_PageRegistry::exec(new GUI_TimeCodeCustomDialog(context.host, context.parent));
}

// arg: the mode of the save form's owner (1 save, 6 convert, 7 snapshot, 16 report); none: 1.
int openEditInfo(const PLG_DialogContext& context, bool isSaveView)
{
    int mode = 1;
    if (isSaveView && !context.arg.isEmpty()) {
        bool ok = false;
        mode = context.arg.toInt(&ok);
        if (!ok) {
            qCritical().noquote()
                << QStringLiteral("saveinfoview: \"%1\" is no mode").arg(context.arg);
            return -1;
        }
    }
    return PLG_PageRegistry::exec(new GUI_EditInfoDialog(context.host, mode, isSaveView,
        context.host->document(context.currentKey), -1, currentAndSelected(context),
        QDateTime::currentDateTime()));
}

int openScreenInfo(const PLG_DialogContext& context)
{
    return openEditInfo(context, false);
}

int openSaveInfo(const PLG_DialogContext& context)
{
    return openEditInfo(context, true);
}

int openComment(const PLG_DialogContext& context)
{
    return PLG_PageRegistry::exec(
        new GUI_CommentDialog(context.host, context.host->document(context.currentKey)));
}

template <typename Dialog> int openFormat(const PLG_DialogContext& context)
{
    return PLG_PageRegistry::exec(new Dialog(context.host, context.parent));
}

const PLG_PageEntry pageTable[] = {
    { "sync_signal_generator_connect", PLG_PageKind::Dialog, "Connect with signal generator",
        &openGeneratorConnect, nullptr, nullptr },
    { "hoststatus", PLG_PageKind::Page, "Host status", nullptr, nullptr, &makeHostStatusMediator },
    // The device and custom info dialogs.
    { "custominfo", PLG_PageKind::Dialog, "Custom info", &PLG_DeviceInfoPages::openCustomInfo,
        nullptr, nullptr },
    { "livecontrol_adddevice", PLG_PageKind::Dialog, "Add Device",
        &PLG_DeviceInfoPages::openAddDevice, nullptr, nullptr },
    { "livecontrol_editdevice", PLG_PageKind::Dialog, "Edit Device",
        &PLG_DeviceInfoPages::openEditDevice, nullptr, nullptr },
    { "livecontrol_searchsetting", PLG_PageKind::Dialog, "Camera Network Setting",
        &PLG_DeviceInfoPages::openSearchSetting, nullptr, nullptr },
    // The file dialogs go by their kind's name; all show qrc:/filedialog.html.
    { FileDialogKind::save, PLG_PageKind::Dialog, "Save",
        &SavePages::openFileDialog<FileDialogKind::save>, nullptr, nullptr },
    { FileDialogKind::snapshot, PLG_PageKind::Dialog, "Snapshot",
        &SavePages::openFileDialog<FileDialogKind::snapshot>, nullptr, nullptr },
    { FileDialogKind::convert, PLG_PageKind::Dialog, "Batch conversion",
        &SavePages::openFileDialog<FileDialogKind::convert>, nullptr, nullptr },
    { FileDialogKind::report, PLG_PageKind::Dialog, "Report output",
        &SavePages::openFileDialog<FileDialogKind::report>, nullptr, nullptr },
    { FileDialogKind::open, PLG_PageKind::Dialog, "Open",
        &SavePages::openFileDialog<FileDialogKind::open>, nullptr, nullptr },
    { "addnumberdialog", PLG_PageKind::Dialog, "Adding a number", &SavePages::openAddNumberDialog,
        nullptr, nullptr },
    { "convertparametereditdialog", PLG_PageKind::Dialog, "Saved after the automatic conversion",
        &SavePages::openConvertParameterEditDialog, nullptr, nullptr },
    // The information block.
    { "editinfo", PLG_PageKind::Dialog, "Information display", &openScreenInfo, nullptr, nullptr },
    { "saveinfoview", PLG_PageKind::Dialog, "Information on saved images", &openSaveInfo, nullptr,
        nullptr },
    { "prefs_customize_timecode", PLG_PageKind::Dialog, "Current Time Setting", &openTimeCode,
        nullptr, nullptr },
    { "commentview", PLG_PageKind::Dialog, "Comment", &openComment, nullptr, nullptr },
    { "shutterspeed_format_dialog", PLG_PageKind::Dialog, "Shutter speed disp",
        &openFormat<GUI_ShutterSpeedFormatDialog>, nullptr, nullptr },
    { "recordrate_format_dialog", PLG_PageKind::Dialog, "recordrate disp",
        &openFormat<GUI_RecordRateFormatDialog>, nullptr, nullptr },
    { "frame_format_dialog", PLG_PageKind::Dialog, "frame disp", &openFormat<GUI_FrameFormatDialog>,
        nullptr, nullptr },
    { "rectime_format_dialog", PLG_PageKind::Dialog, "Recording time disp",
        &openFormat<GUI_RectimeFormatDialog>, nullptr, nullptr },
    // Removable media panels and the storage unit's passwords.
    { "savesd", PLG_PageKind::Page, "SD cards", nullptr, nullptr, &MediaPages::makeSdMediator },
    { "savevaultpack", PLG_PageKind::Page, "VaultPack", nullptr, nullptr,
        &MediaPages::makeVaultPackMediator },
    { "savecfast", PLG_PageKind::Page, "CFast cards", nullptr, nullptr,
        &MediaPages::makeCFastMediator },
    { "input_password_dialog", PLG_PageKind::Dialog, "Input password",
        &MediaPages::openInputPasswordDialog, nullptr, nullptr },
    { "change_password_dialog", PLG_PageKind::Dialog, "Change Password",
        &MediaPages::openChangePasswordDialog, nullptr, nullptr },
    // Camera settings files and presets, the device panels and the select box.
    { "camerasettings", PLG_PageKind::Dialog, "Save camera settings",
        &PLG_CameraDevicePages::openCameraSettings, nullptr, nullptr },
    { "camerasettingsload", PLG_PageKind::Dialog, "Load camera settings",
        &PLG_CameraDevicePages::openCameraSettingsLoad, nullptr, nullptr },
    { "devicelist", PLG_PageKind::Page, "Device list", nullptr, nullptr,
        &PLG_CameraDevicePages::makeDeviceList },
    { "devicecontrol", PLG_PageKind::Page, "Device control", nullptr, nullptr,
        &PLG_CameraDevicePages::makeDeviceControl },
    { "selectbox", PLG_PageKind::Panel, "Select box", nullptr,
        &PLG_CameraDevicePages::makeSelectBox, nullptr },
};

} // namespace

QList<const PLG_PageEntry*> PLG_PageRegistry::entries()
{
    QList<const PLG_PageEntry*> list;
    for (const PLG_PageEntry& entry : pageTable)
        list.append(&entry);
    return list;
}

const PLG_PageEntry* PLG_PageRegistry::find(const QString& page)
{
    for (const PLG_PageEntry& entry : pageTable) {
        if (page == QLatin1String(entry.page))
            return &entry;
    }
    return nullptr;
}

int PLG_PageRegistry::exec(QDialog* dialog)
{
    QPointer<QDialog> guarded(dialog);
    const ScopeExit remove([guarded] { delete guarded.data(); });
    return dialog->exec();
}
