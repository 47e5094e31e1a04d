#include "save/FileDialogRecords.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/UTL_DocumentOrder.h"

namespace {

// Taken over only when the document gives them.
const char* const reportFields[]
    = { "TestNo", "Project", "TestType", "TestTypeNo", "Date", "Engineer", "Technician" };

QString text(const QVariantMap& map, const char* key)
{
    return map.value(QLatin1String(key)).toString();
}

bool hasFrames(const QVariantMap& row)
{
    return row.value(QStringLiteral("totalframesplain")).toULongLong() != 0;
}

bool isMedia(DOC_Interface* document)
{
    return document->isOnSd() || document->isOnStorageUnit() || document->isOnCFast();
}

// Appends one record straight to the list's text: a table of a thousand rows is built at
// every refresh of the page.
class Record
{
public:
    explicit Record(QString& out)
        : m_out(out)
    {
        m_out += QLatin1Char('{');
    }
    ~Record() { m_out += QLatin1Char('}'); }
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    void add(QLatin1String key, const QString& value)
    {
        name(key);
        quote(value);
    }
    void add(const QString& key, const QString& value)
    {
        name(key);
        quote(value);
    }
    void add(QLatin1String key, int value)
    {
        name(key);
        m_out += QString::number(value);
    }
    void add(QLatin1String key, bool value)
    {
        name(key);
        m_out += value ? QLatin1String("true") : QLatin1String("false");
    }

private:
    template <typename Key> void name(const Key& key)
    {
        if (m_fields++ > 0)
            m_out += QLatin1Char(',');
        m_out += QLatin1Char('"');
        m_out += key;
        m_out += QLatin1String("\":");
    }
    void quote(const QString& value)
    {
        m_out += QLatin1Char('"');
        for (const QChar c : value) {
            const ushort u = c.unicode();
            if (u == '"' || u == '\\')
                m_out += QLatin1Char('\\');
            if (u < 0x20)
                m_out += QStringLiteral("\\u%1").arg(u, 4, 16, QLatin1Char('0'));
            else
                m_out += c;
        }
        m_out += QLatin1Char('"');
    }

    QString& m_out;
    int m_fields = 0;
};

QList<QVariantMap> partitionRows(const QVariantMap& top)
{
    QList<QVariantMap> rows;
    for (const QVariant& row : top.value(QStringLiteral("partitions")).toList())
        rows.append(row.toMap());
    return rows;
}

// The fields every record takes from the document's map.
void addTopFields(Record& record, const QVariantMap& top, bool cameraForm)
{
    if (cameraForm) {
        for (const char* key : { "cameraname", "ipaddress", "slotno" })
            record.add(QLatin1String(key), text(top, key));
    }
    for (const char* key : { "devicename", "date", "time", "shutterspeed", "recordrate" })
        record.add(QLatin1String(key), text(top, key));
    for (const char* key : reportFields) {
        if (top.contains(QLatin1String(key)))
            record.add(QLatin1String(key), text(top, key));
    }
    for (int n = 1;; ++n) {
        const QString key = QStringLiteral("Custom_%1").arg(n);
        const auto found = top.constFind(key);
        if (found == top.constEnd())
            break;
        record.add(key, found.value().toString());
    }
    record.add(QLatin1String("Comments"), text(top, "Comments"));
}

void addRowFields(Record& record, const QVariantMap& row, int partitionNo, bool cameraForm)
{
    record.add(QLatin1String("partitionno"), QString::number(partitionNo));
    for (const char* key : { "currentpartition", "totalframes", "resolution" })
        record.add(QLatin1String(key), text(row, key));
    record.add(QLatin1String("saveframes"), text(row, "exportframes"));
    if (cameraForm) {
        record.add(QLatin1String("capacity"), text(row, "capacity"));
        record.add(QLatin1String("capacitylabel"), text(row, "capacitylabel"));
    }
}

} // namespace

FileDialogRecords::FileDialogRecords(APP_Host* host, const FileDialogKind& kind)
    : m_host(host)
    , m_kind(kind)
{
}

void FileDialogRecords::setSavedCheck(bool done, const Pairs& saved)
{
    m_savedCheckDone = done;
    m_saved.clear();
    for (const auto& pair : saved)
        m_saved.insert(pair);
}

QList<int> FileDialogRecords::keysToList(bool temporary)
{
    QList<int> keys;
    if (temporary)
        m_host->temporaryDocumentKeys(keys);
    else if (m_host->isCameraMode())
        keys = m_host->documentKeys(true);
    else
        m_host->openedDocumentKeys(keys, true, false);
    if (temporary && !keys.isEmpty()) {
        // Recordings keep the order of their medium; files go by name.
        DOC_Interface* first = m_host->document(keys.first());
        if (first && !isMedia(first))
            keys = sortDocumentKeys(m_host, 1, keys, false);
    }
    return keys;
}

