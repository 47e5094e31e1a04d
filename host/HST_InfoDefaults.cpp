#include "host/HST_InfoDefaults.h"

#include "plugin/SharedKeys.h"

#include <QSize>
#include <QStringList>

namespace {

// "saveinfo/FontName3" is "saveinfo/FontName" of set 3; a set is 0 to 6.
bool isSetKey(const QString& key, const QString& base)
{
    return key.size() == base.size() + 1 && key.startsWith(base) && key.back() >= QLatin1Char('0')
        && key.back() <= QLatin1Char('6');
}

} // namespace

QString HST_InfoDefaults::displayText()
{
    QStringList entries;
    for (const InfoItem* item = INFO_ITEMS; !item->key.isEmpty(); ++item) {
        if (item->key == INFO_KEY_SEPARATOR)
            entries.append(item->key);
        else
            entries.append(
                item->key + (item->defaultOn ? QStringLiteral(":true") : QStringLiteral(":false")));
    }
    return entries.join(QLatin1Char(','));
}

QVariant HST_InfoDefaults::value(const QString& key)
{
    const struct
    {
        const QString& key;
        QVariant value;
    } plain[] = {
        { PREF_KEY_INFO_FONT_NAME, QStringLiteral("Sans Serif") },
        { PREF_KEY_INFO_FONT_SIZE, QStringLiteral("12") },
        { PREF_KEY_INFO_BOLD, false },
        { PREF_KEY_INFO_ITALIC, false },
        { PREF_KEY_INFO_FOREGROUND_COLOR, QStringLiteral("#ffffff") },
        { PREF_KEY_INFO_ALIGNMENT, 0 },
        { PREF_KEY_INFO_WIDTH, 0 },
        { PREF_KEY_INFO_BLANK_LINE, false },
        { PREF_KEY_INFO_ICON_SIZE, 48 },
        { PREF_KEY_INFO_LOGO_PATH, QString() },
        { PREF_KEY_INFO_REC_TIME_UNIT, 0 },
        { PREF_KEY_SAVEINFO_LOGO_PATH, QString() },
        { PREF_KEY_SAVEINFO_WITHIN_IMAGE, true },
        { PREF_KEY_SAVEINFO_COLLECTIVE_SETTING, false },
        { PREF_KEY_DISPLAY_SHUTTER_SPEED, 0 },
        { PREF_KEY_DISPLAY_SHUTTER_SPEED_UNIT, 0 },
        { PREF_KEY_DISPLAY_SHUTTER_SPEED_INSERT_DELIMITER, false },
        { PREF_KEY_DISPLAY_FRAME_INSERT_DELIMITER, false },
        { PREF_KEY_DISPLAY_RECORD_RATE_INSERT_DELIMITER, false },
        { PREF_KEY_DISPLAY_LANGUAGE, QStringLiteral("en") },
        { PREF_KEY_DISPLAY_OUTPUT_LANGUAGE, 0 },
    };
    if (key == PREF_KEY_INFO_DISPLAY)
        return displayText();
    for (const auto& entry : plain) {
        if (key == entry.key)
            return entry.value;
    }
    const struct
    {
        const QString& base;
        QVariant value;
    } perSet[] = {
        { PREF_KEY_SAVEINFO_FONT_NAME, QStringLiteral("Sans Serif") },
        { PREF_KEY_SAVEINFO_FONT_SIZE, QStringLiteral("24") },
        { PREF_KEY_SAVEINFO_BOLD, false },
        { PREF_KEY_SAVEINFO_ITALIC, false },
        { PREF_KEY_SAVEINFO_FOREGROUND_COLOR, QStringLiteral("#ffffff") },
        { PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO, false },
        { PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO_BASE_RESOLUTION, QSize(1024, 1024) },
        { PREF_KEY_SAVEINFO_USE_BACKGROUND_COLOR, false },
        { PREF_KEY_SAVEINFO_BACKGROUND_COLOR, QStringLiteral("#000000") },
        { PREF_KEY_SAVEINFO_ALIGNMENT, 0 },
        { PREF_KEY_SAVEINFO_WIDTH, 0 },
        { PREF_KEY_SAVEINFO_TO_COLUMN, false },
        { PREF_KEY_SAVEINFO_COLUMN_NUM, QStringLiteral("2") },
        { PREF_KEY_SAVEINFO_COLUMN_SPACING, 16 },
    };
    if (isSetKey(key, PREF_KEY_SAVEINFO_DISPLAY))
        return displayText();
    for (const auto& entry : perSet) {
        if (isSetKey(key, entry.base))
            return entry.value;
    }
    return QVariant();
}
