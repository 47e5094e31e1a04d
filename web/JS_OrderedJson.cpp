#include "web/JS_OrderedJson.h"

void JS_OrderedJson::add(const QString& key, bool value)
{
    m_members.append({ key, value ? QStringLiteral("true") : QStringLiteral("false") });
}

void JS_OrderedJson::add(const QString& key, int value)
{
    m_members.append({ key, QString::number(value) });
}

void JS_OrderedJson::add(const QString& key, const QString& value)
{
    m_members.append({ key, quoted(value) });
}

void JS_OrderedJson::set(const QString& key, const QString& value)
{
    for (auto& member : m_members) {
        if (member.first == key) {
            member.second = quoted(value);
            return;
        }
    }
    add(key, value);
}

QString JS_OrderedJson::text() const
{
    QString text = QStringLiteral("{");
    for (int i = 0; i < m_members.size(); ++i) {
        if (i > 0)
            text += QLatin1Char(',');
        text += quoted(m_members.at(i).first);
        text += QLatin1Char(':');
        text += m_members.at(i).second;
    }
    text += QLatin1Char('}');
    return text;
}

QString JS_OrderedJson::quoted(const QString& value)
{
    QString text;
    text.reserve(value.size() + 2);
    text += QLatin1Char('"');
    for (const QChar c : value) {
        switch (c.unicode()) {
        case '"':
            text += QStringLiteral("\\\"");
            break;
        case '\\':
            text += QStringLiteral("\\\\");
            break;
        case '\n':
            text += QStringLiteral("\\n");
            break;
        case '\r':
            text += QStringLiteral("\\r");
            break;
        case '\t':
            text += QStringLiteral("\\t");
            break;
        default:
            if (c.unicode() < 0x20)
                text += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
            else
                text += c;
        }
    }
    text += QLatin1Char('"');
    return text;
}
