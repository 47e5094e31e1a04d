#include "dialogs/JS_Mediator_CustomInfoDialog.h"

#include "dialogs/CustomInfoFile.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/DOC_ReadFileException.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "web/OperationEventHandler.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVariantMap>

namespace {

const int displayCallbackType = 15;

QString compact(const QJsonDocument& document)
{
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

// A page's list in the trace: the list as compact JSON.
QString listParameter(const char* name, const QVariantList& list)
{
    return FunctionLogGuard::parameter(
        QLatin1String(name), compact(QJsonDocument::fromVariant(list)));
}

QString text(const QVariantMap& map, const char* key)
{
    return map.value(QLatin1String(key)).toString();
}

bool isOn(const QVariantMap& map, const char* key)
{
    return text(map, key) == SETTING_VALUE_ON;
}

QVariantMap firstNamed(const QVariantList& items, const QString& name)
{
    for (const QVariant& item : items) {
        const QVariantMap map = item.toMap();
        if (text(map, "name") == name)
            return map;
    }
    return QVariantMap();
}

} // namespace

JS_Mediator_CustomInfoDialog::JS_Mediator_CustomInfoDialog(
    APP_Host* host, QWidget* parent, bool forTemporary)
    : JS_Mediator_Dialog(host, QStringLiteral("CustomInfoDialog"))
    , m_parent(parent)
    , m_forTemporary(forTemporary)
{
    for (int key : documentKeyList()) {
        if (DOC_Interface* document = m_host->document(key)) {
            QVariantList items;
            m_originalCustomData.insert(QString::number(key), document->customData(items));
        }
    }
}

QList<int> JS_Mediator_CustomInfoDialog::documentKeyList()
{
    QList<int> keys;
    return m_forTemporary ? m_host->temporaryDocumentKeys(keys) : m_host->documentKeys(true);
}

QList<DOC_Interface*> JS_Mediator_CustomInfoDialog::targetDocuments(const QVariantList& targets)
{
    QList<DOC_Interface*> documents;
    for (const QVariant& target : targets) {
        if (DOC_Interface* document = m_host->document(int(target.toUInt())))
            documents.append(document);
    }
    return documents;
}

template <typename Body>
void JS_Mediator_CustomInfoDialog::changeDocuments(
    const char* name, const QString& parameters, Body&& body)
{
    OperationEventHandler guard(this, QLatin1String(name), parameters);
    UTL_Barrier::reported(m_host, [&] {
        body();
        m_host->documentsChanged(true);
    });
}

void JS_Mediator_CustomInfoDialog::cancel()
{
    changeDocuments("JS_Mediator_CustomInfoDialog::cancel", QString(), [this] {
        for (auto it = m_originalCustomData.begin(); it != m_originalCustomData.end(); ++it) {
            DOC_Interface* document = m_host->document(int(it.key().toUInt()));
            if (!document)
                continue;
            document->clearCustomData();
            for (const QVariant& item : it.value().toList()) {
                const QVariantMap map = item.toMap();
                document->addCustomData(text(map, "name"), text(map, "value"), text(map, "unit"),
                    isOn(map, "display"), isOn(map, "usefilename"));
            }
        }
    });
}

QString JS_Mediator_CustomInfoDialog::getDeviceInfo()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_CustomInfoDialog::getDeviceInfo"), QString());
    return UTL_Barrier::reported(m_host, QString(), [this] {
        const QList<int> keys = documentKeyList();
        int current = INVALID_DOCKEY;
        if (!m_forTemporary)
            current = m_host->currentKey();
        else if (!keys.isEmpty())
            current = keys.first();
        QJsonArray records;
        int initSelect = 0;
        for (int key : keys) {
            DOC_Interface* document = m_host->document(key);
            if (!document)
                continue;
            const int recid = records.size() + 1;
            QString name;
            records.append(QJsonObject { { QStringLiteral("recid"), recid },
                { QStringLiteral("name"), document->deviceName(name) },
                { QStringLiteral("dockey"), QString::number(key) } });
            if (key == current)
                initSelect = recid;
        }
        return compact(QJsonDocument(QJsonObject { { QStringLiteral("Records"), records },
            { QStringLiteral("InitSelect"), initSelect } }));
    });
}

