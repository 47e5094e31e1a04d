#include "save/FileDialogKind.h"

#include "plugin/SharedKeys.h"

namespace {

int modeOf(const QString& name)
{
    if (name == QLatin1String(FileDialogKind::convert)
        || name == QLatin1String(FileDialogKind::convertParameters))
        return 6;
    if (name == QLatin1String(FileDialogKind::report))
        return 16;
    if (name == QLatin1String(FileDialogKind::snapshot))
        return 7;
    return 1;
}

} // namespace

FileDialogKind::FileDialogKind(const QString& name)
    : m_name(name)
    , m_mode(modeOf(name))
{
}

int FileDialogKind::previewMode() const
{
    if (isConvert())
        return 11;
    if (isOpen())
        return 9;
    if (isReport())
        return 17;
    return 10;
}

const OutputKeys& FileDialogKind::keys() const
{
    if (isConvert())
        return PREF_KEYS_CONVERT;
    if (isReport())
        return PREF_KEYS_REPORT;
    if (isSnapshot())
        return PREF_KEYS_SNAP;
    return PREF_KEYS_EXPORT;
}

const OutputKeys& FileDialogKind::skipKeys() const
{
    return m_name == QLatin1String(report) ? PREF_KEYS_REPORT : PREF_KEYS_EXPORT;
}

QString FileDialogKind::formatKey() const
{
    if (isConvert())
        return PREF_KEY_CONVERT_FILE_FORMAT;
    if (isReport())
        return PREF_KEY_REPORT_FILE_FORMAT;
    if (isSnapshot())
        return PREF_KEY_SNAP_FILE_FORMAT;
    return PREF_KEY_EXPORT_FILE_FORMAT;
}

QString FileDialogKind::codecKey() const
{
    if (isConvert())
        return PREF_KEY_CONVERT_CODEC;
    if (isReport() || isSnapshot())
        return QString();
    return PREF_KEY_EXPORT_CODEC;
}
