#include "host/HST_SelectBoxHost.h"

#include "host/HST_DialogOpener.h"
#include "host/HST_Document.h"
#include "host/HST_Host.h"
#include "host/HST_LiveControlPage.h"
#include "host/HST_Recorder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>
#include <QWidget>

namespace {

const char page[] = "selectbox";
// One entry of the box's list, in pixels.
const int rowHeight = 24;
const int loadRetryMs = 20;

} // namespace

HST_SelectBoxHost::HST_SelectBoxHost(HST_Host* host, HST_DialogOpener* opener, QWidget* area)
    : QObject(area)
    , m_host(host)
    , m_opener(opener)
    , m_area(area)
{
    opener->setPanelHandler(QLatin1String(page), [this](const QString& arg) { return show(arg); });
}

QObject* HST_SelectBoxHost::items()
{
    if (!m_box && m_area) {
        m_box = m_opener->makePanelWidget(QLatin1String(page), m_area);
        if (m_box)
            m_box->move(8, 8);
    }
    QObject* items = nullptr;
    if (m_box)
        QMetaObject::invokeMethod(m_box, "items", Q_RETURN_ARG(QObject*, items));
    return items;
}

int HST_SelectBoxHost::show(const QString& what)
{
    const bool partition = what == QLatin1String("partition");
    if (!partition && what != QLatin1String("variable"))
        return -1;
    QObject* box = items();
    if (!box)
        return -1;
    bool loaded = false;
    QMetaObject::invokeMethod(m_box, "isLoaded", Q_RETURN_ARG(bool, loaded));
    const QWebView* view = m_box->findChild<QWebView*>();
    // The page hears the box's signals only once its script has connected to them.
    if (!loaded || !view
        || !view->page()
                ->mainFrame()
                ->evaluateJavaScript(QStringLiteral("window.selectboxReady === true"))
                .toBool()) {
        QTimer::singleShot(loadRetryMs, this, [this, what] { show(what); });
        return 1;
    }
    int rows = 0;
    m_host->setLiveControlShown(!partition);
    if (partition) {
        QVariantList partitions;
        if (const HST_Document* current = m_host->openDocument(m_host->currentDocumentKey())) {
            for (const HST_PartitionSpec& spec : current->spec().partitions)
                partitions.append(QVariantMap { { QStringLiteral("number"), spec.number },
                    { QStringLiteral("name"), spec.name } });
        }
        rows = partitions.size();
        QMetaObject::invokeMethod(box, "signalSetHeight", Q_ARG(int, (rows + 1) * rowHeight));
        QMetaObject::invokeMethod(box, "signalShowPartition", Q_ARG(QVariantList, partitions));
    } else {
        QJsonArray variables;
        const QStringList names = m_host->liveControlPage()->variables();
        for (int i = 0; i < names.size(); ++i)
            variables.append(QJsonObject {
                { QStringLiteral("number"), i + 1 }, { QStringLiteral("name"), names.at(i) } });
        rows = variables.size() + 2;
        QMetaObject::invokeMethod(box, "signalSetHeight", Q_ARG(int, (rows + 1) * rowHeight));
        QMetaObject::invokeMethod(box, "signalShowVariable",
            Q_ARG(QString,
                QString::fromUtf8(QJsonDocument(variables).toJson(QJsonDocument::Compact))));
        QMetaObject::invokeMethod(box, "signalShowVariableRegist",
            Q_ARG(QString, QStringLiteral("Variable %1").arg(names.size() + 1)));
    }
    m_box->resize(220, (rows + 1) * rowHeight + 8);
    m_box->raise();
    QMetaObject::invokeMethod(m_box, "setWantVisible", Q_ARG(bool, true));
    m_host->recorder()->record(QStringLiteral("selectBox"), { { QStringLiteral("shows"), what } });
    return 1;
}
