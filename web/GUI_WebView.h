#pragma once

#include <QMenu>
#include <QWebView>

#include <memory>

class APP_Host;
class GUI_WebPage;

// The view of every web dialog: no context menu, no drops (a dropped file would replace the
// page).
class GUI_WebView : public QWebView
{
    Q_OBJECT

public:
    GUI_WebView(APP_Host* host, QWidget* parent);
    ~GUI_WebView() override;

private slots:
    void showCustomContextMenu(const QPoint& pos);
    void execWebInspector();

private:
    std::unique_ptr<GUI_WebPage> m_page;
    QMenu m_contextMenu;
    QWidget* m_inspector = nullptr;
};
