#include "save/JS_Mediator_SaveFile.h"

#include "dialogs/GUI_CustomInfoDialog.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "save/FileDialogKind.h"
#include "save/GUI_AddNumberDialog.h"
#include "save/NamingText.h"
#include "save/OutputNaming.h"
#include "save/SaveFileLists.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_TextHelpers.h"

#include <QFileDialog>
#include <QStorageInfo>

namespace {

QString trace(const char* name)
{
    return QStringLiteral("JS_Mediator_SaveFile::") + QLatin1String(name);
}

QString parameter(const char* name, const QVariant& value)
{
    return FunctionLogGuard::parameter(QLatin1String(name), value);
}

QStringList imageFormats()
{
    return { QStringLiteral("BMP"), QStringLiteral("TIFF"), QStringLiteral("JPEG"),
        QStringLiteral("PNG") };
}

QStringList movieFormats()
{
    return { QStringLiteral("AVI"), QStringLiteral("MOV"), QStringLiteral("MP4") };
}

} // namespace

JS_Mediator_SaveFile::JS_Mediator_SaveFile(APP_Host* host, const QString& dialogName)
    : JS_Mediator(host, QStringLiteral("savefile"))
    , m_snapMode(dialogName == QLatin1String(FileDialogKind::snapshot))
    , m_convertMode(dialogName == QLatin1String(FileDialogKind::convert)
          || dialogName == QLatin1String(FileDialogKind::convertParameters))
    , m_reportMode(dialogName == QLatin1String(FileDialogKind::report))
    , m_parentWidgetName(dialogName)
{
}

int JS_Mediator_SaveFile::groupDirType() const
{
    if (m_snapMode)
        return 6;
    if (m_convertMode)
        return 3;
    if (m_reportMode)
        return 9;
    return 0;
}

int JS_Mediator_SaveFile::subDirType() const
{
    return groupDirType() + 1;
}

int JS_Mediator_SaveFile::fileNameType() const
{
    return groupDirType() + 2;
}

void JS_Mediator_SaveFile::accept()
{
    SYNC_TRACE(trace("accept"), QString());
    emit accepted();
}

void JS_Mediator_SaveFile::reject()
{
    SYNC_TRACE(trace("reject"), QString());
    emit rejected();
}

void JS_Mediator_SaveFile::refresh()
{
    SYNC_TRACE(trace("refresh"), QString());
    emit refreshed();
}

QString JS_Mediator_SaveFile::selectFolder(const QString& dir)
{
    SYNC_TRACE(trace("selectFolder"), parameter("dir", dir));
    return UTL_Barrier::reported(m_host, QString(), [&] {
        return QFileDialog::getExistingDirectory(m_host->getMainWindow(),
            translate(QStringLiteral("Select folder")), dir, QFileDialog::ShowDirsOnly);
    });
}

void JS_Mediator_SaveFile::numberSetting(const char* name, int callbackType)
{
    SYNC_TRACE(trace(name), QString());
    UTL_Barrier::reported(m_host, [&] {
        GUI_AddNumberDialog::run(m_host, m_host->getMainWindow(), callbackType, m_selectedDocCount,
            m_selectedDocHeadCount);
    });
}

void JS_Mediator_SaveFile::numberSetting4GroupDir()
{
    numberSetting("numberSetting4GroupDir", groupDirType());
}

void JS_Mediator_SaveFile::numberSetting4SubDir()
{
    numberSetting("numberSetting4SubDir", subDirType());
}

void JS_Mediator_SaveFile::numberSetting4FileName()
{
    numberSetting("numberSetting4FileName", fileNameType());
}

QString JS_Mediator_SaveFile::sampleNumber(const char* name, int callbackType)
{
    SYNC_TRACE(trace(name), QString());
    return UTL_Barrier::reported(m_host, QString(), [&] {
        const bool sessionOnly = m_convertMode || m_host->isFileMode();
        return numberText(1, 1, 1, sessionOnly ? 0 : cameraDigits(m_host, callbackType),
            sessionOnly ? 0 : headDigits(m_host, callbackType),
            sessionDigits(m_host, callbackType));
    });
}

QString JS_Mediator_SaveFile::addNumber4GroupDir()
{
    return sampleNumber("addNumber4GroupDir", groupDirType());
}

QString JS_Mediator_SaveFile::addNumber4SubDir()
{
    return sampleNumber("addNumber4SubDir", subDirType());
}

QString JS_Mediator_SaveFile::addNumber4FileName()
{
    return sampleNumber("addNumber4FileName", fileNameType());
}

QStringList JS_Mediator_SaveFile::getFileFormats(bool fromDevice)
{
    SYNC_TRACE(trace("getFileFormats"), parameter("fromDevice", fromDevice));
    QStringList formats = imageFormats();
    formats << QStringLiteral("RAWQ") << QStringLiteral("QRAW");
    if (fromDevice)
        formats << QStringLiteral("ZRAW");
    return formats + movieFormats();
}

QStringList JS_Mediator_SaveFile::getSnapFileFormats()
{
    SYNC_TRACE(trace("getSnapFileFormats"), QString());
    return imageFormats();
}

