#include "save/SaveBatch.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "save/OutputNaming.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Exception.h"

namespace {

// The registry's batch ends however the save went: planned names must not outlive it.
template <typename Body> auto inBatch(APP_Host* host, Body&& body)
{
    try {
        auto result = body();
        host->commitPendingNames();
        return result;
    } catch (...) {
        UTL_Barrier::logged("SaveBatch", [host] { host->commitPendingNames(); });
        throw;
    }
}

} // namespace

SaveBatch::SaveBatch(APP_Host* host, const FileDialogKind& kind, const QDateTime& dateTime)
    : m_host(host)
    , m_kind(kind)
    , m_dateTime(dateTime)
{
}

void SaveBatch::add(int docKey, int partition)
{
    for (auto& target : m_targets) {
        if (target.first == docKey) {
            if (!target.second.contains(partition))
                target.second.append(partition);
            return;
        }
    }
    m_targets.append({ docKey, { partition } });
}

SaveBatch::Paths SaveBatch::compose()
{
    if (m_targets.isEmpty())
        throw UTL_Exception(QStringLiteral("Nothing is chosen to save."), 0);
    Paths composed;
    m_host->beginGroupPass();
    for (const auto& target : qAsConst(m_targets)) {
        DOC_Interface* document = m_host->document(target.first);
        if (!document)
            throw UTL_Exception(
                QStringLiteral("The document %1 is no longer open.").arg(target.first), 0);
        QMap<int, QString> groupDirs;
        QMap<int, QString> dirs;
        QMap<int, QString> paths;
        composeSavePaths(
            m_host, m_kind.mode(), document, true, groupDirs, dirs, paths, m_dateTime, 0);
        QMap<int, QString> chosen;
        for (int partition : target.second) {
            if (!paths.contains(partition))
                throw UTL_Exception(QStringLiteral("The document %1 has no partition %2.")
                                        .arg(target.first)
                                        .arg(partition),
                    0);
            chosen.insert(partition, paths.value(partition));
        }
        composed.append({ target.first, chosen });
    }
    return composed;
}

APP_SaveRequest SaveBatch::request()
{
    const OutputKeys& keys = m_kind.keys();
    APP_SaveRequest request;
    request.mode = m_kind.mode();
    QString text;
    request.format
        = m_host->getPrefString(text, m_kind.formatKey(), QStringLiteral("BMP")).toUpper();
    if (!m_kind.codecKey().isEmpty())
        request.codec = m_host->getPrefString(text, m_kind.codecKey(), QStringLiteral("RAW"));
    request.skipFrames = qMax(1, m_host->getPrefInt(m_kind.skipKeys().skipsaveframe, 1));
    request.saveInfo = !keys.saveinf.isEmpty() && m_host->getPrefBool(keys.saveinf, QVariant());
    request.saveThumbnail
        = !keys.savethumbnail.isEmpty() && m_host->getPrefBool(keys.savethumbnail, QVariant());
    if (request.saveThumbnail)
        m_host->getPrefString(request.thumbnailSuffix, keys.savethumbnailaddtextvalue, QVariant());
    return request;
}

SaveBatch::Paths SaveBatch::run()
{
    return inBatch(m_host, [this] {
        const Paths composed = compose();
        const APP_SaveRequest settings = request();
        for (const auto& document : composed)
            m_host->saveDocument(document.first, document.second, settings);
        return composed;
    });
}
