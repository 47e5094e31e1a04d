#pragma once

#include <QWebPage>

class APP_Host;

// The page of every web view: embeds the host's native widgets for object elements, keeps
// console messages out of the log, and stays within the application's own resources.
class GUI_WebPage : public QWebPage
{
    Q_OBJECT

public:
    GUI_WebPage(APP_Host* host, QObject* parent);

protected:
    QObject* createPlugin(const QString& classid, const QUrl& url, const QStringList& paramNames,
        const QStringList& paramValues) override;
    void javaScriptConsoleMessage(
        const QString& message, int lineNumber, const QString& sourceID) override;
    bool acceptNavigationRequest(
        QWebFrame* frame, const QNetworkRequest& request, NavigationType type) override;

private:
    APP_Host* m_host;
};
