#include "web/JS_Mediator.h"

#include "plugin/APP_Host.h"
#include "plugin/APP_PrefsDialog.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/ScopeExit.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "util/UTL_TextHelpers.h"
#include "util/UserOperationLog.h"
#include "web/JS_ControlStatus.h"
#include "web/JS_DeviceInfo.h"
#include "web/JS_OrderedJson.h"
#include "web/JS_SkipRange.h"
#include "web/JS_SupportFileExport.h"
#include "web/OperationEventHandler.h"

#include <QDialog>
#include <QFile>
#include <QRect>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

#include <memory>
#include <type_traits>

// The host reaches a mediator's QObject at the mediator's own address (APP_MediatorObject.h).
static_assert(std::is_base_of_v<QObject, JS_Mediator>, "JS_Mediator is a QObject");

JS_Mediator::JS_Mediator(APP_Host* host, const QString& name)
    : QObject(nullptr)
    , m_host(host)
    , m_name(name)
{
    // The host publishes a mediator under its object name.
    setObjectName(name);
}

JS_Mediator::~JS_Mediator() = default;

void JS_Mediator::setWebView(QWebView* view)
{
    m_webView = view;
}

void JS_Mediator::errorHandler(const std::exception& e)
{
    UTL_Barrier::report(m_host, e);
}

void JS_Mediator::applySkipMode(int) { }

void JS_Mediator::applySkipFrames(double) { }

int JS_Mediator::getSkipMode()
{
    return 0;
}

void JS_Mediator::setSkipFrames(double) { }

double JS_Mediator::getSkipFrames()
{
    return 1.0;
}

bool JS_Mediator::isFileMode()
{
    return UTL_Barrier::reported(m_host, false, [this] { return m_host->isFileMode(); });
}

void JS_Mediator::addPrefsJSObject()
{
    if (m_webView && m_webView->page())
        m_webView->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("prefs"), this);
}

QVariantList JS_Mediator::getDeviceInfoList(bool isMinilist)
{
    return UTL_Barrier::reported(
        m_host, QVariantList(), [&] { return JS_DeviceInfo::list(m_host, isMinilist); });
}

void JS_Mediator::setStyle(const QString& style)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator::setStyle"),
        FunctionLogGuard::parameter(QStringLiteral("style"), style));
    UTL_Barrier::reported(m_host, [&] {
        m_host->setPrefString(PREF_KEY_ENV_STYLE, style);
        if (QWidget* mainWindow = m_host->getMainWindow()) {
            const auto dialogs
                = mainWindow->findChildren<QDialog*>(QStringLiteral("GUI_MobileDialog"));
            if (!dialogs.isEmpty())
                UTL_Messages::setNativeStyle(m_host, dialogs.first());
        }
    });
}

QString JS_Mediator::getStyle()
{
    return UTL_Barrier::reported(m_host, QString(), [this] {
        QString style;
        return m_host->getPrefString(style, PREF_KEY_ENV_STYLE, QStringLiteral("light"));
    });
}

void JS_Mediator::openPlugin(const QString& name)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator::openPlugin"),
        FunctionLogGuard::parameter(QStringLiteral("name"), name));
    UTL_Barrier::reported(m_host, [&] { m_host->showPage(name); });
}

void JS_Mediator::closePlugin()
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator::closePlugin"), QString());
    UTL_Barrier::reported(m_host, [this] { m_host->showPreviousPage(); });
}

void JS_Mediator::closePlugin(const QString& name)
{
    UTL_Barrier::reported(m_host, [this] { m_host->deterUpdateUI(true); });
    {
        OperationEventHandler guard(this, QStringLiteral("JS_Mediator::closePlugin"),
            FunctionLogGuard::parameter(QStringLiteral("name"), name));
        UTL_Barrier::reported(m_host, [&] { m_host->pageClosed(name); });
    }
    UTL_Barrier::reported(m_host, [this] { m_host->deterUpdateUI(false); });
}

void JS_Mediator::info(const QString& message)
{
    UTL_Barrier::reported(m_host, [&] { m_host->showInformation(message, nullptr); });
}

void JS_Mediator::warn(const QString& message)
{
    UTL_Barrier::reported(m_host, [&] { m_host->showWarning(message, nullptr); });
}

void JS_Mediator::warn(const QString& message, const QStringList& messages)
{
    // The host's list variants have no parent argument and no warning kind of their own.
    UTL_Barrier::reported(m_host, [&] { m_host->showInformationList(message, messages); });
}

void JS_Mediator::alert(const QString& message)
{
    UTL_Barrier::reported(m_host, [&] { m_host->showError(message, nullptr); });
}

void JS_Mediator::alert(const QString& message, const QStringList& messages)
{
    UTL_Barrier::reported(m_host, [&] { m_host->showErrorList(message, messages); });
}

