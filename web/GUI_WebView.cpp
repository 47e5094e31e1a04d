#include "web/GUI_WebView.h"

#include "web/GUI_WebPage.h"

#include <QAction>

GUI_WebView::GUI_WebView(APP_Host* host, QWidget* parent)
    : QWebView(parent)
    , m_page(std::make_unique<GUI_WebPage>(host, nullptr))
{
    setPage(m_page.get());
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
}

GUI_WebView::~GUI_WebView()
{
    // The page is ours, not the view's: detach it first so the view doesn't touch it later.
    setPage(nullptr);
    if (m_inspector) {
        m_inspector->close();
        delete m_inspector;
    }
}

void GUI_WebView::showCustomContextMenu(const QPoint& pos)
{
    if (!m_contextMenu.actions().isEmpty())
        m_contextMenu.exec(mapToGlobal(pos));
}

void GUI_WebView::execWebInspector()
{
    if (m_inspector)
        m_page->triggerAction(QWebPage::InspectElement, false);
}
