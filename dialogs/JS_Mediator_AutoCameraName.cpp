#include "dialogs/JS_Mediator_AutoCameraName.h"

#include "dialogs/CameraNameList.h"
#include "plugin/APP_Host.h"
#include "util/UTL_Barrier.h"

#include <QStringList>

namespace {

// As a compact QJsonDocument writes a string: quotes and backslashes escaped, control
// characters as escapes, the rest as it is. Building 100,000 QJsonObjects costs far more than
// reading the list.
void appendJsonString(QString& out, const QString& text)
{
    out += QLatin1Char('"');
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '"':
            out += QLatin1String("\\\"");
            break;
        case '\\':
            out += QLatin1String("\\\\");
            break;
        case '\b':
            out += QLatin1String("\\b");
            break;
        case '\f':
            out += QLatin1String("\\f");
            break;
        case '\n':
            out += QLatin1String("\\n");
            break;
        case '\r':
            out += QLatin1String("\\r");
            break;
        case '\t':
            out += QLatin1String("\\t");
            break;
        default:
            if (c.unicode() < 0x20)
                out += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
            else
                out += c;
        }
    }
    out += QLatin1Char('"');
}

void appendEntry(QString& out, const QString& name, const QString& category)
{
    out += out.size() > 1 ? QLatin1String(",{\"category\":") : QLatin1String("{\"category\":");
    appendJsonString(out, category);
    out += QLatin1String(",\"label\":");
    appendJsonString(out, name);
    out += QLatin1Char('}');
}

} // namespace

JS_Mediator_AutoCameraName::JS_Mediator_AutoCameraName(APP_Host* host, const QString& name)
    : JS_Mediator(host, name)
{
}

bool JS_Mediator_AutoCameraName::existsAutoCompleteFile()
{
    return UTL_Barrier::reported(m_host, false,
        [this] { return m_host->isCameraNameListEnabled() && cameraNameListExists(m_host); });
}

QString JS_Mediator_AutoCameraName::autoCompleteCameraList()
{
    return UTL_Barrier::reported(m_host, QStringLiteral("[]"), [this] {
        CameraNameMap map;
        QString json = QStringLiteral("[");
        if (readCameraNameList(m_host, map)) {
            const QString defaultCategory = QLatin1String(defaultCameraCategory);
            for (const QString& name : map.value(defaultCategory))
                appendEntry(json, name, QString());
            for (auto it = map.cbegin(); it != map.cend(); ++it) {
                if (it.key() == defaultCategory)
                    continue;
                for (const QString& name : it.value())
                    appendEntry(json, name, it.key());
            }
        }
        return json + QLatin1Char(']');
    });
}
