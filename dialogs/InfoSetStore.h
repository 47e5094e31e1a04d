#pragma once

#include <QString>
#include <QVariant>

#include <array>

class APP_Host;

// The settings that the edit info dialog keeps once per set.
enum class InfoSetting {
    FontName,
    FontSize,
    Bold,
    Italic,
    ForegroundColor,
    FixedFontSizeRatio,
    BaseResolution,
    UseBackgroundColor,
    BackgroundColor,
    Alignment,
    Width,
    ToColumn,
    ColumnNum,
    ColumnSpacing,
};
constexpr int infoSettingCount = 14;

// All settings of one set, indexed by InfoSetting.
using InfoSetValues = std::array<QVariant, infoSettingCount>;

// Where the settings of a set live: the save form keeps seven sets ("saveinfo/FontName3"), the
// screen form one ("info/FontName", whatever the set) and no settings of saved images.
class InfoSetStore
{
public:
    static constexpr int setCount = 7;

    InfoSetStore(APP_Host* host, bool isSaveView);

    // The setting exists in this form.
    bool has(InfoSetting setting) const;
    // Empty for a setting the form doesn't have.
    QString key(InfoSetting setting, int set) const;
    // Read through the host's typed getters; a setting the form doesn't have reads as a
    // neutral value.
    QVariant read(InfoSetting setting, int set) const;
    InfoSetValues readAll(int set) const;
    // Writes at once; a setting the form doesn't have is not written.
    void write(InfoSetting setting, int set, const QVariant& value) const;

    // A value a page gave, in the form it is stored in; an empty result when it is fine, else
    // the message for the user (a source text).
    static QString check(InfoSetting setting, QVariant& value);

private:
    APP_Host* m_host;
    bool m_isSaveView;
};
