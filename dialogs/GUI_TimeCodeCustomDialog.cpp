#include "dialogs/GUI_TimeCodeCustomDialog.h"

#include "dialogs/TimeCodeArithmetic.h"
#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "web/GUI_WebView.h"

#include <QUrl>
#include <QVBoxLayout>
#include <QWebFrame>

#include <cmath>

namespace {

using TC = TimeCodeArithmetic;

const Qt::WindowFlags dialogFlags
    = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

double number(const QString& text)
{
    return text.toDouble();
}

} // namespace

GUI_TimeCodeCustomDialog::GUI_TimeCodeCustomDialog(APP_Host* host, QWidget* parent)
    : GUI_Dialog(parent, dialogFlags, true)
    , m_host(host)
    , m_layout(new QVBoxLayout(this))
    , m_webView(new GUI_WebView(host, this))
{
    reset();
    connect(m_webView->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this,
        &GUI_TimeCodeCustomDialog::populateJavaScriptWindowObject);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_webView);
    setWindowTitle(UTL_Messages::translate(m_host, QStringLiteral("Current Time Setting")));
    setWindowFlags(
        (windowFlags() & ~Qt::WindowContextHelpButtonHint) | Qt::MSWindowsFixedSizeDialogHint);
    setFixedSize(450, 470);
    m_webView->load(QUrl(QStringLiteral("qrc:/prefs_customize_timecode.html")));
}

GUI_TimeCodeCustomDialog::~GUI_TimeCodeCustomDialog()
{
    // The page goes first, so that its scripts can't reach a dialog half destroyed.
    delete m_webView;
    m_webView = nullptr;
}

void GUI_TimeCodeCustomDialog::populateJavaScriptWindowObject()
{
    QWebFrame* frame = m_webView->page()->mainFrame();
    frame->addToJavaScriptWindowObject(QStringLiteral("timecode_custom_mediator"), this);
    UTL_Barrier::reported(m_host, [&] {
        if (QObject* app = m_host->scriptObject())
            frame->addToJavaScriptWindowObject(QStringLiteral("app"), app);
    });
}

void GUI_TimeCodeCustomDialog::ok()
{
    SYNC_TRACE(QStringLiteral("GUI_TimeCodeCustomDialog::ok"), QString());
    if (saveTimeCodeSetting()) {
        accept();
        close();
    }
}

void GUI_TimeCodeCustomDialog::cancel()
{
    SYNC_TRACE(QStringLiteral("GUI_TimeCodeCustomDialog::cancel"), QString());
    reject();
    close();
}

void GUI_TimeCodeCustomDialog::loadTimeCodeSetting()
{
    SYNC_TRACE(QStringLiteral("GUI_TimeCodeCustomDialog::loadTimeCodeSetting"), QString());
    UTL_Barrier::reported(m_host, [&] {
        APP_TimeCodeRecord record;
        m_host->getTimeCodeSettings(&record);
        m_index = record.index;
        m_displayUnit = record.displayUnit;
        m_oneFrame = TC::text4(record.oneFrame);
        m_negative = record.oneFrame < 0.0;
        m_startValue = TC::text4(record.startValue);
        m_scopeDisplayIndex = record.scopeDisplayIndex;
        m_decimalPlaceIndex = record.decimalPlaceIndex;
        m_decimalDivide = record.decimalDivide;
        m_usingFileInfo = record.usingFileInfo;
        m_overwrite = record.overwrite;
        m_realTime = record.realTime;
        m_reset = record.reset;
        m_resetUnitIndex = 1;
        // A record beyond the limit of a value is taken at the limit, without a message.
        setTimeCodeResetValue(
            TC::text4(qBound(-TC::valueLimit, record.resetValue, TC::valueLimit)), false);
        updateSample(true);
        m_loaded = record;
        // The page shows a frame count first.
        setTimeCodeResetUnitIndex(0, false);
    });
}

bool GUI_TimeCodeCustomDialog::saveTimeCodeSetting()
{
    SYNC_TRACE(QStringLiteral("GUI_TimeCodeCustomDialog::saveTimeCodeSetting"), QString());
    return UTL_Barrier::reported(m_host, false, [&] {
        if (m_resetUnitIndex == 0) {
            m_resetValue = TC::text4(TC::valueOfFrame(
                m_resetValue.toLongLong(), number(m_oneFrame), number(m_startValue)));
            m_resetUnitIndex = 1;
        }
        APP_TimeCodeRecord record;
        record.index = m_index;
        record.displayUnit = m_displayUnit;
        record.oneFrame = number(m_oneFrame);
        record.startValue = number(m_startValue);
        record.reset = m_reset;
        record.resetValue = number(m_resetValue);
        record.scopeDisplayIndex = m_scopeDisplayIndex;
        record.decimalPlaceIndex = m_decimalPlaceIndex;
        record.decimalDivide = m_decimalDivide;
        record.usingFileInfo = m_usingFileInfo;
        record.overwrite = m_overwrite;
        record.realTime = m_realTime;
        m_host->setTimeCodeSettings(&record);
        return true;
    });
}