bool JS_Mediator::confirm(const QString& message)
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return m_host->confirm(message, nullptr, QVariantMap()); });
}

QString JS_Mediator::translate(const QString& string)
{
    return UTL_Messages::translate(m_host, string);
}

QString JS_Mediator::translate(const QString& string, const QString& arg)
{
    return UTL_Messages::translate(m_host, string).arg(UTL_Messages::translate(m_host, arg));
}

bool JS_Mediator::isReady()
{
    return UTL_Barrier::reported(m_host, false, [this] { return m_host->isReady(); });
}

bool JS_Mediator::isLiveMode()
{
    return UTL_Barrier::reported(m_host, false, [this] { return m_host->isCameraMode(); });
}

bool JS_Mediator::isMemoryMode()
{
    return UTL_Barrier::reported(m_host, false, [this] { return m_host->isMemoryMode(); });
}

bool JS_Mediator::isPlaying()
{
    // The host's interface has no playing state of a document yet: nothing ever plays.
    return false;
}

bool JS_Mediator::isConnected()
{
    return UTL_Barrier::reported(m_host, false, [this] {
        DOC_Interface* doc = m_host->currentDocument();
        return doc && doc->isConnected();
    });
}

QString JS_Mediator::load(const QString& fileName)
{
    QFile file(QStringLiteral(":/") + fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qWarning().noquote() << "not found" << fileName;
        return QString();
    }
    return QString::fromUtf8(file.readAll());
}

void JS_Mediator::updateUI()
{
    UTL_Barrier::reported(m_host, [this] { m_host->updateUI(m_updateMask, true); });
}

void JS_Mediator::deterUpdateUI(bool deter)
{
    UTL_Barrier::reported(m_host, [&] { m_host->deterUpdateUI(deter); });
}

void JS_Mediator::openAbouTarvixDialog()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator::openAbouTarvixDialog"), QString());
    UTL_Barrier::reported(m_host, [this] { m_host->showAbout(); });
}

void JS_Mediator::log(const QString&) { }

void JS_Mediator::infoLog(const QString& msg)
{
    qInfo().noquote() << msg;
}

void JS_Mediator::debugLog(const QString&) { }

void JS_Mediator::errorLog(const QString& msg)
{
    qCritical().noquote() << msg;
}

bool JS_Mediator::isWaveDataAcquisition()
{
    return UTL_Barrier::reported(m_host, false, [this] { return m_host->isWaveDataAcquisition(); });
}

bool JS_Mediator::isUpdateIgnore()
{
    return UTL_Barrier::reported(m_host, false, [this] { return m_host->isUpdateIgnore(); });
}

void JS_Mediator::setDisableAllQuickTool()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator::setDisableAllQuickTool"), QString());
    UTL_Barrier::reported(m_host, [this] {
        m_host->deselectTool(QString());
        m_host->documentsChanged();
        m_host->refreshQuickTools();
    });
}

void JS_Mediator::userOperationLogWebView(const QString& url, const QString& operation,
    const QString& control, const QString& id, const QString& className, const QVariant& value)
{
    UserOperationLog::writePageOperation(url, operation, control, id, className, value.toString());
}

void JS_Mediator::userOperationErrorLog(const QString& message)
{
    UserOperationLog::writeError(message);
}

int JS_Mediator::countMdiWindow(bool visible)
{
    return UTL_Barrier::reported(m_host, 0, [&] { return m_host->windowCount(visible, 2); });
}

bool JS_Mediator::isRostraRunning()
{
    return UTL_Barrier::reported(m_host, false, [this] { return m_host->isRostraRunning(); });
}

void JS_Mediator::checkRestoredPrefs()
{
    UTL_Barrier::reported(m_host, [this] {
        if (m_host->hasRestoredPrefs())
            m_host->applyRestoredPrefs();
    });
}

void JS_Mediator::hideSelectBox()
{
    UTL_Barrier::reported(m_host, [this] { m_host->hideSelectBox(); });
}

bool JS_Mediator::isShownDropBox()
{
    return UTL_Barrier::reported(m_host, false, [this] { return m_host->isShownDropBox(); });
}

void JS_Mediator::showDropDownBox(const QString& key, int x, int y, int width, int height)
{
    UTL_Barrier::reported(
        m_host, [&] { m_host->showDropDownBox(key, QRect(x, y, width, height)); });
}

void JS_Mediator::hideDropDownBox(const QString& key)
{
    UTL_Barrier::reported(m_host, [&] { m_host->hideDropDownBox(key); });
}

void JS_Mediator::hideDropDownBox(const QString& key, int x, int y)
{
    UTL_Barrier::reported(m_host, [&] { m_host->hideDropDownBoxAt(key, QPoint(x, y)); });
}

