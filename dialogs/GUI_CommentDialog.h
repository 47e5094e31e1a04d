#pragma once

#include "web/GUI_Dialog.h"

#include <QList>
#include <QString>

class APP_Host;
class DOC_Interface;
class GUI_WebView;
class QVBoxLayout;

// The comments of all documents in one go: the page lists the documents, the user selects one
// or several and writes one text for them. Works on copies; nothing reaches a document before
// OK. The dialog is its own page object, "comment_mediator".
class GUI_CommentDialog : public GUI_Dialog
{
    Q_OBJECT

public:
    // document may be null: then the host's current document is the one preselected.
    GUI_CommentDialog(APP_Host* host, DOC_Interface* document);
    ~GUI_CommentDialog() override;

    GUI_WebView* webView() const { return m_webView; }

public slots:
    void comment_ok();
    void comment_cancel();
    void populateJavaScriptWindowObject();
    QString getComment();
    void setComment(const QString& comment);
    QString translate(const QString& value);
    QString getStyle();
    void setSelectedItems(const QList<int>& ids);
    QString getDocInfos();
    QList<int> getSelectedItems();

private:
    struct Record
    {
        quint32 key;
        QString comment;
    };

    APP_Host* m_host;
    DOC_Interface* m_document;
    QVBoxLayout* m_layout;
    GUI_WebView* m_webView;
    // Row numbers from 1; 0: none.
    int m_currentItem = 0;
    QList<int> m_selectedItems;
    QList<Record> m_comments;
};