QStringList JS_Mediator_SaveFile::getLayoutFileFormats()
{
    SYNC_TRACE(trace("getLayoutFileFormats"), QString());
    return imageFormats() + movieFormats();
}

QStringList JS_Mediator_SaveFile::getCodecFilters()
{
    SYNC_TRACE(trace("getCodecFilters"), QString());
    return { QStringLiteral("RAW"), QStringLiteral("H264"), QStringLiteral("MJPEG"),
        QStringLiteral("MPEG2"), QStringLiteral("MPEG4"), QStringLiteral("HUFFYUV") };
}

QString JS_Mediator_SaveFile::getFreeSpace(const QString& path)
{
    SYNC_TRACE(trace("getFreeSpace"), parameter("path", path));
    return UTL_Barrier::reported(m_host, QString(), [&] {
        const int slash = path.indexOf(QLatin1Char('/'));
        const QString root = slash < 0 ? path : path.left(slash + 1);
        const qint64 available = QStorageInfo(root).bytesAvailable();
        return formatByteSize(available < 0 ? 0 : quint64(available));
    });
}

bool JS_Mediator_SaveFile::isSnapMode()
{
    SYNC_TRACE(trace("isSnapMode"), QString());
    return m_snapMode;
}

bool JS_Mediator_SaveFile::isConvertMode()
{
    SYNC_TRACE(trace("isConvertMode"), QString());
    return m_convertMode;
}

bool JS_Mediator_SaveFile::isReportMode()
{
    SYNC_TRACE(trace("isReportMode"), QString());
    return m_reportMode;
}

QString JS_Mediator_SaveFile::getParentWidgetName()
{
    SYNC_TRACE(trace("getParentWidgetName"), QString());
    return m_parentWidgetName;
}

QString JS_Mediator_SaveFile::addDateTime(const QString& format)
{
    SYNC_TRACE(trace("addDateTime"), parameter("format", format));
    return currentDateTimeText(format);
}

void JS_Mediator_SaveFile::selectedDocCount(int count)
{
    SYNC_TRACE(trace("selectedDocCount"), parameter("count", count));
    m_selectedDocCount = count;
}

void JS_Mediator_SaveFile::selectedDocHeadCount(int count)
{
    SYNC_TRACE(trace("selectedDocHeadCount"), parameter("count", count));
    m_selectedDocHeadCount = count;
}

bool JS_Mediator_SaveFile::isMovieFormat(const QString& format)
{
    SYNC_TRACE(trace("isMovieFormat"), parameter("format", format));
    return isMediaFormat(format, true);
}

bool JS_Mediator_SaveFile::isRawFormat(const QString& format)
{
    SYNC_TRACE(trace("isRawFormat"), parameter("format", format));
    return UTL_Barrier::reported(m_host, false, [&] {
        const QString lower = format.toLower();
        if (lower == QLatin1String("zraw"))
            return true;
        const OutputKeys& keys = m_convertMode ? PREF_KEYS_CONVERT : PREF_KEYS_EXPORT;
        QString key;
        if (lower == QLatin1String("rawq"))
            key = keys.rawq_bayersave;
        else if (lower == QLatin1String("qraw"))
            key = keys.qraw_bayersave;
        else if (lower == QLatin1String("tiff") || lower == QLatin1String("tiff (multi-page)"))
            key = keys.tiff_bayersave;
        return !key.isEmpty() && m_host->getPrefBool(key, QVariant());
    });
}

void JS_Mediator_SaveFile::editCustom(bool forTemporary)
{
    SYNC_TRACE(trace("editCustom"), parameter("forTemporary", forTemporary));
    UTL_Barrier::reported(m_host, [&] {
        GUI_CustomInfoDialog dialog(m_host, nullptr, forTemporary);
        dialog.setCallbackType(fileNameType());
        dialog.exec();
    });
}

QString JS_Mediator_SaveFile::getMultiPaths()
{
    SYNC_TRACE(trace("getMultiPaths"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] {
        QString list;
        return SaveFileLists::multiPathsJson(
            m_host->getPrefString(list, PREF_KEYS_EXPORT.multipathlist, QVariant()));
    });
}

QString JS_Mediator_SaveFile::getMultiPathDevices()
{
    SYNC_TRACE(trace("getMultiPathDevices"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] {
        QString paths;
        QString devices;
        m_host->getPrefString(paths, PREF_KEYS_EXPORT.multipathlist, QVariant());
        m_host->getPrefString(devices, PREF_KEYS_EXPORT.multipathdevicelist, QVariant());
        QList<QString> addresses;
        for (int key : m_host->deviceKeys()) {
            if (DOC_Interface* document = m_host->document(key))
                addresses.append(document->ipAddress(true));
        }
        return SaveFileLists::multiPathDevicesJson(paths, devices, addresses);
    });
}

bool JS_Mediator_SaveFile::isNeedRefreshPreview()
{
    SYNC_TRACE(trace("isNeedRefreshPreview"), QString());
    return UTL_Barrier::reported(m_host, false, [this] {
        for (int n = 0; n < 7; ++n) {
            QString list;
            m_host->getPrefString(list, PREF_KEY_SAVEINFO_DISPLAY + QString::number(n), QVariant());
            if (SaveFileLists::showsFileName(list))
                return true;
        }
        return false;
    });
}
