#include "dialogs/CustomInfoFile.h"

#include <QBuffer>
#include <QDomDocument>
#include <QTextStream>
#include <QVariantMap>
#include <QXmlStreamReader>

namespace {

// The text of the element the reader stands on, to its end: every piece of character data of
// its descendants, without the blank pieces between elements.
QString elementText(QXmlStreamReader& reader)
{
    QString text;
    for (int depth = 1; depth > 0 && !reader.atEnd();) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            ++depth;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::Characters:
            if (reader.isCDATA() || !reader.isWhitespace())
                text += reader.text();
            break;
        default:
            break;
        }
    }
    return text;
}

void appendElement(
    QDomDocument& document, QDomElement& parent, const QString& name, const QString& text)
{
    QDomElement element = document.createElement(name);
    element.appendChild(document.createTextNode(text));
    parent.appendChild(element);
}

} // namespace

CustomInfoFile::TagTable CustomInfoFile::jobTagTable()
{
    return { { QStringLiteral("Sf_TestCode"), QStringLiteral("TestNo") },
        { QStringLiteral("Cm_TestDate"), QStringLiteral("Date") },
        { QStringLiteral("Cm_ProjectCode"), QStringLiteral("Project") },
        { QStringLiteral("Cm_PlannerName"), QStringLiteral("Engineer") },
        { QStringLiteral("Cm_TestPerson"), QStringLiteral("Technician") },
        { QStringLiteral("Cm_Comment"), QStringLiteral("Comments") } };
}

QByteArray CustomInfoFile::toXml(const QString& versionText, const QVariantList& customs)
{
    QDomDocument document;
    document.appendChild(document.createProcessingInstruction(QStringLiteral("xml"),
        QStringLiteral("version=\"1.0\" encoding=\"utf-8\" standalone=\"no\"")));
    QDomElement root = document.createElement(QStringLiteral("custom"));
    document.appendChild(root);
    appendElement(document, root, QStringLiteral("version"), versionText);
    QDomElement items = document.createElement(QStringLiteral("customItems"));
    root.appendChild(items);
    for (const QVariant& custom : customs) {
        const QVariantMap map = custom.toMap();
        QDomElement item = document.createElement(QStringLiteral("customItem"));
        appendElement(
            document, item, QStringLiteral("name"), map.value(QStringLiteral("name")).toString());
        appendElement(
            document, item, QStringLiteral("value"), map.value(QStringLiteral("value")).toString());
        appendElement(
            document, item, QStringLiteral("unit"), map.value(QStringLiteral("unit")).toString());
        appendElement(document, item, QStringLiteral("display"),
            map.value(QStringLiteral("selected")).toBool() ? QStringLiteral("true")
                                                           : QStringLiteral("false"));
        appendElement(document, item, QStringLiteral("usefilename"), QStringLiteral("true"));
        items.appendChild(item);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    // The encoding comes from the processing instruction.
    document.save(stream, 2, QDomNode::EncodingFromDocument);
    stream.flush();
    return buffer.data();
}

QVariantList CustomInfoFile::read(const QByteArray& bytes, const TagTable& tags)
{
    QVariantList list;
    if (bytes.size() > maximumFileSize)
        return list;
    QXmlStreamReader reader(bytes);
    // Names are taken as written, prefixes included.
    reader.setNamespaceProcessing(false);
    if (reader.readNextStartElement())
        loadCustomInfo(reader, list, tags);
    while (!reader.atEnd())
        reader.readNext();
    // A file that doesn't parse gives no items, not those before the fault.
    if (reader.hasError())
        list.clear();
    return list;
}

void CustomInfoFile::loadCustomInfo(
    QXmlStreamReader& root, QVariantList& list, const TagTable& tags)
{
    if (root.qualifiedName().toString().toLower() == QLatin1String("job"))
        loadCustomInfoJob(root, list, tags);
    else
        loadCustomInfoCustom(root, list, tags);
}

void CustomInfoFile::loadCustomInfoCustom(
    QXmlStreamReader& root, QVariantList& list, const TagTable& tags)
{
    while (root.readNextStartElement()) {
        if (root.qualifiedName() != QLatin1String("customItems")) {
            root.skipCurrentElement();
            continue;
        }
        while (root.readNextStartElement()) {
            if (root.qualifiedName() != QLatin1String("customItem")) {
                root.skipCurrentElement();
                continue;
            }
            QVariantMap map;
            while (root.readNextStartElement()) {
                const QString name = root.qualifiedName().toString().toLower();
                const QString text = elementText(root);
                if (name == QLatin1String("name"))
                    map.insert(QStringLiteral("name"), tags.value(text, text));
                else if (name == QLatin1String("value"))
                    map.insert(QStringLiteral("value"), text);
                else if (name == QLatin1String("unit"))
                    map.insert(QStringLiteral("unit"), text);
                else if (name == QLatin1String("display"))
                    map.insert(QStringLiteral("selected"), text == QLatin1String("true"));
            }
            if (map.contains(QStringLiteral("name")))
                list.append(map);
        }
    }
}

void CustomInfoFile::loadCustomInfoJob(
    QXmlStreamReader& root, QVariantList& list, const TagTable& tags)
{
    while (root.readNextStartElement()) {
        const QString tag = root.qualifiedName().toString();
        const QXmlStreamAttributes attributes = root.attributes();
        const QString text = elementText(root);
        if (text.isEmpty())
            continue;
        QString unit;
        QString display = QStringLiteral("true");
        if (attributes.hasAttribute(QStringLiteral("unit")))
            unit = attributes.value(QStringLiteral("unit")).toString();
        if (attributes.hasAttribute(QStringLiteral("display")))
            display = attributes.value(QStringLiteral("display")).toString();
        list.append(QVariantMap { { QStringLiteral("name"), tags.value(tag, tag) },
            { QStringLiteral("value"), text }, { QStringLiteral("unit"), unit },
            { QStringLiteral("selected"), display == QLatin1String("true") } });
    }
}
