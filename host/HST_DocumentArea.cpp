#include "host/HST_DocumentArea.h"

#include "host/HST_Document.h"
#include "host/HST_DocumentView.h"
#include "host/HST_Host.h"

#include <QEvent>
#include <QMdiSubWindow>

HST_DocumentArea::HST_DocumentArea(HST_Host* host, QWidget* parent)
    : QMdiArea(parent)
    , m_host(host)
{
    setObjectName(QStringLiteral("host_documentArea"));
    // A repaint is scheduled, never done on the spot: many updates in one pass paint once. The
    // information block follows the preferences and the documents.
    const auto repaint = [this] {
        for (const QPointer<QMdiSubWindow>& window : qAsConst(m_windows)) {
            if (window && window->widget())
                window->widget()->update();
        }
    };
    connect(host, &HST_Host::uiUpdateRequested, this, repaint);
    connect(host, &HST_Host::stateChanged, this, repaint);
}

void HST_DocumentArea::sync()
{
    m_syncing = true;
    QMap<int, HST_Document*> open;
    for (HST_Document* document : m_host->openDocuments())
        open.insert(document->key(), document);
    for (auto it = m_windows.begin(); it != m_windows.end();) {
        if (!open.contains(it.key()) || !it.value()) {
            delete it.value().data();
            it = m_windows.erase(it);
        } else {
            ++it;
        }
    }
    for (auto it = open.begin(); it != open.end(); ++it) {
        if (m_windows.contains(it.key()))
            continue;
        auto* view = new HST_DocumentView(m_host, it.value());
        QMdiSubWindow* window = addSubWindow(view);
        window->setObjectName(QStringLiteral("document_%1").arg(it.key()));
        window->setWindowTitle(it.value()->title());
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->installEventFilter(this);
        window->resize(320, 260);
        // Side by side, two to a row and two rows; further windows cascade over those.
        const int slot = m_windows.size();
        const int layer = slot / 4;
        window->move((slot % 2) * 324 + layer * 28, (slot / 2 % 2) * 264 + layer * 28);
        window->show();
        m_windows.insert(it.key(), window);
    }
    if (QMdiSubWindow* current = m_windows.value(m_host->currentDocumentKey()))
        setActiveSubWindow(current);
    m_syncing = false;
}

bool HST_DocumentArea::eventFilter(QObject* object, QEvent* event)
{
    // The user's doing only: Qt also activates windows as they show, which must not move the
    // host's current document.
    const bool pressed = event->type() == QEvent::MouseButtonPress;
    const bool closed = event->type() == QEvent::Close;
    if ((pressed || closed) && !m_syncing) {
        for (auto it = m_windows.begin(); it != m_windows.end(); ++it) {
            if (it.value() != object)
                continue;
            const int key = it.key();
            if (pressed) {
                m_host->makeCurrent(key);
            } else {
                // Closed: the document goes with its window.
                m_windows.erase(it);
                m_host->closeDocument(key);
            }
            break;
        }
    }
    return QMdiArea::eventFilter(object, event);
}