QString FileDialogRecords::list(bool temporary)
{
    const bool saveInfo = m_host->getPrefBool(
        m_kind.isConvert() ? PREF_KEYS_CONVERT.saveinfo : PREF_KEYS_EXPORT.saveinfo, QVariant());
    const bool saveCorrect
        = !m_kind.isConvert() && m_host->getPrefBool(PREF_KEYS_EXPORT.savecorrect, QVariant());
    const bool saveScale = !m_kind.isConvert() && !m_kind.isLayoutSave()
        && m_host->getPrefBool(PREF_KEYS_EXPORT.savescale, QVariant());

    m_recid = 0;
    m_text = QStringLiteral("[");
    m_documentKeys.clear();
    const bool fileList = m_host->saveTargetKind() == 2;
    Flags flags;
    if (!fileList) {
        flags.liveMode = m_host->isCameraMode();
        flags.loopSave = m_host->isLoopSaveMode() && m_host->isLoopSaveActive();
        flags.loopRecord = m_host->getPrefBool(PREF_KEY_RECORDING_LOOP_RECORD, QVariant());
        flags.autoIncrement
            = m_host->getPrefBool(PREF_KEY_RECORDING_AUTO_INCREMENT_PARTITION, QVariant());
        flags.stopAfterLast = m_host->getPrefBool(
            PREF_KEY_RECORDING_STOP_RECORDING_AFTER_LAST_PARTITION, QVariant());
    }
    for (int key : keysToList(temporary)) {
        DOC_Interface* document = m_host->document(key);
        if (!document)
            continue;
        document->prepareSaveRange();
        if (!fileList && !document->isSavable())
            continue;
        document->setSaveInfo(saveInfo);
        document->setSaveCorrect(saveCorrect);
        document->setSaveScale(saveScale);
        const QVariantMap top = document->documentDescription(m_kind.isConvert());
        const int before = m_recid;
        if (fileList)
            fileRows(document, top);
        else
            cameraRows(document, top, flags);
        if (m_recid != before)
            m_documentKeys.append(key);
    }
    m_text += QLatin1Char(']');
    return m_text;
}

void FileDialogRecords::fileRows(DOC_Interface* document, const QVariantMap& top)
{
    const bool multiskip = document->isMultiSkipA() || document->isMultiSkipB();
    const bool media = isMedia(document);
    const QString serialNo = text(top, "serialno");
    const QString dataNo = text(top, "datano");
    const bool red = m_savedCheckDone
        && (serialNo.isEmpty() || dataNo.isEmpty() || !m_saved.contains({ serialNo, dataNo }));
    const QList<QVariantMap> rows = partitionRows(top);
    for (int i = 0; i < rows.size(); ++i) {
        const QVariantMap& row = rows.at(i);
        // An empty partition takes its number but no row.
        if (!hasFrames(row))
            continue;
        if (m_recid > 0)
            m_text += QLatin1Char(',');
        Record record(m_text);
        record.add(QLatin1String("recid"), ++m_recid);
        record.add(QLatin1String("multiskip"), multiskip);
        record.add(QLatin1String("dockey"), text(top, "dockey"));
        record.add(QLatin1String("selected"), text(top, "selected"));
        if (media) {
            record.add(QLatin1String("dataname"), text(top, "name"));
            record.add(QLatin1String("filename"), text(top, "name"));
            record.add(QLatin1String("filepath"), text(top, "filepath"));
            record.add(QLatin1String("path"), text(top, "drivename"));
            record.add(QLatin1String("serialno"), serialNo);
            record.add(QLatin1String("datano"), dataNo);
            if (red)
                record.add(QLatin1String("style"), QStringLiteral("background-color:red;"));
        } else {
            record.add(QLatin1String("filename"),
                row.contains(QStringLiteral("filename")) ? text(row, "filename")
                                                         : text(top, "filename"));
            record.add(QLatin1String("filepath"), text(top, "filepath"));
            record.add(QLatin1String("path"), text(top, "filepath"));
        }
        addTopFields(record, top, false);
        addRowFields(record, row, i + 1, false);
    }
}

void FileDialogRecords::cameraRows(
    DOC_Interface* document, const QVariantMap& top, const Flags& flags)
{
    const bool multiskip = document->isMultiSkipA();
    const int current = document->currentPartition(true);
    const bool documentSelected = !flags.loopSave && document->isSelected();
    const QList<QVariantMap> rows = partitionRows(top);
    for (int i = 0; i < rows.size(); ++i) {
        const QVariantMap& row = rows.at(i);
        const int number = i + 1;
        const bool selected
            = flags.loopSave ? hasFrames(row) : number == current && documentSelected;
        bool passes = true;
        if (flags.liveMode) {
            passes = flags.loopRecord && flags.autoIncrement
                ? !flags.stopAfterLast || number >= current
                : number == current;
        }
        if (!passes || !hasFrames(row))
            continue;
        if (m_recid > 0)
            m_text += QLatin1Char(',');
        Record record(m_text);
        record.add(QLatin1String("recid"), ++m_recid);
        record.add(QLatin1String("multiskip"), multiskip);
        record.add(QLatin1String("dockey"), text(top, "dockey"));
        record.add(
            QLatin1String("selected"), selected ? QStringLiteral("true") : QStringLiteral("false"));
        record.add(QLatin1String("filename"),
            row.contains(QStringLiteral("filename")) ? text(row, "filename")
                                                     : text(top, "filename"));
        record.add(QLatin1String("filepath"), text(top, "filepath"));
        record.add(QLatin1String("path"), text(top, "filepath"));
        addTopFields(record, top, true);
        addRowFields(record, row, number, true);
    }
}
