#include "dialogs/CustomInfoFile.h"

#include <QBuffer>
#include <QDomDocument>
#include <QTextStream>
#include <QVariantMap>
#include <QXmlStreamReader>

namespace {

// Well-formed and no deeper than a custom or job file may be. A document that fails to parse
// keeps what was read before the error, so the check comes first.
bool isReadable(const QByteArray& bytes)
{
    QXmlStreamReader reader(bytes);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > CustomInfoFile::maximumDepth)
                return false;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    return !reader.hasError();
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
    if (bytes.size() > maximumFileSize || !isReadable(bytes))
        return list;
    QDomDocument document;
    document.setContent(bytes);
    loadCustomInfo(document.documentElement(), list, tags);
    return list;
}

void CustomInfoFile::loadCustomInfo(
    const QDomElement& root, QVariantList& list, const TagTable& tags)
{
    if (root.tagName().toLower() == QLatin1String("job"))
        loadCustomInfoJob(root, list, tags);
    else
        loadCustomInfoCustom(root, list, tags);
}

void CustomInfoFile::loadCustomInfoCustom(
    const QDomElement& root, QVariantList& list, const TagTable& tags)
{
    for (QDomElement items = root.firstChildElement(QStringLiteral("customItems")); !items.isNull();
         items = items.nextSiblingElement(QStringLiteral("customItems"))) {
        for (QDomElement item = items.firstChildElement(QStringLiteral("customItem"));
             !item.isNull(); item = item.nextSiblingElement(QStringLiteral("customItem"))) {
            QVariantMap map;
            for (QDomElement field = item.firstChildElement(); !field.isNull();
                 field = field.nextSiblingElement()) {
                const QString name = field.tagName().toLower();
                const QString text = field.text();
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
    const QDomElement& root, QVariantList& list, const TagTable& tags)
{
    for (QDomElement element = root.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const QString text = element.text();
        if (text.isEmpty())
            continue;
        QString unit;
        QString display = QStringLiteral("true");
        if (element.hasAttribute(QStringLiteral("unit")))
            unit = element.attribute(QStringLiteral("unit"));
        if (element.hasAttribute(QStringLiteral("display")))
            display = element.attribute(QStringLiteral("display"));
        const QString tag = element.nodeName();
        list.append(QVariantMap { { QStringLiteral("name"), tags.value(tag, tag) },
            { QStringLiteral("value"), text }, { QStringLiteral("unit"), unit },
            { QStringLiteral("selected"), display == QLatin1String("true") } });
    }
}
