#pragma once

#include <QNetworkAccessManager>

// The network of every page: resources of the application only. No page of this system needs
// anything else, so a request elsewhere is a fault of the page, refused and logged.
class GUI_QrcNetworkAccess : public QNetworkAccessManager
{
    Q_OBJECT

public:
    explicit GUI_QrcNetworkAccess(QObject* parent);

    static bool isAllowed(const QUrl& url);

protected:
    QNetworkReply* createRequest(
        Operation operation, const QNetworkRequest& request, QIODevice* outgoingData) override;
};
