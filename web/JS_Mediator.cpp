#include "web/JS_Mediator.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Messages.h"
#include "util/UserOperationLog.h"
#include "web/OperationEventHandler.h"

#include <QDialog>
#include <QFile>
#include <QRect>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

#include <memory>

namespace {

// A host call made for a page: a throw must not unwind into the script engine, so even the
// plain forwarders end in the host's report and give the neutral value.
template <typename Result, typename Call>
Result forward(JS_Mediator* mediator, Result neutral, Call call)
{
    try {
        return call();
    } catch (const std::exception& e) {
        mediator->errorHandler(e);
    }
    return neutral;
}

template <typename Call> void forward(JS_Mediator* mediator, Call call)
{
    try {
        call();
    } catch (const std::exception& e) {
        mediator->errorHandler(e);
    }
}

} // namespace

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
    if (m_host)
        m_host->reportException(e);
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
    return forward(this, false, [this] { return m_host->isFileMode(); });
}

void JS_Mediator::addPrefsJSObject()
{
    if (m_webView && m_webView->page())
        m_webView->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("prefs"), this);
}

void JS_Mediator::setStyle(const QString& style)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator::setStyle"),
        FunctionLogGuard::parameter(QStringLiteral("style"), style));
    try {
        m_host->setPrefString(QStringLiteral("env/style"), style);
        if (QWidget* mainWindow = m_host->getMainWindow()) {
            const auto dialogs
                = mainWindow->findChildren<QDialog*>(QStringLiteral("GUI_MobileDialog"));
            if (!dialogs.isEmpty())
                UTL_Messages::setNativeStyle(m_host, dialogs.first());
        }
    } catch (const std::exception& e) {
        errorHandler(e);
    }
}

QString JS_Mediator::getStyle()
{
    return forward(this, QString(), [this] {
        QString style;
        return m_host->getPrefString(style, QStringLiteral("env/style"), QStringLiteral("light"));
    });
}

void JS_Mediator::openPlugin(const QString& name)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator::openPlugin"),
        FunctionLogGuard::parameter(QStringLiteral("name"), name));
    forward(this, [&] { m_host->showPage(name); });
}

void JS_Mediator::closePlugin()
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator::closePlugin"), QString());
    forward(this, [this] { m_host->showPreviousPage(); });
}

void JS_Mediator::closePlugin(const QString& name)
{
    forward(this, [this] { m_host->deterUpdateUI(true); });
    {
        OperationEventHandler guard(this, QStringLiteral("JS_Mediator::closePlugin"),
            FunctionLogGuard::parameter(QStringLiteral("name"), name));
        forward(this, [&] { m_host->pageClosed(name); });
    }
    forward(this, [this] { m_host->deterUpdateUI(false); });
}

void JS_Mediator::info(const QString& message)
{
    forward(this, [&] { m_host->showInformation(message, nullptr); });
}

void JS_Mediator::warn(const QString& message)
{
    forward(this, [&] { m_host->showWarning(message, nullptr); });
}

void JS_Mediator::warn(const QString& message, const QStringList& messages)
{
    // The host's list variants have no parent argument and no warning kind of their own.
    forward(this, [&] { m_host->showInformationList(message, messages); });
}

void JS_Mediator::alert(const QString& message)
{
    forward(this, [&] { m_host->showError(message, nullptr); });
}

void JS_Mediator::alert(const QString& message, const QStringList& messages)
{
    forward(this, [&] { m_host->showErrorList(message, messages); });
}

bool JS_Mediator::confirm(const QString& message)
{
    return forward(this, false, [&] { return m_host->confirm(message, nullptr, QVariantMap()); });
}

QString JS_Mediator::translate(const QString& string)
{
    return forward(this, QString(), [&] { return m_host->translate(string); });
}

QString JS_Mediator::translate(const QString& string, const QString& arg)
{
    return forward(
        this, QString(), [&] { return m_host->translate(string).arg(m_host->translate(arg)); });
}

bool JS_Mediator::isReady()
{
    return forward(this, false, [this] { return m_host->isReady(); });
}

bool JS_Mediator::isLiveMode()
{
    return forward(this, false, [this] { return m_host->isCameraMode(); });
}

bool JS_Mediator::isMemoryMode()
{
    return forward(this, false, [this] { return m_host->isMemoryMode(); });
}

bool JS_Mediator::isPlaying()
{
    // The host's interface has no playing state of a document yet: nothing ever plays.
    return false;
}

bool JS_Mediator::isConnected()
{
    return forward(this, false, [this] {
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
    forward(this, [this] { m_host->updateUI(m_updateMask, true); });
}

void JS_Mediator::deterUpdateUI(bool deter)
{
    forward(this, [&] { m_host->deterUpdateUI(deter); });
}

void JS_Mediator::openAbouTarvixDialog()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator::openAbouTarvixDialog"), QString());
    forward(this, [this] { m_host->showAbout(); });
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
    return forward(this, false, [this] { return m_host->isWaveDataAcquisition(); });
}

bool JS_Mediator::isUpdateIgnore()
{
    return forward(this, false, [this] { return m_host->isUpdateIgnore(); });
}

void JS_Mediator::setDisableAllQuickTool()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator::setDisableAllQuickTool"), QString());
    forward(this, [this] {
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
    return forward(this, 0, [&] { return m_host->windowCount(visible, 2); });
}

bool JS_Mediator::isRostraRunning()
{
    return forward(this, false, [this] { return m_host->isRostraRunning(); });
}

void JS_Mediator::checkRestoredPrefs()
{
    forward(this, [this] {
        if (m_host->hasRestoredPrefs())
            m_host->applyRestoredPrefs();
    });
}

void JS_Mediator::hideSelectBox()
{
    forward(this, [this] { m_host->hideSelectBox(); });
}

bool JS_Mediator::isShownDropBox()
{
    return forward(this, false, [this] { return m_host->isShownDropBox(); });
}

void JS_Mediator::showDropDownBox(const QString& key, int x, int y, int width, int height)
{
    forward(this, [&] { m_host->showDropDownBox(key, QRect(x, y, width, height)); });
}

void JS_Mediator::hideDropDownBox(const QString& key)
{
    forward(this, [&] { m_host->hideDropDownBox(key); });
}

void JS_Mediator::hideDropDownBox(const QString& key, int x, int y)
{
    forward(this, [&] { m_host->hideDropDownBoxAt(key, QPoint(x, y)); });
}

int JS_Mediator::getPrefInt(const QString& name, const QVariant& defaultValue)
{
    return forward(this, 0, [&] { return m_host->getPrefInt(name, defaultValue); });
}

bool JS_Mediator::getPrefBool(const QString& name, const QVariant& defaultValue)
{
    return forward(this, false, [&] { return m_host->getPrefBool(name, defaultValue); });
}

float JS_Mediator::getPrefFloat(const QString& name, const QVariant& defaultValue)
{
    return forward(this, 0.0f, [&] { return m_host->getPrefFloat(name, defaultValue); });
}

QString JS_Mediator::getPrefString(const QString& name, const QVariant& defaultValue)
{
    return forward(this, QString(), [&] {
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
    forward(this, [&] { write(name); });
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