int JS_Mediator::getPrefInt(const QString& name, const QVariant& defaultValue)
{
    return UTL_Barrier::reported(m_host, 0, [&] { return m_host->getPrefInt(name, defaultValue); });
}

bool JS_Mediator::getPrefBool(const QString& name, const QVariant& defaultValue)
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return m_host->getPrefBool(name, defaultValue); });
}

float JS_Mediator::getPrefFloat(const QString& name, const QVariant& defaultValue)
{
    return UTL_Barrier::reported(
        m_host, 0.0f, [&] { return m_host->getPrefFloat(name, defaultValue); });
}

QString JS_Mediator::getPrefString(const QString& name, const QVariant& defaultValue)
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        QString value;
        return m_host->getPrefString(value, name, defaultValue);
    });
}

template <typename Write>
void JS_Mediator::setPref(const char* operation, const QString& name, bool update, Write write)
{
    std::shared_ptr<OperationEventHandler> guard;
    if (update)
        guard = std::make_shared<OperationEventHandler>(
            this, QStringLiteral("JS_Mediator::") + QLatin1String(operation), QString());
    UTL_Barrier::reported(m_host, [&] { write(name); });
}

void JS_Mediator::setPrefInt(const QString& name, int value, bool update)
{
    setPref(
        "setPrefInt", name, update, [&](const QString& key) { m_host->setPrefInt(key, value); });
}

void JS_Mediator::setPrefBool(const QString& name, bool value, bool update)
{
    setPref(
        "setPrefBool", name, update, [&](const QString& key) { m_host->setPrefBool(key, value); });
}

void JS_Mediator::setPrefFloat(const QString& name, float value, bool update)
{
    setPref("setPrefFloat", name, update,
        [&](const QString& key) { m_host->setPrefFloat(key, value); });
}

void JS_Mediator::setPrefString(const QString& name, const QString& value, bool update)
{
    setPref("setPrefString", name, update,
        [&](const QString& key) { m_host->setPrefString(key, value); });
}

void JS_Mediator::setPrefDQString(const QString& name, const QString& value, bool update)
{
    setPref("setPrefDQString", name, update,
        [&](const QString& key) { m_host->setPrefVariant(key, value); });
}

int JS_Mediator::openPrefsDialog(const QString& page)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator::openPrefsDialog"),
        FunctionLogGuard::parameter(QStringLiteral("page"), page));
    return UTL_Barrier::reported(m_host, 0, [&] {
        if (m_host->isCameraMode())
            m_host->pauseLive();
        APP_PrefsDialog* dialog = m_host->prefsDialog();
        if (!dialog)
            return 0;
        dialog->selectPage(UTL_Messages::translate(m_host, page));
        return dialog->run();
    });
}

void JS_Mediator::openPrefsEthernetSettings()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator::openPrefsEthernetSettings"), QString());
    UTL_Barrier::reported(m_host, [this] { m_host->openEthernetSettings(); });
}

void JS_Mediator::openExportSupportFileDialog()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator::openExportSupportFileDialog"), QString());
    JS_SupportFileExport::run(m_host);
}

QString JS_Mediator::getControlStatus(DOC_Interface* pDoc)
{
    return UTL_Barrier::reported(
        m_host, QString(), [&] { return JS_ControlStatus::build(m_host, pDoc); });
}

QVariantList JS_Mediator::getSelectedDockey()
{
    return UTL_Barrier::reported(m_host, QVariantList(), [this] {
        QVariantList keys;
        for (int key : m_host->documentKeys(0))
            keys.append(QString::number(key));
        return keys;
    });
}

void JS_Mediator::setSelectDoc(const QString& docKey)
{
    const unsigned mask = m_updateMask;
    m_updateMask = 63;
    const ScopeExit restoreMask([&] { m_updateMask = mask; });
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator::setSelectDocSub"),
        FunctionLogGuard::parameter(QStringLiteral("docKey"), docKey));
    UTL_Barrier::reported(m_host, [&] {
        m_host->deterUpdateUI(true);
        const ScopeExit allow([this] {
            UTL_Barrier::sealed(
                m_host, "JS_Mediator::setSelectDoc", [this] { m_host->deterUpdateUI(false); });
        });
        bool ok = false;
        const int key = docKey.toInt(&ok, 10);
        QList<int> keys;
        if (ok)
            keys.append(key);
        m_host->selectDocuments(keys);
    });
}

