#include "dialogs/InfoSetStore.h"

#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"

#include <QColor>
#include <QSize>

namespace {

enum class Kind { Text, Flag, Number, Size };

struct SettingInfo
{
    const QString* saveKey;
    // Null: saved images only.
    const QString* screenKey;
    Kind kind;
};

// In the order of InfoSetting.
const SettingInfo& info(InfoSetting setting)
{
    static const SettingInfo table[infoSettingCount] = {
        { &PREF_KEY_SAVEINFO_FONT_NAME, &PREF_KEY_INFO_FONT_NAME, Kind::Text },
        { &PREF_KEY_SAVEINFO_FONT_SIZE, &PREF_KEY_INFO_FONT_SIZE, Kind::Text },
        { &PREF_KEY_SAVEINFO_BOLD, &PREF_KEY_INFO_BOLD, Kind::Flag },
        { &PREF_KEY_SAVEINFO_ITALIC, &PREF_KEY_INFO_ITALIC, Kind::Flag },
        { &PREF_KEY_SAVEINFO_FOREGROUND_COLOR, &PREF_KEY_INFO_FOREGROUND_COLOR, Kind::Text },
        { &PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO, nullptr, Kind::Flag },
        { &PREF_KEY_SAVEINFO_FIXED_FONT_SIZE_RATIO_BASE_RESOLUTION, nullptr, Kind::Size },
        { &PREF_KEY_SAVEINFO_USE_BACKGROUND_COLOR, nullptr, Kind::Flag },
        { &PREF_KEY_SAVEINFO_BACKGROUND_COLOR, nullptr, Kind::Text },
        { &PREF_KEY_SAVEINFO_ALIGNMENT, &PREF_KEY_INFO_ALIGNMENT, Kind::Number },
        { &PREF_KEY_SAVEINFO_WIDTH, &PREF_KEY_INFO_WIDTH, Kind::Number },
        { &PREF_KEY_SAVEINFO_TO_COLUMN, nullptr, Kind::Flag },
        { &PREF_KEY_SAVEINFO_COLUMN_NUM, nullptr, Kind::Text },
        { &PREF_KEY_SAVEINFO_COLUMN_SPACING, nullptr, Kind::Number },
    };
    return table[int(setting)];
}

QVariant neutral(Kind kind)
{
    switch (kind) {
    case Kind::Text:
        return QString();
    case Kind::Flag:
        return false;
    case Kind::Number:
        return 0;
    case Kind::Size:
        return QSize();
    }
    return QVariant();
}

// A whole number within the bounds, stored as a number or as its text.
bool wholeNumber(QVariant& value, int minimum, int maximum, bool asText)
{
    bool ok = false;
    const int number = value.toString().trimmed().toInt(&ok);
    if (!ok || number < minimum || number > maximum)
        return false;
    value = asText ? QVariant(QString::number(number)) : QVariant(number);
    return true;
}

} // namespace

InfoSetStore::InfoSetStore(APP_Host* host, bool isSaveView)
    : m_host(host)
    , m_isSaveView(isSaveView)
{
}

bool InfoSetStore::has(InfoSetting setting) const
{
    return m_isSaveView || info(setting).screenKey;
}

QString InfoSetStore::key(InfoSetting setting, int set) const
{
    if (m_isSaveView)
        return *info(setting).saveKey + QString::number(set);
    const QString* screenKey = info(setting).screenKey;
    return screenKey ? *screenKey : QString();
}

QVariant InfoSetStore::read(InfoSetting setting, int set) const
{
    const Kind kind = info(setting).kind;
    const QString name = key(setting, set);
    if (name.isEmpty())
        return neutral(kind);
    // No default of our own: the host's defaults hold for keys never written.
    switch (kind) {
    case Kind::Text: {
        QString text;
        return m_host->getPrefString(text, name, QVariant());
    }
    case Kind::Flag:
        return m_host->getPrefBool(name, QVariant());
    case Kind::Number:
        return m_host->getPrefInt(name, QVariant());
    case Kind::Size:
        return m_host->getPrefVariant(name, QVariant()).toSize();
    }
    return QVariant();
}

InfoSetValues InfoSetStore::readAll(int set) const
{
    InfoSetValues values;
    for (int i = 0; i < infoSettingCount; ++i)
        values[size_t(i)] = read(InfoSetting(i), set);
    return values;
}

void InfoSetStore::write(InfoSetting setting, int set, const QVariant& value) const
{
    const QString name = key(setting, set);
    if (!name.isEmpty())
        m_host->setPrefVariant(name, value);
}

QString InfoSetStore::check(InfoSetting setting, QVariant& value)
{
    switch (setting) {
    case InfoSetting::FontName:
        value = value.toString().trimmed();
        if (value.toString().isEmpty() || value.toString().size() > 256)
            return QStringLiteral("Please choose a font.");
        return QString();
    case InfoSetting::FontSize:
        return wholeNumber(value, 4, 200, true)
            ? QString()
            : QStringLiteral("The font size must be a whole number from 4 to 200.");
    case InfoSetting::ForegroundColor:
    case InfoSetting::BackgroundColor: {
        const QColor colour(value.toString().trimmed());
        if (!colour.isValid())
            return QStringLiteral("The colour must be given as #RRGGBB.");
        value = colour.name();
        return QString();
    }
    case InfoSetting::BaseResolution: {
        const QSize size = value.toSize();
        return size.width() >= 1 && size.height() >= 1 && size.width() <= 65535
                && size.height() <= 65535
            ? QString()
            : QStringLiteral("The base resolution must be from 1 x 1 to 65535 x 65535.");
    }
    case InfoSetting::Alignment:
        return wholeNumber(value, 0, 2, false) ? QString() : QStringLiteral("Unknown alignment.");
    case InfoSetting::Width:
        return wholeNumber(value, 0, 10000, false)
            ? QString()
            : QStringLiteral("The width must be a whole number from 0 to 10000.");
    case InfoSetting::ColumnNum:
        return wholeNumber(value, 2, 8, true)
            ? QString()
            : QStringLiteral("The number of columns must be from 2 to 8.");
    case InfoSetting::ColumnSpacing:
        return wholeNumber(value, 0, 1000, false)
            ? QString()
            : QStringLiteral("The column spacing must be a whole number from 0 to 1000.");
    case InfoSetting::Bold:
    case InfoSetting::Italic:
    case InfoSetting::FixedFontSizeRatio:
    case InfoSetting::UseBackgroundColor:
    case InfoSetting::ToColumn:
        value = value.toBool();
        return QString();
    }
    return QString();
}
