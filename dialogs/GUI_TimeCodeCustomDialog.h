#pragma once

#include "plugin/APP_TimeCodeRecord.h"
#include "web/GUI_Dialog.h"

class APP_Host;
class GUI_WebView;
class QVBoxLayout;

// The time code settings: a counter that grows from frame to frame, or the real time, with a
// sample of how it will look. Works on a copy of the host's record; nothing reaches the host
// before OK. The dialog is its own page object, "timecode_custom_mediator".
class GUI_TimeCodeCustomDialog : public GUI_Dialog
{
    Q_OBJECT

public:
    GUI_TimeCodeCustomDialog(APP_Host* host, QWidget* parent);
    ~GUI_TimeCodeCustomDialog() override;

    GUI_WebView* webView() const { return m_webView; }

public slots:
    void populateJavaScriptWindowObject();
    void ok();
    void cancel();
    void loadTimeCodeSetting();
    bool saveTimeCodeSetting();
    void reset();
    QString getStyle();
    QString translate(const QString& str);

    int getTimeCodeIndex() { return m_index; }
    void setTimeCodeIndex(int index, bool isUpdateSample = true);
    QString getTimeCodeDisplayUnit() { return m_displayUnit; }
    void setTimeCodeDisplayUnit(const QString& unit, bool isUpdateSample = true);
    QString getTimeCodeOneFrame() { return m_oneFrame; }
    // A text that is no number, or passes the limit of a value, is refused with a message.
    void setTimeCodeOneFrame(const QString& value, bool isUpdateSample = true);
    QString getTimeCodeStartValue() { return m_startValue; }
    void setTimeCodeStartValue(const QString& value, bool isUpdateSample = true);
    bool getTimeCodeReset() { return m_reset; }
    void setTimeCodeReset(bool isReset, bool isUpdateSample = true);
    // A value (unit index 1), moved to the frame grid, or a frame count (unit index 0).
    QString getTimeCodeResetValue() { return m_resetValue; }
    void setTimeCodeResetValue(const QString& value, bool isUpdateSample = true);
    int getTimeCodeResetUnitIndex() { return m_resetUnitIndex; }
    void setTimeCodeResetUnitIndex(int index, bool isUpdateSample = true);
    int getTimeCodeScopeDisplayIndex() { return m_scopeDisplayIndex; }
    void setTimeCodeScopeDisplayIndex(int index, bool isUpdateSample = true);
    int getTimeCodeDecimalPlaceIndex() { return m_decimalPlaceIndex; }
    void setTimeCodeDecimalPlaceIndex(int index, bool isUpdateSample = true);
    bool getTimeCodeDecimalDivide() { return m_decimalDivide; }
    void setTimeCodeDecimalDivide(bool isDivide, bool isUpdateSample = true);
    bool getTimeCodeUsingQchFileInfo() { return m_usingFileInfo; }
    void setTimeCodeUsingQchFileInfo(bool isUsing, bool isUpdateSample = true);
    bool getTimeCodeOverWrite() { return m_overwrite; }
    void setTimeCodeOverWrite(bool value, bool isUpdateSample = true);
    bool getTimeCodeRealTime() { return m_realTime; }
    void setTimeCodeRealTime(bool value, bool isUpdateSample = true);
    QString getTimeCodeSample() { return m_sample; }

private:
    void updateSample(bool isUpdateSample);
    // A number the user typed; false, after telling the user, for a text that is none or
    // passes the limit of a value.
    bool readValue(const QString& text, double& value);
    void warn(const char* text);

    APP_Host* m_host;
    QVBoxLayout* m_layout;
    GUI_WebView* m_webView;

    int m_index = 0;
    QString m_displayUnit;
    QString m_oneFrame;
    QString m_startValue;
    bool m_reset = false;
    QString m_resetValue;
    int m_resetUnitIndex = 0;
    int m_scopeDisplayIndex = 0;
    int m_decimalPlaceIndex = 0;
    bool m_decimalDivide = false;
    bool m_usingFileInfo = true;
    bool m_overwrite = false;
    bool m_realTime = false;
    bool m_negative = false;
    QString m_sample;
    APP_TimeCodeRecord m_loaded;
};
