#pragma once

#include "web/GUI_Dialog.h"

#include <QList>

#include <memory>
#include <vector>

class APP_Host;
class GUI_WebView;
class JS_Mediator;
class JS_Mediator_Dialog;
class QVBoxLayout;

// The frame of every web dialog: a page out of the resources in a web view, its mediator
// published by the host, shown with a fade-in once the page is complete. Escape does nothing;
// the close button means Cancel.
class GUI_WebViewDialog : public GUI_Dialog
{
    Q_OBJECT

public:
    // Takes the mediator. The title is a source text, translated by the host.
    GUI_WebViewDialog(APP_Host* host, const QString& title, const QString& url,
        JS_Mediator_Dialog* mediator, QWidget* parent);
    ~GUI_WebViewDialog() override;

    // A further object for the page; the dialog owns it from now on.
    void addMediator(JS_Mediator* mediator);
    GUI_WebView* webView() const { return m_webView; }
    JS_Mediator_Dialog* mediator() const { return m_mediator.get(); }

protected:
    void closeEvent(QCloseEvent* event) override;

    APP_Host* m_host;

private slots:
    void slotRejected();
    void loadStarted();
    void loadProgress(int progress);
    void loadFinished(bool ok);

private:
    std::unique_ptr<JS_Mediator_Dialog> m_mediator;
    std::vector<std::unique_ptr<JS_Mediator>> m_extraMediators;
    // Children of the dialog.
    QVBoxLayout* m_layout;
    GUI_WebView* m_webView;
    bool m_modalAnnounced = false;
};
