#include "web/GUI_QrcNetworkAccess.h"

#include <QNetworkRequest>
#include <QUrl>

GUI_QrcNetworkAccess::GUI_QrcNetworkAccess(QObject* parent)
    : QNetworkAccessManager(parent)
{
}

bool GUI_QrcNetworkAccess::isAllowed(const QUrl& url)
{
    const QString scheme = url.scheme();
    // data: and about:blank never leave the process.
    return scheme == QLatin1String("qrc") || scheme == QLatin1String("data")
        || url.toString() == QLatin1String("about:blank");
}

QNetworkReply* GUI_QrcNetworkAccess::createRequest(
    Operation operation, const QNetworkRequest& request, QIODevice* outgoingData)
{
    if (isAllowed(request.url()))
        return QNetworkAccessManager::createRequest(operation, request, outgoingData);
    qWarning().noquote() << "page request refused:" << request.url().toString();
    // An empty address fails at once with an error reply, and nothing is sent.
    return QNetworkAccessManager::createRequest(operation, QNetworkRequest(QUrl()), outgoingData);
}
