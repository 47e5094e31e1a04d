#include "dialogs/JS_Mediator_CameraSettingsDialog.h"

#include "dialogs/CameraSettingsLock.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "save/NamingText.h"
#include "util/APP_Exception.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_BackgroundTask.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "util/UTL_TextHelpers.h"
#include "web/OperationEventHandler.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// The longest target path a camera's tools accept.
const int maxPathLength = 260;

QString compact(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QJsonObject parseObject(const QString& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        throw APP_Exception(QStringLiteral("The page sent settings that can't be read."), 0);
    return document.object();
}

} // namespace

JS_Mediator_CameraSettingsDialog::JS_Mediator_CameraSettingsDialog(
    APP_Host* host, const QString& name, int dialogMode)
    : JS_Mediator_Dialog(host, name)
    , m_dialogMode(dialogMode)
{
}

int JS_Mediator_CameraSettingsDialog::getDialogMode()
{
    return m_dialogMode;
}

bool JS_Mediator_CameraSettingsDialog::openFile()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_CameraSettingsDialog::openFile"), QString());
    return UTL_Barrier::reported(m_host, false, [this] {
        const QString filter
            = QStringLiteral("*.%1 *.%2")
                  .arg(SETTINGS_FILE_SUFFIX.toLower(), SETTINGS_FILE_SUFFIX.toUpper());
        QString folder;
        m_host->getPrefString(folder, PREF_KEY_QSETX_PATH, QString());
        const QString path = QFileDialog::getOpenFileName(m_host->getMainWindow(),
            UTL_Messages::translate(m_host, QStringLiteral("Select folder")), folder, filter);
        if (path.isEmpty())
            return false;
        m_filePath = path;
        return true;
    });
}

bool JS_Mediator_CameraSettingsDialog::openFolder()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_CameraSettingsDialog::openFolder"), QString());
    return UTL_Barrier::reported(m_host, false, [this] {
        QString folder;
        m_host->getPrefString(folder, PREF_KEY_QSETX_PATH, QString());
        const QString chosen = QFileDialog::getExistingDirectory(m_host->getMainWindow(),
            UTL_Messages::translate(m_host, QStringLiteral("Select folder")), folder,
            QFileDialog::ShowDirsOnly);
        if (chosen.isEmpty())
            return false;
        m_host->setPrefString(PREF_KEY_QSETX_PATH, chosen);
        return true;
    });
}

QString JS_Mediator_CameraSettingsDialog::getFilePathSettings()
{
    return UTL_Barrier::reported(m_host, QString(), [this] {
        QString folder;
        m_host->getPrefString(folder, PREF_KEY_QSETX_PATH, QString());
        return compact({ { QStringLiteral("FolderPath"), folder },
            { QStringLiteral("FileName"), fileNameOf(true) } });
    });
}

QVariantList JS_Mediator_CameraSettingsDialog::getPresetList()
{
    return UTL_Barrier::reported(m_host, QVariantList(), [this] {
        QVariantList list;
        for (int key : m_host->deviceKeys()) {
            DOC_Interface* document = m_host->document(key);
            if (!document)
                continue;
            QString deviceName;
            document->deviceName(deviceName);
            if (deviceName.isEmpty())
                deviceName = document->modelText(true);
            QStringList texts;
            document->presetTexts(texts);
            const bool selected = document->isSelected();
            list.append(compact({ { QStringLiteral("key"), QString::number(key) },
                { QStringLiteral("name"), document->cameraName(true) },
                { QStringLiteral("ipaddress"), document->ipAddress(true) },
                { QStringLiteral("devicename"), deviceName },
                { QStringLiteral("presetno"), document->presetCount() },
                { QStringLiteral("selected"), selected }, { QStringLiteral("selNone"), !selected },
                { QStringLiteral("presets"), QJsonArray::fromStringList(texts) } }));
        }
        return list;
    });
}

QString JS_Mediator_CameraSettingsDialog::addDateTime(const QString& format)
{
    return currentDateTimeText(format);
}

QString JS_Mediator_CameraSettingsDialog::recvFileNameDialogData()
{
    return UTL_Barrier::reported(m_host, QString(), [this] {
        QString userName;
        m_host->getPrefString(userName, PREF_KEY_QSETX_USER_FILE_NAME, QString());
        const bool addTime = m_host->getPrefBool(PREF_KEY_QSETX_FILENAME_ADD_TIME, false);
        QJsonObject data { { QStringLiteral("userFileName"), userName },
            { QStringLiteral("original"),
                m_host->getPrefBool(PREF_KEY_QSETX_FILENAME_AS_ORIGINAL, false) },
            { QStringLiteral("addTime"), addTime } };
        if (addTime) {
            QString format;
            m_host->getPrefString(format, PREF_KEY_QSETX_FILENAME_ADD_TIME_FORMAT, QString());
            data.insert(QStringLiteral("addTimeFormat"), format);
        }
        return compact(data);
    });
}

