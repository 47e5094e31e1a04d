#include "save/OutputNaming.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "save/NamingText.h"
#include "util/UTL_Exception.h"
#include "util/UTL_Messages.h"

#include <QDebug>
#include <QDirIterator>
#include <QFileInfo>
#include <QStringList>
#include <QVariantMap>

namespace {

const int maximumPathLength = 245;

bool isConvertMode(int mode)
{
    return mode == 6 || mode == 11;
}

bool isSnapMode(int mode)
{
    return mode == 7;
}

bool isReportMode(int mode)
{
    return mode == 16 || mode == 17;
}

// The callback type of a family's group directory; sub directory and file name follow it.
int groupType(int mode)
{
    if (isConvertMode(mode))
        return 3;
    if (isSnapMode(mode))
        return 6;
    if (isReportMode(mode))
        return 9;
    return 0;
}

// A key the family doesn't have reads as unset, without asking the host.
QString prefString(APP_Host* host, const QString& key)
{
    QString out;
    return key.isEmpty() ? out : host->getPrefString(out, key, QVariant());
}

bool prefBool(APP_Host* host, const QString& key)
{
    return !key.isEmpty() && host->getPrefBool(key, QVariant());
}

int prefInt(APP_Host* host, const QString& key)
{
    return key.isEmpty() ? 0 : host->getPrefInt(key, QVariant());
}

enum class Digit { Camera, Head, Session };

QString digitKey(int callbackType, Digit digit)
{
    const OutputKeys* keys = nullptr;
    switch (callbackType / 3) {
    case 0:
        keys = &PREF_KEYS_EXPORT;
        break;
    case 1:
        keys = &PREF_KEYS_CONVERT;
        break;
    case 2:
        keys = &PREF_KEYS_SNAP;
        break;
    default:
        break;
    }
    if (keys) {
        switch (callbackType % 3) {
        case 0:
            return digit == Digit::Camera ? keys->groupdiraddnumbercameranodigits
                : digit == Digit::Head    ? keys->groupdiraddnumberheadnodigits
                                          : keys->groupdiraddnumbersessionnodigits;
        case 1:
            return digit == Digit::Camera ? keys->subdiraddnumbercameranodigits
                : digit == Digit::Head    ? keys->subdiraddnumberheadnodigits
                                          : keys->subdiraddnumbersessionnodigits;
        default:
            return digit == Digit::Camera ? keys->filenameaddnumbercameranodigits
                : digit == Digit::Head    ? keys->filenameaddnumberheadnodigits
                                          : keys->filenameaddnumbersessionnodigits;
        }
    }
    // Reports number sessions only.
    if (digit != Digit::Session && callbackType >= 9 && callbackType <= 11)
        return QString();
    switch (callbackType) {
    case 9:
        return PREF_KEYS_REPORT.groupdiraddnumbersessionnodigits;
    case 10:
        return PREF_KEYS_REPORT.subdiraddnumbersessionnodigits;
    case 11:
        return PREF_KEYS_REPORT.filenameaddnumbersessionnodigits;
    case 13:
        return digit == Digit::Camera ? PREF_KEYS_EXPORT.vp_datanameaddnumbercameranodigits
            : digit == Digit::Head    ? PREF_KEYS_EXPORT.vp_datanameaddnumberheadnodigits
                                      : PREF_KEYS_EXPORT.vp_datanameaddnumbersessionnodigits;
    default:
        return QString();
    }
}

int digits(APP_Host* host, int callbackType, Digit digit, int withoutHost)
{
    if (!host)
        return withoutHost;
    return prefInt(host, digitKey(callbackType, digit));
}

int decimalWidth(int number)
{
    return QString::number(number).size();
}

// "a|b?c|d": pieces of exactly two parts, by their first part.
QMap<QString, QString> pathTable(const QString& text)
{
    QMap<QString, QString> table;
    const QStringList entries = text.split(QLatin1Char('?'), Qt::SkipEmptyParts);
    for (const QString& entry : entries) {
        const QStringList parts = entry.split(QLatin1Char('|'), Qt::SkipEmptyParts);
        if (parts.size() == 2)
            table.insert(parts.at(0), parts.at(1));
    }
    return table;
}

// The keys of one directory level, group or sub.
struct LevelKeys
{
    const QString& use;
    const QString& asFileName;
    const QString& name;
    const QString& addNumber;
    const QString& addNumberFormat;
    const QString& addTime;
    const QString& addTimeFormat;
    int callbackType;
    bool group;
};

LevelKeys levelKeys(int mode, bool group)
{
    const OutputKeys& k = outputKeys(mode);
    if (group)
        return { k.groupdir, k.groupdirasfilename, k.groupdirname, k.groupdiraddnumber,
            k.groupdiraddnumberformat, k.groupdiraddtime, k.groupdiraddtimeformat, groupType(mode),
            true };
    return { k.subdir, k.subdirasfilename, k.subdirname, k.subdiraddnumber, k.subdiraddnumberformat,
        k.subdiraddtime, k.subdiraddtimeformat, groupType(mode) + 1, false };
}

// Appends the number text of the first session whose directory is neither on disk nor planned
// by the batch. Each step asks the disk again: it may change between steps.
QString withLevelNumber(
    APP_Host* host, int mode, DOC_Interface* document, const QString& name, const LevelKeys& keys)
{
    const bool fileMode = host->isFileMode();
    const QString format = prefString(host, keys.addNumberFormat);
    int cameraCount = fileMode ? 0 : cameraDigits(host, keys.callbackType);
    int headCount = fileMode ? 0 : headDigits(host, keys.callbackType);
    const int sessionCount = sessionDigits(host, keys.callbackType);
    int device = 0;
    int head = 1;
    if (!fileMode && document) {
        device = document->deviceNumber();
        head = document->headNumber();
        if (format == QLatin1String("auto")) {
            cameraCount = decimalWidth(document->deviceCount());
            DOC_Camera* camera = document->asCamera();
            const int heads = camera ? camera->headCount() : 0;
            headCount = heads > 1 ? decimalWidth(heads) : 0;
        }
    }
    QString base;
    bool baseKnown = false;
    for (int session = 1;; ++session) {
        const QString text
            = numberText(device + 1, head, session, cameraCount, headCount, sessionCount);
        if (text.isEmpty())
            return name;
        QString candidate = appendNamePart(name, text);
        if (sessionCount < 1)
            return candidate;
        if (!baseKnown) {
            base = composeSaveDirectory(host, mode, document);
            baseKnown = true;
        }
        const QString path = base + withTrailingSeparator(candidate);
        if (!QFileInfo::exists(path) && !host->isDirectoryTaken(path))
            return candidate;
        QMessageLogger().warning() << "exists" << path;
    }
}

QString composeLevel(APP_Host* host, int mode, DOC_Interface* document, const QString& fileName,
    const QDateTime& dateTime, const LevelKeys& keys)
{
    if (!prefBool(host, keys.use))
        return QString();
    if (keys.group) {
        QString fixed;
        host->groupDirectoryOverride(fixed);
        if (!fixed.isEmpty())
            return fixed;
    }
    QString name = prefBool(host, keys.asFileName) ? fileName : prefString(host, keys.name);
    if (prefBool(host, keys.addNumber))
        name = withLevelNumber(host, mode, document, name, keys);
    if (prefBool(host, keys.addTime)) {
        const QString time = formatDateTime(dateTime, prefString(host, keys.addTimeFormat));
        if (!time.isEmpty())
            name = appendNamePart(name, time);
    }
    return name;
}

// Any file of the directory whose name starts with the candidate, as a "candidate*" filter
// would match, but without reading brackets in the candidate as wildcards.
bool holdsFileStartingWith(const QString& directory, const QString& candidate)
{
    QDirIterator files(directory.isEmpty() ? QStringLiteral(".") : directory, QDir::Files);
    while (files.hasNext()) {
        files.next();
        if (files.fileName().startsWith(candidate, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

QString testNumberText(APP_Host* host, DOC_Interface* document)
{
    QString result = prefString(host, PREF_KEYS_EXPORT.inf_testno);
    if (!document)
        return result;
    QVariantList items;
    for (const QVariant& item : document->customData(items)) {
        const QVariantMap map = item.toMap();
        if (map.value(QStringLiteral("name")).toString() == QLatin1String("TestNo"))
            return map.value(QStringLiteral("value")).toString();
    }
    return result;
}

DOC_Interface* customSource(APP_Host* host, const OutputKeys& keys, DOC_Interface* document)
{
    if (prefBool(host, keys.filenameusecustomfromtarget)) {
        const int key = prefInt(host, keys.filenameusecustomfromtargetkey);
        if (key >= 0) {
            if (DOC_Interface* target = host->document(key))
                return target;
        }
    }
    return document;
}

QString customName(APP_Host* host, const OutputKeys& keys, DOC_Interface* source)
{
    const bool withUnit = prefBool(host, keys.filenameusecustomincludeunit);
    QString text;
    QVariantList items;
    for (const QVariant& item : source->customData(items)) {
        const QVariantMap map = item.toMap();
        if (map.value(QStringLiteral("usefilename")).toString() != SETTING_VALUE_ON)
            continue;
        if (!text.isEmpty())
            text += QLatin1Char('_');
        text += map.value(QStringLiteral("value")).toString();
        if (withUnit)
            text += map.value(QStringLiteral("unit")).toString();
    }
    return replaceInvalidCharacters(text, QStringLiteral("_"));
}

void refuse(APP_Host* host, const char* text)
{
    throw UTL_Exception(UTL_Messages::translate(host, QString::fromLatin1(text)), 0);
}

} // namespace

const OutputKeys& outputKeys(int mode)
{
    if (isConvertMode(mode))
        return PREF_KEYS_CONVERT;
    if (isSnapMode(mode))
        return PREF_KEYS_SNAP;
    if (isReportMode(mode))
        return PREF_KEYS_REPORT;
    return PREF_KEYS_EXPORT;
}

int cameraDigits(APP_Host* host, int callbackType)
{
    return digits(host, callbackType, Digit::Camera, 3);
}

int headDigits(APP_Host* host, int callbackType)
{
    return digits(host, callbackType, Digit::Head, 3);
}

int sessionDigits(APP_Host* host, int callbackType)
{
    return digits(host, callbackType, Digit::Session, 4);
}

QString composeSaveDirectory(APP_Host* host, int mode, DOC_Interface* document)
{
    const OutputKeys& keys = outputKeys(mode);
    QString result = prefString(host, keys.dir);
    const bool fileMode = host->isFileMode();
    // A document is always given with modes 1 and 2; without one there is no address to map.
    if (!fileMode && (mode == 1 || mode == 2) && document
        && !prefBool(host, PREF_KEYS_EXPORT.singlepath)) {
        const QMap<QString, QString> paths
            = pathTable(prefString(host, PREF_KEYS_EXPORT.multipathlist));
        const QMap<QString, QString> devices
            = pathTable(prefString(host, PREF_KEYS_EXPORT.multipathdevicelist));
        const auto device = devices.constFind(document->ipAddress(true));
        if (device != devices.constEnd() && paths.contains(device.value()))
            result = paths.value(device.value());
    }
    if ((isConvertMode(mode) || fileMode) && prefBool(host, keys.dirasoriginal) && document) {
        QString path;
        document->filePath(path);
        if (!path.isEmpty()) {
            const QString original = QFileInfo(path).absolutePath();
            if (!original.isEmpty())
                result = original;
        }
    }
    return withTrailingSeparator(result);
}

QString composeGroupDirectory(APP_Host* host, int mode, DOC_Interface* document,
    const QString& fileName, const QDateTime& dateTime)
{
    if (mode == 4)
        return QString();
    return composeLevel(host, mode, document, fileName, dateTime, levelKeys(mode, true));
}

QString composeSubDirectory(APP_Host* host, int mode, DOC_Interface* document,
    const QString& fileName, const QDateTime& dateTime)
{
    return composeLevel(host, mode, document, fileName, dateTime, levelKeys(mode, false));
}

QString composeFileName(APP_Host* host, int mode, DOC_Interface* document, int partition,
    bool includeOption, const QDateTime& dateTime)
{
    const OutputKeys& keys = outputKeys(mode);
    if (prefString(host, PREF_KEYS_EXPORT.media) == SETTING_VALUE_FILE && !isSnapMode(mode)
        && !isReportMode(mode) && prefBool(host, PREF_KEY_SAVE_SAVE_INF_FILE)
        && prefBool(
            host, isConvertMode(mode) ? PREF_KEYS_CONVERT.saveinf : PREF_KEYS_EXPORT.saveinf))
        return testNumberText(host, document);

    QString name = prefString(host, keys.filename);
    if (prefBool(host, keys.filenameasoriginal)) {
        name.clear();
        if (document) {
            document->baseName(name);
            if (isConvertMode(mode) && document->holdsCameraMemory() && host->isMemoryMode())
                name = composeFileName(host, 1, document, partition, includeOption, dateTime);
        }
    }
    if (!host->isFileMode() && prefBool(host, keys.filenameaspartitionname)) {
        name.clear();
        if (document)
            document->partitionName(name, partition);
        name = replaceInvalidCharacters(name, QStringLiteral("_"));
    }
    if (prefBool(host, keys.filenameusecustom)) {
        // Without a source document the name stays as it is.
        if (DOC_Interface* source = customSource(host, keys, document))
            name = customName(host, keys, source);
    }
    if (!includeOption)
        return name;

    const int sessionCount = sessionDigits(host, groupType(mode) + 2);
    const bool addTime = prefBool(host, keys.filenameaddtime);
    const QString time = addTime
        ? formatDateTime(dateTime, prefString(host, keys.filenameaddtimeformat))
        : QString();
    QString base;
    bool baseKnown = false;
    for (int session = 1;; ++session) {
        QString candidate = name;
        bool usesSession = false;
        if (document) {
            QString option;
            document->numberOptionText(option, mode, partition, session, &usesSession, &dateTime);
            option = replaceInvalidCharacters(option, QStringLiteral("_"));
            if (!option.isEmpty())
                candidate = appendNamePart(candidate, option);
        }
        if (!time.isEmpty())
            candidate = appendNamePart(candidate, time);
        if (candidate.isEmpty())
            return candidate;
        if (!baseKnown) {
            base = composeSaveDirectory(host, mode, document);
            baseKnown = true;
        }
        QString directory = base;
        const QString group = composeGroupDirectory(host, mode, document, candidate, dateTime);
        if (!group.isEmpty())
            directory += withTrailingSeparator(group);
        const QString sub = composeSubDirectory(host, mode, document, candidate, dateTime);
        if (!sub.isEmpty())
            directory += withTrailingSeparator(sub);
        if (!usesSession || sessionCount < 1)
            return candidate;
        if (!holdsFileStartingWith(directory, candidate)
            && !host->isPathTaken(directory + candidate))
            return candidate;
    }
}

void composeSavePaths(APP_Host* host, int mode, DOC_Interface* document, bool useDirectoryOverride,
    QMap<int, QString>& groupDirs, QMap<int, QString>& dirs, QMap<int, QString>& paths,
    const QDateTime& dateTime, int bracketStyle)
{
    if (!document)
        return;
    const OutputKeys& keys = outputKeys(mode);
    const QString base = composeSaveDirectory(host, mode, document);
    const bool brackets = mode == 16 && bracketStyle == 1;
    const auto rounded = [brackets](QString text) {
        if (brackets)
            text.replace(QLatin1Char('['), QLatin1Char('('))
                .replace(QLatin1Char(']'), QLatin1Char(')'));
        return text;
    };
    QList<int> partitions;
    for (int partition : document->partitions(partitions)) {
        const QString plain
            = rounded(composeFileName(host, mode, document, partition, false, dateTime));
        const QString full
            = rounded(composeFileName(host, mode, document, partition, true, dateTime));

        const QString group = composeGroupDirectory(host, mode, document,
            prefBool(host, keys.groupdirasfilenameincludeoption) ? full : plain, dateTime);
        groupDirs.insert(partition, group);
        QString directory = base;
        if (!group.isEmpty()) {
            host->noteGroupDirectory(group);
            directory = withTrailingSeparator(base) + group;
        }
        const QString sub = rounded(composeSubDirectory(host, mode, document,
            prefBool(host, keys.subdirasfilenameincludeoption) ? full : plain, dateTime));
        if (!sub.isEmpty())
            directory = withTrailingSeparator(directory) + sub;

        if (full.isEmpty() && !prefBool(host, PREF_KEY_SAVE_ENABLE_BLANK_FILENAME) && mode != 9
            && mode != 10 && mode != 11 && mode != 17)
            refuse(host, "Invalid filename.");
        directory = withTrailingSeparator(directory);
        QString path = directory + full;
        if (useDirectoryOverride) {
            QString fixed;
            host->directoryOverride(fixed);
            if (!fixed.isEmpty()) {
                path.replace(directory, fixed, Qt::CaseSensitive);
                directory = fixed;
            }
        }
        dirs.insert(partition, directory);
        paths.insert(partition, path);
        if (mode == 16)
            continue;

        host->noteDirectory(directory);
        host->notePath(path);
        QString longest = path;
        const bool thumbnailFamily = mode == 1 || mode == 2 || mode == 6;
        const OutputKeys& family = mode == 6 ? PREF_KEYS_CONVERT : PREF_KEYS_EXPORT;
        if (thumbnailFamily && prefBool(host, family.savethumbnail)
            && !(prefBool(host, PREF_KEY_SAVE_SAVE_INF_FILE) && prefBool(host, family.saveinf)))
            longest = path + prefString(host, family.savethumbnailaddtextvalue);
        if (path.size() > maximumPathLength || longest.size() > maximumPathLength)
            refuse(host, "The path of the target is too long.");
    }
}
