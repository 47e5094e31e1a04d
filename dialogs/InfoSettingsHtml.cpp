#include "dialogs/InfoSettingsHtml.h"

#include "dialogs/InfoDisplayList.h"
#include "plugin/SharedKeys.h"

namespace {

// Keys and labels come from preferences and translations: in an attribute quoted with ' or in
// the text they stay text.
QString escaped(const QString& text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\''), QLatin1String("&#39;"));
}

QString link(const char* id, const char* classes)
{
    return QStringLiteral("<a href='#' name='editinfo_edit' id='%1' class='%2'>")
        .arg(QLatin1String(id), QLatin1String(classes));
}

} // namespace

QString InfoSettingsHtml::editLink(const QString& key)
{
    const char* localized = "float-right localize";
    if (key == INFO_KEY_COMMENT)
        return link("edit_comment", localized);
    if (key == INFO_KEY_CUSTOM)
        return link("edit_custom", localized);
    if (key == INFO_KEY_LOGO)
        return link("select_logo", localized);
    if (key == INFO_KEY_TIME_IRIG_CODE || key == INFO_KEY_TIME_CODE)
        return link("time_code", "custom_timecode float-right");
    if (key == INFO_KEY_SHUTTER_SPEED)
        return link("edit_shutter", localized);
    if (key == INFO_KEY_LENGTH)
        return link("edit_rectime", localized);
    if (key == INFO_KEY_FRAME_RATE)
        return link("edit_recordrate", localized);
    if (key == INFO_KEY_FRAME_NUMBER || key == INFO_KEY_MAX_FRAMES)
        return link("edit_frame", localized);
    return QString();
}

QString InfoSettingsHtml::build(const InfoDisplayList& list, const QHash<QString, bool>& enabled,
    bool isSaveView, const std::function<QString(const QString&)>& label, const QString& editText)
{
    const QString separator
        = isSaveView ? QStringLiteral("<hr class='unsortable'>") : QStringLiteral("<hr>");
    const QString closedEditText = escaped(editText) + QStringLiteral("</a>");
    QString html;
    for (const InfoDisplayList::Entry& entry : list.entries()) {
        if (entry.separator) {
            html += separator;
            continue;
        }
        const QString key = escaped(entry.key);
        const QString opening = editLink(entry.key);
        html += QStringLiteral("<li><input type='checkbox' id='") + key + QStringLiteral("' ")
            + (entry.on ? QStringLiteral("checked='checked'") : QString())
            + (enabled.value(entry.key, false) ? QString() : QStringLiteral(" disabled='disabled'"))
            + QStringLiteral("><label for='") + key + QStringLiteral("'>")
            + escaped(label(entry.key)) + QStringLiteral("</label>")
            + (opening.isEmpty() ? QString() : opening + closedEditText) + QStringLiteral("</li>");
    }
    return html;
}
