#include "dialogs/GUI_CommentDialog.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "web/GUI_WebView.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebFrame>

namespace {

QWidget* mainWindow(APP_Host* host)
{
    return UTL_Barrier::reported(
        host, static_cast<QWidget*>(nullptr), [host] { return host->getMainWindow(); });
}

QString idList(const QList<int>& ids)
{
    QStringList texts;
    for (int id : ids)
        texts.append(QString::number(id));
    return texts.join(QLatin1Char(','));
}

} // namespace

GUI_CommentDialog::GUI_CommentDialog(APP_Host* host, DOC_Interface* document)
    : GUI_Dialog(mainWindow(host),
        Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint | Qt::WindowTitleHint, true)
    , m_host(host)
    , m_document(document)
    , m_layout(new QVBoxLayout(this))
    , m_webView(new GUI_WebView(host, this))
{
    connect(m_webView->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this,
        &GUI_CommentDialog::populateJavaScriptWindowObject);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_webView->load(QUrl(QStringLiteral("qrc:/commentview.html")));
    setFixedSize(340, 440);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_webView);
    setWindowTitle(UTL_Messages::translate(m_host, QStringLiteral("Comment")));
    UTL_Barrier::reported(m_host, [&] {
        QList<int> keys;
        if (m_document)
            m_host->openedDocumentKeys(keys, true, false);
        else
            keys = m_host->documentKeys(true);
        for (int key : qAsConst(keys)) {
            DOC_Interface* each = m_host->document(key);
            if (!each)
                continue;
            QString comment;
            each->comment(comment).replace(COMMENT_SEPARATOR, QStringLiteral("\n"));
            m_comments.append({ quint32(m_host->documentKey(each)), comment });
        }
    });
}

GUI_CommentDialog::~GUI_CommentDialog()
{
    delete m_webView;
    m_webView = nullptr;
}

void GUI_CommentDialog::comment_ok()
{
    SYNC_TRACE(QStringLiteral("GUI_CommentDialog::comment_ok"), QString());
    UTL_Barrier::reported(m_host, [&] {
        for (const Record& record : qAsConst(m_comments)) {
            if (DOC_Interface* document = m_host->document(int(record.key)))
                document->setComment(record.comment);
        }
        accept();
        close();
    });
}

void GUI_CommentDialog::comment_cancel()
{
    SYNC_TRACE(QStringLiteral("GUI_CommentDialog::comment_cancel"), QString());
    reject();
    close();
}

void GUI_CommentDialog::populateJavaScriptWindowObject()
{
    m_webView->page()->mainFrame()->addToJavaScriptWindowObject(
        QStringLiteral("comment_mediator"), this);
}

QString GUI_CommentDialog::getComment()
{
    if (m_currentItem < 1 || m_currentItem > m_comments.size())
        return QString();
    return m_comments.at(m_currentItem - 1).comment;
}

void GUI_CommentDialog::setComment(const QString& comment)
{
    for (int row : qAsConst(m_selectedItems)) {
        if (row >= 1 && row <= m_comments.size())
            m_comments[row - 1].comment = comment;
    }
}

QString GUI_CommentDialog::translate(const QString& value)
{
    return UTL_Messages::translate(m_host, value);
}

QString GUI_CommentDialog::getStyle()
{
    return UTL_Barrier::reported(m_host, QString(), [this] {
        QString style;
        return m_host->getPrefString(style, PREF_KEY_ENV_STYLE, QStringLiteral("light"));
    });
}

void GUI_CommentDialog::setSelectedItems(const QList<int>& ids)
{
    SYNC_TRACE(QStringLiteral("GUI_CommentDialog::setSelectedItems"),
        FunctionLogGuard::parameter(QStringLiteral("ids"), idList(ids)));
    const QList<int> old = m_selectedItems;
    if (ids.size() == 1) {
        m_currentItem = ids.first();
    } else if (ids.isEmpty()) {
        m_currentItem = 0;
    } else if (ids.size() > old.size()) {
        // Grown: the last row that is new becomes current.
        for (int id : ids) {
            if (!old.contains(id))
                m_currentItem = id;
        }
    } else {
        for (int i = 0; i < old.size(); ++i) {
            if (old.at(i) != m_currentItem)
                continue;
            if (!ids.contains(old.at(i)))
                break;
            // The current row stays selected.
            m_selectedItems = ids;
            return;
        }
        const int left = old.indexOf(m_currentItem);
        if (left >= 0) {
            // The current row left: the next old row behind it that stays, wrapping once
            // round; when none stays, the first of the new selection.
            m_currentItem = ids.first();
            for (int step = 1; step < old.size(); ++step) {
                const int candidate = old.at((left + step) % old.size());
                if (ids.contains(candidate)) {
                    m_currentItem = candidate;
                    break;
                }
            }
        }
    }
    m_selectedItems = ids;
}

QString GUI_CommentDialog::getDocInfos()
{
    SYNC_TRACE(QStringLiteral("GUI_CommentDialog::getDocInfos"), QString());
    return UTL_Barrier::reported(m_host, QString(), [&] {
        DOC_Interface* reference = m_document ? m_document : m_host->currentDocument();
        const int referenceKey = reference ? m_host->documentKey(reference) : INVALID_DOCKEY;
        QJsonArray records;
        int initSelect = 0;
        for (int row = 1; row <= m_comments.size(); ++row) {
            const int key = int(m_comments.at(row - 1).key);
            QString name;
            if (DOC_Interface* document = m_host->document(key))
                document->deviceName(name);
            records.append(
                QJsonObject { { QStringLiteral("recid"), row }, { QStringLiteral("name"), name } });
            if (key == referenceKey)
                initSelect = row;
        }
        return QString::fromUtf8(QJsonDocument(
            QJsonObject { { QStringLiteral("Records"), records },
                { QStringLiteral("InitSelect"),
                    initSelect } }).toJson(QJsonDocument::Compact));
    });
}

QList<int> GUI_CommentDialog::getSelectedItems()
{
    return m_selectedItems;
}