void JS_Mediator_CameraSettingsDialog::sendFileNameDialogData(const QString& sendData)
{
    OperationEventHandler guard(this,
        QStringLiteral("JS_Mediator_CameraSettingsDialog::sendFileNameDialogData"),
        FunctionLogGuard::parameter(QStringLiteral("sendData"), sendData));
    UTL_Barrier::reported(m_host, [&] {
        const QJsonObject data = parseObject(sendData);
        m_host->setPrefString(
            PREF_KEY_QSETX_USER_FILE_NAME, data.value(QStringLiteral("userFileName")).toString());
        m_host->setPrefBool(
            PREF_KEY_QSETX_FILENAME_AS_ORIGINAL, data.value(QStringLiteral("original")).toBool());
        m_host->setPrefBool(
            PREF_KEY_QSETX_FILENAME_ADD_TIME, data.value(QStringLiteral("addTime")).toBool());
        if (data.contains(QStringLiteral("addTimeFormat")))
            m_host->setPrefString(PREF_KEY_QSETX_FILENAME_ADD_TIME_FORMAT,
                data.value(QStringLiteral("addTimeFormat")).toString());
    });
}

QString JS_Mediator_CameraSettingsDialog::fileNameOf(bool additional)
{
    QString name;
    if (m_host->getPrefBool(PREF_KEY_QSETX_FILENAME_AS_ORIGINAL, false)) {
        m_host->getPrefString(name, PREF_KEY_QSETX_USER_FILE_NAME, QString());
    } else {
        const QList<int> keys = m_host->settingsDocumentKeys();
        DOC_Interface* first = keys.isEmpty() ? nullptr : m_host->document(keys.first());
        if (first)
            name = first->cameraName(true);
    }
    if (!additional)
        return name;
    if (m_host->getPrefBool(PREF_KEY_QSETX_FILENAME_ADD_TIME, false)) {
        QString format;
        m_host->getPrefString(format, PREF_KEY_QSETX_FILENAME_ADD_TIME_FORMAT, QString());
        if (!name.isEmpty())
            name += QLatin1Char('_');
        name += currentDateTimeText(format);
    }
    return name + QLatin1Char('.') + SETTINGS_FILE_SUFFIX;
}

QString JS_Mediator_CameraSettingsDialog::getFileName(bool additional)
{
    return UTL_Barrier::reported(m_host, QString(), [&] { return fileNameOf(additional); });
}

QString JS_Mediator_CameraSettingsDialog::getFileName()
{
    return getFileName(false);
}

void JS_Mediator_CameraSettingsDialog::ok(const QString& sendData)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator_CameraSettingsDialog::ok"),
        FunctionLogGuard::parameter(QStringLiteral("sendData"), sendData));
    try {
        const QJsonObject data = parseObject(sendData);
        m_dialogMode = data.value(QStringLiteral("dialogMode")).toInt(m_dialogMode);
        m_presets.clear();
        const QJsonArray list = data.value(QStringLiteral("presetList")).toArray();
        for (const QJsonValue& entry : list) {
            const QJsonObject item = entry.toObject();
            m_presets.insert(item.value(QStringLiteral("key")).toVariant().toUInt(),
                item.value(QStringLiteral("value")).toVariant().toInt());
        }
        const bool done = m_dialogMode == 0 ? qsetxFunc() : presetFunc();
        if (done)
            emit accept();
    } catch (const std::exception& e) {
        errorHandler(e);
    }
}

void JS_Mediator_CameraSettingsDialog::cancel()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_CameraSettingsDialog::cancel"), QString());
    UTL_Barrier::reported(m_host, [this] { emit reject(); });
}

bool JS_Mediator_CameraSettingsDialog::qsetxFunc()
{
    const CameraSettingsLock lock(m_host);
    QString folder;
    m_host->getPrefString(folder, PREF_KEY_QSETX_PATH, QString());
    const QString path = folder + QLatin1Char('/') + fileNameOf(true);
    const QFileInfo info(path);
    if (info.baseName().isEmpty() || info.isDir() || !isValidFileName(info.fileName())
        || !isValidPathName(path)) {
        m_host->showWarning(
            UTL_Messages::translate(m_host, QStringLiteral("Invalid filename.")), nullptr);
        return false;
    }
    if (path.size() > maxPathLength) {
        m_host->showWarning(
            UTL_Messages::translate(m_host, QStringLiteral("The path of the target is too long.")),
            nullptr);
        return false;
    }
    if (info.exists()
        && !m_host->confirm(
            UTL_Messages::translate(m_host, QStringLiteral("Do you want to overwrite it?")),
            nullptr, QVariantMap()))
        return false;
    APP_Host* host = m_host;
    return UTL_BackgroundTask::run(m_host,
        UTL_Messages::translate(m_host, QStringLiteral("Saving...")),
        [host, path] { host->saveSettingsFile(path, 0); });
}

bool JS_Mediator_CameraSettingsDialog::presetFunc()
{
    const CameraSettingsLock lock(m_host);
    try {
        for (auto it = m_presets.cbegin(); it != m_presets.cend(); ++it) {
            if (it.value() <= 0)
                continue;
            if (DOC_Interface* document = m_host->document(int(it.key())))
                document->writePreset(it.value());
        }
        return true;
    } catch (const std::exception& e) {
        errorHandler(e);
    }
    return false;
}
