#include "host/HST_DialogOpener.h"

#include "host/HST_Host.h"
#include "host/HST_PagePanel.h"
#include "host/HST_Recorder.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QVariantMap>

HST_DialogOpener::HST_DialogOpener(HST_Host* host, QMainWindow* window)
    : QObject(window)
    , m_host(host)
    , m_window(window)
{
}

bool HST_DialogOpener::addPlugin(QObject* plugin)
{
    QObject* factory = plugin->findChild<QObject*>(QStringLiteral("dialogFactory"));
    QVariantList pages;
    if (!factory || !QMetaObject::invokeMethod(factory, "pages", Q_RETURN_ARG(QVariantList, pages)))
        return false;
    m_factory = factory;
    for (const QVariant& entry : qAsConst(pages)) {
        const QVariantMap map = entry.toMap();
        m_pages.append({ map.value(QStringLiteral("page")).toString(),
            map.value(QStringLiteral("kind")).toString(),
            map.value(QStringLiteral("title")).toString() });
    }
    return true;
}

const HST_DialogOpener::Page* HST_DialogOpener::find(const QString& name) const
{
    for (const Page& page : m_pages) {
        if (page.name == name)
            return &page;
    }
    return nullptr;
}

bool HST_DialogOpener::hasPage(const QString& name) const
{
    return find(name) != nullptr;
}

void HST_DialogOpener::record(
    const QString& page, const QString& arg, const char* phase, int result)
{
    QJsonObject event { { QStringLiteral("page"), page }, { QStringLiteral("arg"), arg },
        { QStringLiteral("phase"), QLatin1String(phase) } };
    if (QLatin1String(phase) == QLatin1String("end"))
        event.insert(QStringLiteral("result"), result);
    m_host->recorder()->record(QStringLiteral("open"), event);
}

int HST_DialogOpener::open(const QString& name, const QString& arg)
{
    record(name, arg, "begin");
    const Page* page = find(name);
    int result = -1;
    if (!page || !m_factory) {
        qCritical("no dialog or panel named \"%s\"", qPrintable(name));
    } else if (page->kind == QLatin1String("dialog")) {
        // While it runs, the host counts a plug-in's window as open.
        m_host->setPluginWindowOpen(true);
        QMetaObject::invokeMethod(m_factory, "open", Q_RETURN_ARG(int, result),
            Q_ARG(QString, name), Q_ARG(QString, arg));
        m_host->setPluginWindowOpen(false);
        // What the dialog changed shows now, as a host refreshes once a modal dialog closes:
        // a comment written without telling the host, for one.
        emit m_host->stateChanged();
    } else if (m_panelHandlers.contains(name)) {
        result = m_panelHandlers.value(name)(arg);
    } else {
        result = showPanel(name) ? 1 : -1;
    }
    record(name, arg, "end", result);
    return result;
}

QDockWidget* HST_DialogOpener::makeDock(const Page& page)
{
    auto* dock = new QDockWidget(m_host->translatedText(page.title), m_window);
    dock->setObjectName(page.name);
    QWidget* content = nullptr;
    if (page.kind == QLatin1String("page")) {
        QObject* mediator = nullptr;
        QMetaObject::invokeMethod(m_factory, "createMediator", Q_RETURN_ARG(QObject*, mediator),
            Q_ARG(QString, page.name));
        if (mediator)
            content = new HST_PagePanel(m_host, page.name, mediator, dock);
    } else if (page.kind == QLatin1String("panel")) {
        QMetaObject::invokeMethod(m_factory, "createPanel", Q_RETURN_ARG(QWidget*, content),
            Q_ARG(QString, page.name), Q_ARG(QWidget*, dock));
    }
    if (!content) {
        delete dock;
        return nullptr;
    }
    dock->setWidget(content);
    m_window->addDockWidget(Qt::RightDockWidgetArea, dock);
    m_window->resizeDocks({ dock }, { 440 }, Qt::Horizontal);
    return dock;
}

QDockWidget* HST_DialogOpener::showPanel(const QString& name)
{
    const Page* page = find(name);
    if (!page || !m_factory || page->kind == QLatin1String("dialog"))
        return nullptr;
    QDockWidget* dock = m_docks.value(name);
    if (!dock) {
        dock = makeDock(*page);
        if (!dock)
            return nullptr;
        m_docks.insert(name, dock);
    }
    dock->show();
    dock->raise();
    return dock;
}

HST_PagePanel* HST_DialogOpener::pagePanel(const QString& name)
{
    const Page* page = find(name);
    if (!page || page->kind != QLatin1String("page"))
        return nullptr;
    QDockWidget* dock = m_docks.value(name);
    if (!dock)
        dock = showPanel(name);
    return dock ? qobject_cast<HST_PagePanel*>(dock->widget()) : nullptr;
}

void HST_DialogOpener::setPanelHandler(
    const QString& page, const std::function<int(const QString& arg)>& handler)
{
    m_panelHandlers.insert(page, handler);
}

QWidget* HST_DialogOpener::makePanelWidget(const QString& name, QWidget* parent)
{
    const Page* page = find(name);
    QWidget* widget = nullptr;
    if (page && m_factory && page->kind == QLatin1String("panel"))
        QMetaObject::invokeMethod(m_factory, "createPanel", Q_RETURN_ARG(QWidget*, widget),
            Q_ARG(QString, name), Q_ARG(QWidget*, parent));
    return widget;
}
