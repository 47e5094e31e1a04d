#include "dialogs/GUI_SelectBox.h"

#include "dialogs/JS_Mediator_SelectBox.h"
#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"
#include "util/UTL_Barrier.h"
#include "web/GUI_WebView.h"

#include <QUrl>
#include <QVBoxLayout>
#include <QWebFrame>
#include <QWebPage>

GUI_SelectBox::GUI_SelectBox(APP_Host* host, QWidget* parent)
    : QWidget(parent)
    , m_host(host)
    , m_mediator(new JS_Mediator_SelectBox(host, QStringLiteral("items")))
    , m_view(new GUI_WebView(host, this))
    , m_items(m_mediator.get())
{
    setObjectName(QStringLiteral("GUI_SelectBox"));
    m_view->setObjectName(QStringLiteral("selectbox_view"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    resize(200, 160);
    setVisible(false);
    connect(m_view->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this,
        &GUI_SelectBox::addJSObject);
    connect(m_view, &QWebView::loadFinished, this, &GUI_SelectBox::onLoadFinish);
    connect(m_mediator.get(), &JS_Mediator::close, this, &GUI_SelectBox::onClose);
    connect(m_mediator.get(), &JS_Mediator::update, this, &GUI_SelectBox::onUpdate);
    m_mediator->setWebView(m_view);
    onUpdate();
    m_view->load(QUrl(QStringLiteral("qrc:/selectbox.html")));
}

GUI_SelectBox::~GUI_SelectBox()
{
    // The page first: its script must not reach a mediator that has gone.
    delete m_view;
}

QObject* GUI_SelectBox::items() const
{
    return m_items;
}

void GUI_SelectBox::setWantVisible(bool visible)
{
    m_wantVisible = visible;
    if (m_loaded)
        setVisible(visible);
}

void GUI_SelectBox::addJSObject()
{
    UTL_Barrier::reported(m_host, [this] {
        QWebFrame* frame = m_view->page()->mainFrame();
        frame->addToJavaScriptWindowObject(QStringLiteral("app"), m_host->scriptObject());
        frame->addToJavaScriptWindowObject(QStringLiteral("main"), m_host->mainScriptObject());
        frame->addToJavaScriptWindowObject(QStringLiteral("items"), m_items);
    });
}

void GUI_SelectBox::onLoadFinish(bool ok)
{
    m_loaded = ok;
    setVisible(m_wantVisible);
}

void GUI_SelectBox::onClose()
{
    m_wantVisible = false;
    hide();
}

void GUI_SelectBox::onUpdate()
{
    UTL_Barrier::reported(m_host, [this] {
        QString style;
        m_host->getPrefString(style, PREF_KEY_ENV_STYLE, QStringLiteral("light"));
        m_view->setStyleSheet(style == QLatin1String("light") ? QStringLiteral("background:#eee;")
                                                              : QStringLiteral("background:#333;"));
    });
}