QString JS_Mediator_CustomInfoDialog::getCustomInfo(int dockey)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_CustomInfoDialog::getCustomInfo"),
        FunctionLogGuard::parameter(QStringLiteral("dockey"), dockey));
    return UTL_Barrier::reported(m_host, QString(), [&] {
        QJsonArray rows;
        if (DOC_Interface* document = m_host->document(dockey)) {
            const char* flag = m_callbackType == displayCallbackType ? "display" : "usefilename";
            QVariantList items;
            for (const QVariant& item : document->customData(items)) {
                const QVariantMap map = item.toMap();
                rows.append(QJsonObject { { QStringLiteral("recid"), rows.size() + 1 },
                    { QStringLiteral("selected"), isOn(map, flag) },
                    { QStringLiteral("name"), text(map, "name") },
                    { QStringLiteral("value"), text(map, "value") },
                    { QStringLiteral("unit"), text(map, "unit") } });
            }
        }
        return compact(QJsonDocument(rows));
    });
}

void JS_Mediator_CustomInfoDialog::save(const QVariantList& customs)
{
    SYNC_TRACE(
        QStringLiteral("JS_Mediator_CustomInfoDialog::save"), listParameter("customs", customs));
    UTL_Barrier::reported(m_host, [&] {
        QString start;
        m_host->getPrefString(start, PREF_KEY_XML_DIR, QVariant());
        const QString path = QFileDialog::getSaveFileName(m_parent, QString(), start,
            QStringLiteral("xml (*.xml)"), nullptr, QFileDialog::DontConfirmOverwrite);
        if (path.isEmpty())
            return;
        m_host->setPrefString(PREF_KEY_XML_DIR, QFileInfo(path).absolutePath());
        saveToFile(customs, path);
    });
}

void JS_Mediator_CustomInfoDialog::saveToFile(const QVariantList& customs, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    QString version;
    file.write(CustomInfoFile::toXml(m_host->versionText(version), customs));
}

void JS_Mediator_CustomInfoDialog::load(const QVariantList& targets)
{
    changeDocuments("JS_Mediator_CustomInfoDialog::load", listParameter("targets", targets), [&] {
        QString start;
        m_host->getPrefString(start, PREF_KEY_XML_DIR, QVariant());
        const QString path = QFileDialog::getOpenFileName(
            m_parent, QString(), start, QStringLiteral("xml (*.xml *.XML)"));
        if (path.isEmpty())
            return;
        m_host->setPrefString(PREF_KEY_XML_DIR, QFileInfo(path).absolutePath());
        loadFromFile(targets, path);
    });
}

void JS_Mediator_CustomInfoDialog::loadFromFile(const QVariantList& targets, const QString& path)
{
    QVariantList list;
    QFile file(path);
    // One byte over the limit is enough to refuse the file.
    if (file.open(QIODevice::ReadOnly))
        list = CustomInfoFile::read(
            file.read(CustomInfoFile::maximumFileSize + 1), CustomInfoFile::jobTagTable());
    if (list.isEmpty())
        throw DOC_ReadFileException(path);
    restoreTargets(targets, list);
}

void JS_Mediator_CustomInfoDialog::deleteCustomData(
    const QVariantList& targets, const QVariantList& customs)
{
    changeDocuments("JS_Mediator_CustomInfoDialog::deleteCustomData", QString(), [&] {
        for (DOC_Interface* document : targetDocuments(targets)) {
            for (const QVariant& custom : customs)
                document->removeCustomData(text(custom.toMap(), "name"));
        }
    });
}

void JS_Mediator_CustomInfoDialog::restoreCustomData(
    const QVariantList& targets, const QVariantList& customs)
{
    changeDocuments("JS_Mediator_CustomInfoDialog::restoreCustomData", QString(),
        [&] { restoreTargets(targets, customs); });
}

void JS_Mediator_CustomInfoDialog::restoreTargets(
    const QVariantList& targets, const QVariantList& customs)
{
    for (DOC_Interface* document : targetDocuments(targets)) {
        document->clearCustomData();
        for (const QVariant& custom : customs) {
            const QVariantMap map = custom.toMap();
            // The comment travels in the same files as an item of this name.
            if (text(map, "name") == QLatin1String("Comments"))
                document->setComment(text(map, "value"));
            else
                document->addCustomData(text(map, "name"), text(map, "value"), text(map, "unit"),
                    map.value(QStringLiteral("selected")).toBool(), true);
        }
    }
}

