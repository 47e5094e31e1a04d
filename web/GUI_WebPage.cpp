#include "web/GUI_WebPage.h"

#include "plugin/APP_Host.h"
#include "plugin/PLG_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/UTL_Barrier.h"
#include "web/GUI_QrcNetworkAccess.h"

#include <QHash>
#include <QNetworkRequest>
#include <QWebSettings>
#include <QWidget>

GUI_WebPage::GUI_WebPage(APP_Host* host, QObject* parent)
    : QWebPage(parent)
    , m_host(host)
{
    setNetworkAccessManager(new GUI_QrcNetworkAccess(this));
    // Object elements reach createPlugin only with plug-ins on.
    settings()->setAttribute(QWebSettings::PluginsEnabled, true);
}

QObject* GUI_WebPage::createPlugin(
    const QString& classid, const QUrl&, const QStringList&, const QStringList&)
{
    if (!m_host)
        return nullptr;
    return UTL_Barrier::reported(m_host, static_cast<QObject*>(nullptr), [&]() -> QObject* {
        if (classid == QLatin1String("mdi"))
            return m_host->mdiWidget();
        static const QHash<QString, QString> pluginOfClass {
            { QStringLiteral("histogram"), PAGE_OBJECT_HISTOGRAM },
            { QStringLiteral("lineprofile"), PAGE_OBJECT_LINEPROFILE },
            { QStringLiteral("lut"), PAGE_OBJECT_LUT },
            { QStringLiteral("sensorlut"), PAGE_OBJECT_SENSORLUT },
            { QStringLiteral("livecontrol_hwimage_trigger_histogram"), PAGE_OBJECT_LIVECONTROL },
            { QStringLiteral("livecontrol_auto_exposure_histogram"), PAGE_OBJECT_LIVECONTROL },
            { QStringLiteral("imagetrigger_histogram"), PAGE_OBJECT_IMAGETRIGGER },
            { QStringLiteral("analoggain"), PAGE_OBJECT_ANALOGGAIN },
            { QStringLiteral("focuscheck"), PAGE_OBJECT_FOCUSCHECK },
        };
        const auto found = pluginOfClass.constFind(classid);
        if (found == pluginOfClass.constEnd())
            return nullptr;
        PLG_Interface* plugin = m_host->pluginByName(found.value());
        if (!plugin)
            return nullptr;
        plugin->prepareEmbedding();
        return plugin->pageWidget();
    });
}

void GUI_WebPage::javaScriptConsoleMessage(const QString&, int, const QString&) { }

bool GUI_WebPage::acceptNavigationRequest(
    QWebFrame* frame, const QNetworkRequest& request, NavigationType type)
{
    if (!GUI_QrcNetworkAccess::isAllowed(request.url())) {
        qWarning().noquote() << "page navigation refused:" << request.url().toString();
        return false;
    }
    return QWebPage::acceptNavigationRequest(frame, request, type);
}
