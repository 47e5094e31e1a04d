#include "host/HST_ToolPages.h"

#include "host/HST_Host.h"
#include "host/HST_PageStack.h"
#include "plugin/PLG_Interface.h"

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>

HST_ToolPages::HST_ToolPages(HST_Host* host, QMainWindow* window)
    : QObject(window)
    , m_host(host)
    , m_window(window)
{
    connect(host->pages(), &HST_PageStack::changed, this, &HST_ToolPages::showCurrent);
}

void HST_ToolPages::executed(PLG_Interface* plugin)
{
    bool paged = false;
    QString name;
    m_host->plugins().call("isPagedTool", [&] {
        paged = plugin->isPagedTool();
        name = plugin->pageName();
    });
    if (paged)
        m_host->pages()->show(name);
}

QDockWidget* HST_ToolPages::makeDock(const QString& name, PLG_Interface* plugin)
{
    QWidget* page = nullptr;
    m_host->plugins().call("pageWidget", [&] {
        plugin->prepareEmbedding();
        page = plugin->pageWidget();
    });
    if (!page)
        return nullptr;
    auto* dock = new QDockWidget(name, m_window);
    dock->setObjectName(name);
    // The plug-in owns its page: the dock only shows it.
    dock->setWidget(page);
    dock->installEventFilter(this);
    m_window->addDockWidget(Qt::RightDockWidgetArea, dock);
    m_window->resizeDocks({ dock }, { 360 }, Qt::Horizontal);
    m_docks.insert(name, dock);
    return dock;
}

void HST_ToolPages::showCurrent(const QString& current)
{
    m_following = true;
    for (auto it = m_docks.begin(); it != m_docks.end(); ++it) {
        if (it.value() && it.key() != current)
            it.value()->hide();
    }
    PLG_Interface* plugin = current.isEmpty() ? nullptr : m_host->plugins().byName(current);
    QDockWidget* dock = m_docks.value(current);
    if (plugin && !dock)
        dock = makeDock(current, plugin);
    if (plugin && dock) {
        dock->show();
        dock->raise();
        m_host->plugins().call("setActive", [&] { plugin->setActive(true); });
    }
    m_following = false;
}

bool HST_ToolPages::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Close && !m_following) {
        const QString name = object->objectName();
        if (name == m_host->pages()->current()) {
            if (PLG_Interface* plugin = m_host->plugins().byName(name))
                m_host->plugins().call("leaveTool", [&] { plugin->leaveTool(); });
            // A tool that left without telling the host: its page is closed all the same.
            if (m_host->pages()->current() == name)
                m_host->pages()->closed(name);
        }
    }
    return QObject::eventFilter(object, event);
}
