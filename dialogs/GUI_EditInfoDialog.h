#pragma once

#include "dialogs/InfoActions.h"
#include "dialogs/InfoSetStore.h"
#include "web/GUI_Dialog.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSize>
#include <QStringList>
#include <QVariantMap>

#include <array>
#include <functional>

class APP_Host;
class DOC_Interface;
class GUI_WebView;
class QVBoxLayout;

// Which items the information block shows, in which order, font, colours and columns: on the
// screen (info/...) or on saved images (saveinfo/..., seven sets). Every change is written at
// once so that the views follow it; Cancel, or closing the window, writes back the display
// lists and the per-set settings of the start. The dialog is its own page object, "editInfo";
// the list of items is HTML it builds itself.
class GUI_EditInfoDialog : public GUI_Dialog
{
    Q_OBJECT

public:
    // document null: the host's current document and its current partition (also for a
    // partition below 0). keys: the documents the settings are for.
    GUI_EditInfoDialog(APP_Host* host, int mode, bool isSaveView, DOC_Interface* document,
        int partition, const QList<int>& keys, const QDateTime& dateTime);
    ~GUI_EditInfoDialog() override;

    GUI_WebView* webView() const { return m_webView; }
    // The set the save form starts with, by the mode of its owner.
    static int initialSet(int mode);

public slots:
    void populateJavaScriptWindowObject();

    QString getInfoSettingsHtml(int offset);
    void changeDisp(const QString& id, bool check, int offset);
    void changeOrder(const QString& idList, int offset);

    void backupFontSettings(int offset);
    void restoreFontSettings();
    void writeFontOK();
    void writeFontCancel();

    QStringList getFontNameList();
    QStringList getFontSizeList();
    QStringList getToColumnList();

    bool isCollectiveSetting();
    void setCollectiveSetting(bool value, bool update);
    void setCollectiveSetting(bool value) { setCollectiveSetting(value, true); }

    QString getFontName(int offset) { return setting(InfoSetting::FontName, offset).toString(); }
    QString getFontName() { return getFontName(m_offset); }
    void setFontName(const QString& name, bool update)
    {
        change(InfoSetting::FontName, name, update);
    }
    void setFontName(const QString& name) { setFontName(name, true); }
    QString getFontSize(int offset) { return setting(InfoSetting::FontSize, offset).toString(); }
    QString getFontSize() { return getFontSize(m_offset); }
    void setFontSize(const QString& size, bool update)
    {
        change(InfoSetting::FontSize, size, update);
    }
    void setFontSize(const QString& size) { setFontSize(size, true); }
    bool getBold(int offset) { return setting(InfoSetting::Bold, offset).toBool(); }
    bool getBold() { return getBold(m_offset); }
    void setBold(bool bold, bool update) { change(InfoSetting::Bold, bold, update); }
    void setBold(bool bold) { setBold(bold, true); }
    bool getItalic(int offset) { return setting(InfoSetting::Italic, offset).toBool(); }
    bool getItalic() { return getItalic(m_offset); }
    void setItalic(bool italic, bool update) { change(InfoSetting::Italic, italic, update); }
    void setItalic(bool italic) { setItalic(italic, true); }
    QString getForegroundColor(int offset)
    {
        return setting(InfoSetting::ForegroundColor, offset).toString();
    }
    QString getForegroundColor() { return getForegroundColor(m_offset); }
    void setForegroundColor(const QString& colour, bool update)
    {
        change(InfoSetting::ForegroundColor, colour, update);
    }
    void setForegroundColor(const QString& colour) { setForegroundColor(colour, true); }