void JS_Mediator_CustomInfoDialog::editCustomData(
    const QVariantList& targets, const QVariant& custom)
{
    changeDocuments("JS_Mediator_CustomInfoDialog::editCustomData", QString(), [&] {
        const QVariantMap edit = custom.toMap();
        const QString oldName = text(edit, "oldname");
        const QString name = text(edit, "name");
        for (DOC_Interface* document : targetDocuments(targets)) {
            QVariantList items;
            const QVariantMap old = firstNamed(document->customData(items), oldName);
            document->renameCustomData(oldName, name);
            document->setCustomData(name, text(edit, "value"), text(edit, "unit"),
                isOn(old, "display"), isOn(old, "usefilename"));
        }
    });
}

void JS_Mediator_CustomInfoDialog::addCustomData(
    const QVariantList& targets, const QVariant& custom)
{
    changeDocuments("JS_Mediator_CustomInfoDialog::addCustomData", QString(), [&] {
        const QVariantMap map = custom.toMap();
        for (DOC_Interface* document : targetDocuments(targets))
            document->addCustomData(
                text(map, "name"), text(map, "value"), text(map, "unit"), true, true);
    });
}

void JS_Mediator_CustomInfoDialog::enableCustomData(
    const QVariantList& targets, const QVariantList& customs)
{
    changeDocuments("JS_Mediator_CustomInfoDialog::enableCustomData", QString(), [&] {
        const bool display = m_callbackType == displayCallbackType;
        for (DOC_Interface* document : targetDocuments(targets)) {
            QVariantList items;
            document->customData(items);
            for (const QVariant& custom : customs) {
                const QVariantMap entry = custom.toMap();
                const QVariantMap stored = firstNamed(items, text(entry, "name"));
                const bool selected = entry.value(QStringLiteral("selected")).toBool();
                document->setCustomData(text(stored, "name"), text(stored, "value"),
                    text(stored, "unit"), display ? selected : isOn(stored, "display"),
                    display ? isOn(stored, "usefilename") : selected);
            }
        }
    });
}

void JS_Mediator_CustomInfoDialog::setSelectedDeviceItems(const QList<int>& ids)
{
    QStringList idTexts;
    for (int id : ids)
        idTexts.append(QString::number(id));
    SYNC_TRACE(QStringLiteral("JS_Mediator_CustomInfoDialog::setSelectedDeviceItems"),
        FunctionLogGuard::parameter(QStringLiteral("ids"), idTexts.join(QLatin1Char(','))));
    const QList<int> old = m_selectedRecords;
    if (ids.isEmpty()) {
        m_currentRecord = 0;
    } else if (ids.size() == 1) {
        m_currentRecord = ids.first();
    } else if (ids.size() > old.size()) {
        // The selection grew: the last record that is new becomes current.
        for (int id : ids) {
            if (!old.contains(id))
                m_currentRecord = id;
        }
    } else {
        int left = -1;
        for (int i = 0; i < old.size(); ++i) {
            if (old.at(i) == m_currentRecord) {
                if (!ids.contains(old.at(i)))
                    left = i;
                break;
            }
        }
        if (left >= 0) {
            // The current record left: the next one behind it that is still selected, wrapping
            // once round. When none of the old ones is, the first of the new selection.
            m_currentRecord = ids.first();
            for (int step = 1; step <= old.size(); ++step) {
                const int candidate = old.at((left + step) % old.size());
                if (ids.contains(candidate)) {
                    m_currentRecord = candidate;
                    break;
                }
            }
        }
    }
    m_selectedRecords = ids;
}

int JS_Mediator_CustomInfoDialog::getCurrentDeviceRecord()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_CustomInfoDialog::getCurrentDeviceRecord"), QString());
    return m_currentRecord;
}

int JS_Mediator_CustomInfoDialog::getCallbackType()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_CustomInfoDialog::getCallbackType"), QString());
    return m_callbackType;
}
