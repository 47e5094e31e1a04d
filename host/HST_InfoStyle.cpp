#include "host/HST_InfoStyle.h"

#include "host/HST_Preferences.h"
#include "plugin/SharedKeys.h"

namespace {

int number(const HST_Preferences& prefs, const QString& key, int fallback, int low, int high)
{
    bool ok = false;
    const int value = prefs.value(key, QVariant()).toString().trimmed().toInt(&ok);
    return ok ? qBound(low, value, high) : fallback;
}

QColor colour(const HST_Preferences& prefs, const QString& key, const QColor& fallback)
{
    const QColor value(prefs.value(key, QVariant()).toString().trimmed());
    return value.isValid() ? value : fallback;
}

bool flag(const HST_Preferences& prefs, const QString& key)
{
    return prefs.value(key, QVariant()).toBool();
}

QString text(const HST_Preferences& prefs, const QString& key)
{
    return prefs.value(key, QVariant()).toString();
}

// The settings both forms share; suffix picks the set of the save form.
void readCommon(const HST_Preferences& prefs, HST_InfoStyle& style, const QString& fontName,
    const QString& fontSize, const QString& bold, const QString& italic, const QString& foreground,
    const QString& alignment, const QString& width)
{
    style.fontSize = number(prefs, fontSize, style.fontSize, 4, 200);
    style.font = QFont(text(prefs, fontName));
    style.font.setBold(flag(prefs, bold));
    style.font.setItalic(flag(prefs, italic));
    style.foreground = colour(prefs, foreground, Qt::white);
    style.alignment = number(prefs, alignment, 0, 0, 2);
    style.width = number(prefs, width, 0, 0, 10000);
    style.iconSize = number(prefs, PREF_KEY_INFO_ICON_SIZE, 48, 8, 1024);
}

} // namespace

HST_InfoStyle HST_InfoStyle::screen(const HST_Preferences& prefs)
{
    HST_InfoStyle style;
    style.displayText = text(prefs, PREF_KEY_INFO_DISPLAY);
    readCommon(prefs, style, PREF_KEY_INFO_FONT_NAME, PREF_KEY_INFO_FONT_SIZE, PREF_KEY_INFO_BOLD,
        PREF_KEY_INFO_ITALIC, PREF_KEY_INFO_FOREGROUND_COLOR, PREF_KEY_INFO_ALIGNMENT,
        PREF_KEY_INFO_WIDTH);
    style.blankLine = flag(prefs, PREF_KEY_INFO_BLANK_LINE);
    style.logoPath = text(prefs, PREF_KEY_INFO_LOGO_PATH);
    return style;
}

HST_InfoStyle HST_InfoStyle::save(const HST_Preferences& prefs, int set)
{
    const QString n = QString::number(qBound(0, set, 6));
    HST_InfoStyle style;
    style.fontSize = 24;
    style.displayText = text(prefs, PREF_KEY_SAVEINFO_DISPLAY + n);
    readCommon(prefs, style, PREF_KEY_SAVEINFO_FONT_NAME + n, PREF_KEY_SAVEINFO_FONT_SIZE + n,
        PREF_KEY_SAVEINFO_BOLD + n, PREF_KEY_SAVEINFO_ITALIC + n,
        PREF_KEY_SAVEINFO_FOREGROUND_COLOR + n, PREF_KEY_SAVEINFO_ALIGNMENT + n,
        PREF_KEY_SAVEINFO_WIDTH + n);
    style.logoPath = text(prefs, PREF_KEY_SAVEINFO_LOGO_PATH);
    style.useBackground = flag(prefs, PREF_KEY_SAVEINFO_USE_BACKGROUND_COLOR + n);
    style.background = colour(prefs, PREF_KEY_SAVEINFO_BACKGROUND_COLOR + n, Qt::black);
    if (flag(prefs, PREF_KEY_SAVEINFO_TO_COLUMN + n))
        style.columns = number(prefs, PREF_KEY_SAVEINFO_COLUMN_NUM + n, 2, 2, 8);
    style.columnSpacing = number(prefs, PREF_KEY_SAVEINFO_COLUMN_SPACING + n, 16, 0, 1000);
    style.withinImage = flag(prefs, PREF_KEY_SAVEINFO_WITHIN_IMAGE);
    style.fixedFontSizeRatio = flag(prefs, PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO + n);
    style.baseResolution
        = prefs.value(PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO_BASE_RESOLUTION + n, QVariant())
              .toSize();
    return style;
}