void JS_Mediator::selectAllDocs()
{
    const unsigned mask = m_updateMask;
    m_updateMask = 63;
    const ScopeExit restoreMask([&] { m_updateMask = mask; });
    UTL_Barrier::reported(m_host, [this] {
        const int current = m_host->currentKey();
        {
            OperationEventHandler guard(
                this, QStringLiteral("JS_Mediator::selectAllDocsSub"), QString());
            m_host->deterUpdateUI(true);
            const ScopeExit allow([this] {
                UTL_Barrier::sealed(
                    m_host, "JS_Mediator::selectAllDocs", [this] { m_host->deterUpdateUI(false); });
            });
            m_host->selectAllDocuments(this);
        }
        if (current != -1)
            m_host->setCurrentDocument(current);
    });
}

void JS_Mediator::copySelectAreaToClipboard()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator::copySelectAreaToClipboard"), QString());
    UTL_Barrier::reported(m_host, [this] { m_host->copySelectArea(2); });
}

QString JS_Mediator::getCalibrationUnits()
{
    return UTL_Barrier::reported(m_host, QString(), [this] {
        const bool metric = m_host->getPrefInt(PREF_KEY_CUSTOMIZE_UNIT_SYSTEM, QVariant()) != 0;
        const QStringList units = metric
            ? QStringList { QStringLiteral("Micro (\u00b5m)"), QStringLiteral("Milimeters (mm)"),
                  QStringLiteral("Meters (m)") }
            : QStringList { QStringLiteral("Inches (in)"), QStringLiteral("Feet (ft)"),
                  QStringLiteral("Yard (yd)") };
        const QStringList views = metric
            ? QStringList { QStringLiteral("\u00b5m"), QStringLiteral("mm"), QStringLiteral("m") }
            : QStringList { QStringLiteral("inch"), QStringLiteral("feet"),
                  QStringLiteral("yard") };
        QString text = QStringLiteral("[");
        for (int i = 0; i < units.size(); ++i) {
            JS_OrderedJson unit;
            unit.add(QStringLiteral("value"), units.at(i));
            unit.add(QStringLiteral("view"), UTL_Messages::translate(m_host, views.at(i)));
            text += (i > 0 ? QStringLiteral(",") : QString()) + unit.text();
        }
        return text + QStringLiteral("]");
    });
}

int JS_Mediator::getRangeMax()
{
    return UTL_Barrier::reported(m_host, 0, [this] {
        int depth = 8;
        if (m_host->getPrefBool(PREF_KEY_DISPLAY_WITH_REAL_BIT_DEPTH, QVariant())) {
            int formatDepth = 0;
            int realDepth = 0;
            DOC_Interface* doc = m_host->currentDocument();
            if (doc && doc->imageFormat(formatDepth, realDepth))
                depth = formatDepth > 8 ? realDepth : formatDepth;
        }
        // A depth the int can't hold is no image format: the plain 8 bits stand.
        if (depth < 1 || depth > 30)
            depth = 8;
        return (1 << depth) - 1;
    });
}

void JS_Mediator::setConnectedCameraShowing(bool check)
{
    UTL_Barrier::reported(m_host,
        [&] { m_host->setPrefBool(PREF_KEY_DEVICEMANAGER_CONNECTED_CAMERA_ONLY_SHOWING, check); });
}

bool JS_Mediator::getConnectedCameraShowing()
{
    return UTL_Barrier::reported(m_host, false, [this] {
        return m_host->getPrefBool(PREF_KEY_DEVICEMANAGER_CONNECTED_CAMERA_ONLY_SHOWING, false);
    });
}

void JS_Mediator::updateSkipRange(const QMap<DOC_Interface*, QList<int>>& partitions)
{
    if (partitions.isEmpty())
        return;
    const unsigned lowest = JS_SkipRange::lowestFrames(partitions);
    if (getSkipMode() != 1) {
        m_skipMinFrames = 1.0;
        m_skipMaxFrames = lowest != 0 ? double(lowest) : 1.0;
    } else {
        const QList<quint32> rates = JS_SkipRange::rates(partitions, m_host->isMemoryMode());
        if (rates.isEmpty()) {
            // Without a rate a time means nothing: the setting falls back to frames.
            applySkipMode(0);
            updateSkipRange(partitions);
            return;
        }
        const int base = int(JS_SkipRange::commonBase(rates));
        const bool baseChanged = base != m_skipBase;
        m_skipBase = base;
        m_skipMinFrames = base == 0 ? 1.0 : roundFraction(1000.0 / base, 5);
        m_skipMaxFrames
            = lowest != 0 ? roundFraction(lowest * m_skipMinFrames, 5) : m_skipMinFrames;
        if (baseChanged)
            m_skipSteps.clear();
        if (m_skipSteps.isEmpty())
            m_skipSteps = JS_SkipRange::steps(m_skipMinFrames, m_skipMaxFrames);
    }
    const double value = getSkipFrames();
    const double limited = qBound(m_skipMinFrames, value, m_skipMaxFrames);
    if (limited != value)
        applySkipFrames(limited);
}