    bool isFixedFontSizeRatio(int offset)
    {
        return setting(InfoSetting::FixedFontSizeRatio, offset).toBool();
    }
    bool isFixedFontSizeRatio() { return isFixedFontSizeRatio(m_offset); }
    void setFixedFontSizeRatio(bool fixed, bool update)
    {
        change(InfoSetting::FixedFontSizeRatio, fixed, update);
    }
    void setFixedFontSizeRatio(bool fixed) { setFixedFontSizeRatio(fixed, true); }
    // width and height.
    QVariantMap getFixedFontSizeRatioBaseResolution(int offset);
    QVariantMap getFixedFontSizeRatioBaseResolution()
    {
        return getFixedFontSizeRatioBaseResolution(m_offset);
    }
    void setFixedFontSizeRatioBaseResolution(int width, int height, bool update)
    {
        change(InfoSetting::BaseResolution, QSize(width, height), update);
    }
    void setFixedFontSizeRatioBaseResolution(int width, int height)
    {
        setFixedFontSizeRatioBaseResolution(width, height, true);
    }
    int getAlignment(int offset) { return setting(InfoSetting::Alignment, offset).toInt(); }
    int getAlignment() { return getAlignment(m_offset); }
    void setAlignment(int alignment, bool update)
    {
        change(InfoSetting::Alignment, alignment, update);
    }
    void setAlignment(int alignment) { setAlignment(alignment, true); }
    bool getUseBackgroundColor(int offset)
    {
        return setting(InfoSetting::UseBackgroundColor, offset).toBool();
    }
    bool getUseBackgroundColor() { return getUseBackgroundColor(m_offset); }
    void setUseBackgroundColor(bool use, bool update)
    {
        change(InfoSetting::UseBackgroundColor, use, update);
    }
    void setUseBackgroundColor(bool use) { setUseBackgroundColor(use, true); }
    QString getBackgroundColor(int offset)
    {
        return setting(InfoSetting::BackgroundColor, offset).toString();
    }
    QString getBackgroundColor() { return getBackgroundColor(m_offset); }
    void setBackgroundColor(const QString& colour, bool update)
    {
        change(InfoSetting::BackgroundColor, colour, update);
    }
    void setBackgroundColor(const QString& colour) { setBackgroundColor(colour, true); }
    int getWidth(int offset) { return setting(InfoSetting::Width, offset).toInt(); }
    int getWidth() { return getWidth(m_offset); }
    void setWidth(int width, bool update) { change(InfoSetting::Width, width, update); }
    void setWidth(int width) { setWidth(width, true); }
    // One icon size for every set.
    int getIconSize(int offset);
    int getIconSize() { return getIconSize(m_offset); }
    void setIconSize(int size, bool update);
    void setIconSize(int size) { setIconSize(size, true); }
    bool getToColumn(int offset) { return setting(InfoSetting::ToColumn, offset).toBool(); }
    bool getToColumn() { return getToColumn(m_offset); }
    void setToColumn(bool toColumn, bool update)
    {
        change(InfoSetting::ToColumn, toColumn, update);
    }
    void setToColumn(bool toColumn) { setToColumn(toColumn, true); }
    QString getColumnNum(int offset) { return setting(InfoSetting::ColumnNum, offset).toString(); }
    QString getColumnNum() { return getColumnNum(m_offset); }
    void setColumnNum(const QString& count, bool update)
    {
        change(InfoSetting::ColumnNum, count, update);
    }
    void setColumnNum(const QString& count) { setColumnNum(count, true); }
    int getColumnSpacing(int offset) { return setting(InfoSetting::ColumnSpacing, offset).toInt(); }
    int getColumnSpacing() { return getColumnSpacing(m_offset); }
    void setColumnSpacing(int spacing, bool update)
    {
        change(InfoSetting::ColumnSpacing, spacing, update);
    }
    void setColumnSpacing(int spacing) { setColumnSpacing(spacing, true); }
    bool getWithinImage();
    void setWithinImage(bool value, bool update);
    void setWithinImage(bool value) { setWithinImage(value, true); }

    void editComment() { openSubDialog("editComment", InfoActions::SubDialog::Comment); }
    void setLogoPath();
    void execTimeCodeSettingDialog()
    {
        openSubDialog("execTimeCodeSettingDialog", InfoActions::SubDialog::TimeCode);
    }
    void editCustom() { openSubDialog("editCustom", InfoActions::SubDialog::Custom); }
    void editShutterDispFormat()
    {
        openSubDialog("editShutterDispFormat", InfoActions::SubDialog::ShutterFormat);
    }
    void editRectimeDispFormat()
    {
        openSubDialog("editRectimeDispFormat", InfoActions::SubDialog::RectimeFormat);
    }
    void editRecordRateDispFormat()
    {
        openSubDialog("editRecordRateDispFormat", InfoActions::SubDialog::RecordRateFormat);
    }
    void editFrameDispFormat()
    {
        openSubDialog("editFrameDispFormat", InfoActions::SubDialog::FrameFormat);
    }

    // PNG, base64. Without a height it follows the document's aspect; without a width 400.
    QString getThumbnail(int width, int height);
    QString getThumbnail(int width);
    QString getThumbnail() { return getThumbnail(400); }
    // width and height.
    QVariantMap getResolution();
    QVariantMap getThumbnailResolution();
    QString getResolutionStr();
    QString getExportLanguage();

    void reset();
    bool confirm(const QString& message);
    void ok();
    void cancel();

    QString getStyle();
    QString translate(const QString& string);
    bool getDisplayBlankLine();
    void setDisplayBlankLine(bool display);
    bool onConvertParameterEditDialog();

    // For the page: the form, the set being edited, the logo now chosen.
    bool isSaveView() { return m_isSaveView; }
    int getOffset() { return m_offset; }
    QString getLogoPath();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    bool validSet(int offset) const;
    QString displayKey(int offset) const;
    QString displayText(int offset);
    void writeDisplay(int offset, const QString& text);
    QVariant setting(InfoSetting which, int offset);
    // A value from the page: checked, written to the set being edited, and the views refreshed.
    void change(InfoSetting which, QVariant value, bool update);
    // Written as it is, with the host told of an overlay font.
    void store(InfoSetting which, int set, const QVariant& value);
    void writeSet(int set, const InfoSetValues& values);
    void refreshViews();
    void refreshAfter(bool update);
    // Puts back what Cancel puts back, once.
    void writeBack();
    // Runs what opens a dialog over this one, the views refreshed afterwards on the screen.
    void runSubDialog(const char* name, const std::function<void()>& body);
    void openSubDialog(const char* name, InfoActions::SubDialog which);
    void warn(const QString& sourceText);
    QSize documentResolution();

    APP_Host* m_host;
    bool m_isSaveView;
    int m_mode;
    DOC_Interface* m_document = nullptr;
    int m_partition;
    QList<int> m_documentKeys;
    QDateTime m_dateTime;
    InfoSetStore m_store;
    QVBoxLayout* m_layout;
    GUI_WebView* m_webView;
    int m_offset;
    std::array<QString, InfoSetStore::setCount> m_initialDisplay;
    bool m_initialBlankLine = false;
    std::array<InfoSetValues, InfoSetStore::setCount> m_initial;
    InfoSetValues m_backup;
    bool m_backupCollective = false;
    bool m_accepted = false;
    bool m_writtenBack = false;
    bool m_listBuilt = false;
    QHash<QString, bool> m_itemEnabled;
    QSize m_thumbnailSize;
};
