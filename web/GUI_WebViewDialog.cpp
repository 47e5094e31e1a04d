#include "web/GUI_WebViewDialog.h"

#include "plugin/APP_Host.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "web/GUI_WebView.h"
#include "web/JS_Mediator_Dialog.h"

#include <QCloseEvent>
#include <QEasingCurve>
#include <QPropertyAnimation>
#include <QUrl>
#include <QVBoxLayout>

GUI_WebViewDialog::GUI_WebViewDialog(APP_Host* host, const QString& title, const QString& url,
    JS_Mediator_Dialog* mediator, QWidget* parent)
    : GUI_Dialog(
        parent, Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint, true)
    , m_host(host)
    , m_mediator(mediator)
    , m_layout(new QVBoxLayout(this))
    , m_webView(new GUI_WebView(host, this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_webView);
    setWindowTitle(UTL_Messages::translate(m_host, title));

    connect(m_mediator.get(), &JS_Mediator_Dialog::accept, this, &QDialog::accept);
    connect(m_mediator.get(), &JS_Mediator_Dialog::reject, this, &QDialog::reject);
    connect(this, &QDialog::rejected, this, &GUI_WebViewDialog::slotRejected);
    connect(m_webView, &QWebView::loadStarted, this, &GUI_WebViewDialog::loadStarted);
    connect(m_webView, &QWebView::loadProgress, this, &GUI_WebViewDialog::loadProgress);
    connect(m_webView, &QWebView::loadFinished, this, &GUI_WebViewDialog::loadFinished);

    // Published before the load, so the object exists when the page's first script runs.
    m_host->attachMediator(m_webView, m_mediator.get());
    m_webView->load(QUrl(url));
    // Last: a constructor that throws runs no destructor, which would end the announcement.
    if (m_host->isModalAnnounced()) {
        m_host->beginModalDialog();
        m_modalAnnounced = true;
    }
}

GUI_WebViewDialog::~GUI_WebViewDialog()
{
    UTL_Barrier::sealed(m_host, "GUI_WebViewDialog::~GUI_WebViewDialog", [&] {
        if (m_modalAnnounced && !m_host->isShuttingDown())
            m_host->endModalDialog();
    });
    // The view, a child, goes first: its page must not call a deleted mediator while it
    // unloads. The mediators go with the members.
    m_webView->close();
    delete m_webView;
    m_webView = nullptr;
}

void GUI_WebViewDialog::addMediator(JS_Mediator* mediator)
{
    m_extraMediators.emplace_back(mediator);
    m_host->attachMediator(m_webView, mediator);
}

void GUI_WebViewDialog::closeEvent(QCloseEvent* event)
{
    SYNC_TRACE(QStringLiteral("GUI_WebViewDialog::closeEvent"), QString());
    reject();
    event->accept();
}

void GUI_WebViewDialog::slotRejected()
{
    emit m_mediator->rejected();
}

void GUI_WebViewDialog::loadStarted()
{
    SYNC_TRACE(QStringLiteral("GUI_WebViewDialog::loadStarted"), QString());
    UTL_Barrier::reported(m_host, [&] { m_host->deterUpdateUI(true); });
    m_webView->setFocus(Qt::OtherFocusReason);
    setWindowOpacity(0.0);
}

void GUI_WebViewDialog::loadProgress(int) { }

void GUI_WebViewDialog::loadFinished(bool ok)
{
    SYNC_TRACE(QStringLiteral("GUI_WebViewDialog::loadFinished"),
        FunctionLogGuard::parameter(QStringLiteral("ok"), ok));
    UTL_Messages::centerOnScreen(m_host, this);
    auto* fadeIn = new QPropertyAnimation(this, "windowOpacity", this);
    fadeIn->setDuration(500);
    fadeIn->setEasingCurve(QEasingCurve::InExpo);
    fadeIn->setStartValue(0.0);
    fadeIn->setEndValue(1.0);
    fadeIn->start(QAbstractAnimation::DeleteWhenStopped);
    UTL_Barrier::reported(m_host, [&] {
        m_host->deterUpdateUI(false);
        m_host->updateUI(0xFFFFFFFFu, true);
    });
}
