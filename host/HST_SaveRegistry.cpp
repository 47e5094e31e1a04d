#include "host/HST_SaveRegistry.h"

#include "host/HST_Recorder.h"

namespace {

QString asDirectory(const QString& dir)
{
    return dir.endsWith(QLatin1Char('/')) ? dir : dir + QLatin1Char('/');
}

} // namespace

HST_SaveRegistry::HST_SaveRegistry(
    HST_Recorder* recorder, const QString& fixedGroupDirectory, const QString& fixedDirectory)
    : m_recorder(recorder)
    , m_fixedGroupDirectory(fixedGroupDirectory)
    , m_fixedDirectory(fixedDirectory)
{
}

void HST_SaveRegistry::record(const char* op, const QString& argument)
{
    if (!m_recorder)
        return;
    QJsonObject fields { { QStringLiteral("op"), QLatin1String(op) } };
    if (!argument.isNull())
        fields.insert(QStringLiteral("text"), argument);
    m_recorder->record(QStringLiteral("saveRegistry"), fields);
}

void HST_SaveRegistry::commitPendingNames()
{
    // The batch is over: what it planned is on disk by now, or was only looked at.
    m_groupDirectory.clear();
    m_directories.clear();
    m_paths.clear();
    record("commitPendingNames");
}

void HST_SaveRegistry::beginNamePass()
{
    m_directories.clear();
    m_paths.clear();
    record("beginNamePass");
}

void HST_SaveRegistry::beginGroupPass()
{
    m_groupDirectory.clear();
    record("beginGroupPass");
}

void HST_SaveRegistry::noteGroupDirectory(const QString& groupDir)
{
    if (m_groupDirectory.isEmpty())
        m_groupDirectory = groupDir;
    record("noteGroupDirectory", groupDir);
}

void HST_SaveRegistry::noteDirectory(const QString& dir)
{
    m_directories.insert(asDirectory(dir));
    record("noteDirectory", dir);
}

void HST_SaveRegistry::notePath(const QString& path)
{
    m_paths.insert(path);
    record("notePath", path);
}

bool HST_SaveRegistry::isDirectoryTaken(const QString& dir) const
{
    // A directory is taken when the batch plans it or anything inside it.
    const QString wanted = asDirectory(dir);
    for (const QString& planned : m_directories) {
        if (planned.startsWith(wanted))
            return true;
    }
    return false;
}

bool HST_SaveRegistry::isPathTaken(const QString& path) const
{
    // The plug-in asks with a name stem, as it asks the disk for "stem*".
    for (const QString& planned : m_paths) {
        if (planned.startsWith(path))
            return true;
    }
    return false;
}

QString HST_SaveRegistry::groupDirectoryOverride() const
{
    return m_fixedGroupDirectory.isEmpty() ? m_groupDirectory : m_fixedGroupDirectory;
}
