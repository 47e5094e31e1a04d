#include "host/HST_PagePanel.h"

#include "host/HST_Host.h"

#include <QApplication>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

namespace {

// How long a pending update waits for a modal window to close before it looks again.
const int modalRetryMs = 100;

} // namespace

HST_PagePanel::HST_PagePanel(
    HST_Host* host, const QString& page, QObject* mediator, QWidget* parent)
    : QWidget(parent)
    , m_page(page)
    , m_mediator(mediator)
    , m_view(new QWebView(this))
{
    setObjectName(page + QStringLiteral("_panel"));
    m_view->setObjectName(page + QStringLiteral("_view"));
    m_view->setContextMenuPolicy(Qt::NoContextMenu);
    m_view->setAcceptDrops(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);

    m_updateTimer.setSingleShot(true);
    connect(&m_updateTimer, &QTimer::timeout, this, &HST_PagePanel::deliverUpdate);
    connect(host, &HST_Host::stateChanged, this, &HST_PagePanel::requestUpdate);
    connect(host, &HST_Host::uiUpdateRequested, this, &HST_PagePanel::requestUpdate);

    connect(m_view, &QWebView::loadFinished, this, [this] {
        m_loaded = true;
        const QStringList pending = m_pending;
        m_pending.clear();
        for (const QString& script : pending)
            evaluate(script);
    });
    host->publishMediator(m_view, m_mediator.get());
    m_view->load(QUrl(QStringLiteral("qrc:/%1.html").arg(page)));
}

HST_PagePanel::~HST_PagePanel()
{
    // The page first: its script must not call a mediator that has gone.
    delete m_view;
    m_view = nullptr;
}

QVariant HST_PagePanel::evaluate(const QString& script)
{
    return m_view->page()->mainFrame()->evaluateJavaScript(script);
}

void HST_PagePanel::evaluateWhenLoaded(const QString& script)
{
    if (m_loaded)
        evaluate(script);
    else
        m_pending.append(script);
}

void HST_PagePanel::requestUpdate()
{
    if (!m_updateTimer.isActive())
        m_updateTimer.start(0);
}

void HST_PagePanel::deliverUpdate()
{
    if (QApplication::activeModalWidget()) {
        m_updateTimer.start(modalRetryMs);
        return;
    }
    // The signal is the plug-in's; the host reaches it through the meta-object system.
    QMetaObject::invokeMethod(m_mediator.get(), "update");
}