void GUI_TimeCodeCustomDialog::reset()
{
    const APP_TimeCodeRecord defaults;
    m_index = defaults.index;
    m_displayUnit = defaults.displayUnit;
    m_oneFrame = TC::text4(defaults.oneFrame);
    m_startValue = TC::text4(defaults.startValue);
    m_negative = false;
    m_reset = defaults.reset;
    m_resetValue = QStringLiteral("1");
    m_resetUnitIndex = 0;
    m_scopeDisplayIndex = defaults.scopeDisplayIndex;
    m_decimalPlaceIndex = defaults.decimalPlaceIndex;
    m_decimalDivide = defaults.decimalDivide;
    m_usingFileInfo = defaults.usingFileInfo;
    m_overwrite = defaults.overwrite;
    m_realTime = defaults.realTime;
    updateSample(true);
}

QString GUI_TimeCodeCustomDialog::getStyle()
{
    return UTL_Barrier::reported(m_host, QString(), [this] {
        QString style;
        return m_host->getPrefString(style, PREF_KEY_ENV_STYLE, QStringLiteral("light"));
    });
}

QString GUI_TimeCodeCustomDialog::translate(const QString& str)
{
    return UTL_Messages::translate(m_host, str);
}

void GUI_TimeCodeCustomDialog::setTimeCodeIndex(int index, bool isUpdateSample)
{
    m_index = index;
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeDisplayUnit(const QString& unit, bool isUpdateSample)
{
    m_displayUnit = unit;
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeOneFrame(const QString& value, bool isUpdateSample)
{
    double step = 0.0;
    if (!readValue(value, step))
        return;
    m_oneFrame = TC::text4(step);
    m_negative = step < 0.0;
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeStartValue(const QString& value, bool isUpdateSample)
{
    double start = 0.0;
    if (!readValue(value, start))
        return;
    m_startValue = TC::text4(start);
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeReset(bool isReset, bool isUpdateSample)
{
    m_reset = isReset;
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeResetValue(const QString& value, bool isUpdateSample)
{
    const double step = number(m_oneFrame);
    const double start = number(m_startValue);
    if (m_resetUnitIndex == 1) {
        double target = 0.0;
        if (!readValue(value, target))
            return;
        const double limit = step * double(TC::maximumResetFrames) + start;
        if ((limit > 0.0 && target > limit) || (limit < 0.0 && target < limit))
            target = limit;
        const qint64 frames = TC::frameOfValue(m_reset, step, target, start);
        m_resetValue = TC::text4(TC::limitedValueOfFrame(frames, step, start));
    } else {
        bool whole = false;
        qint64 count = value.trimmed().toLongLong(&whole);
        if (!whole) {
            warn("Please enter a whole number of frames.");
            return;
        }
        if (count <= 0)
            count = TC::frameOfValue(
                m_loaded.reset, m_loaded.oneFrame, m_loaded.resetValue, m_loaded.startValue);
        m_resetValue = QString::number(qBound(qint64(1), count, TC::maximumResetFrames));
    }
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeResetUnitIndex(int index, bool isUpdateSample)
{
    if ((index != 0 && index != 1) || index == m_resetUnitIndex) {
        updateSample(isUpdateSample);
        return;
    }
    const double step = number(m_oneFrame);
    const double start = number(m_startValue);
    if (index == 1) {
        m_resetValue = TC::text4(TC::limitedValueOfFrame(m_resetValue.toLongLong(), step, start));
    } else {
        const qint64 frames = TC::frameOfValue(m_reset, step, number(m_resetValue), start);
        m_resetValue = QString::number(qBound(qint64(1), frames, TC::maximumResetFrames));
    }
    m_resetUnitIndex = index;
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeScopeDisplayIndex(int index, bool isUpdateSample)
{
    m_scopeDisplayIndex = qBound(0, index, 5);
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeDecimalPlaceIndex(int index, bool isUpdateSample)
{
    m_decimalPlaceIndex = qBound(0, index, 9);
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeDecimalDivide(bool isDivide, bool isUpdateSample)
{
    m_decimalDivide = isDivide;
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeUsingQchFileInfo(bool isUsing, bool isUpdateSample)
{
    m_usingFileInfo = isUsing;
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeOverWrite(bool value, bool isUpdateSample)
{
    m_overwrite = value;
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeRealTime(bool value, bool isUpdateSample)
{
    m_realTime = value;
    updateSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::updateSample(bool isUpdateSample)
{
    if (isUpdateSample)
        m_sample = TC::sample(m_negative, m_index, number(m_oneFrame), m_scopeDisplayIndex,
            m_decimalPlaceIndex, m_decimalDivide);
}

bool GUI_TimeCodeCustomDialog::readValue(const QString& text, double& value)
{
    bool ok = false;
    const double read = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(read)) {
        warn("Please enter a number.");
        return false;
    }
    if (std::fabs(read) > TC::valueLimit) {
        warn("Please enter a value from -999900000 to 999900000.");
        return false;
    }
    value = read;
    return true;
}

void GUI_TimeCodeCustomDialog::warn(const char* text)
{
    UTL_Barrier::reported(m_host,
        [&] { m_host->showWarning(UTL_Messages::translate(m_host, QLatin1String(text)), this); });
}
