#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <memory>

class HST_Host;
class QWebView;

// A page of the host's own in a dock of the main window, qrc:/PAGE.html, talking to a mediator
// the plug-in made. The host publishes the mediator and emits its update signal when its state
// changes or updateUI asks for it: once per burst, and only while no modal window is up, so that
// a page is never refreshed under its own modal call.
class HST_PagePanel : public QWidget
{
    Q_OBJECT

public:
    // Takes the mediator.
    HST_PagePanel(HST_Host* host, const QString& page, QObject* mediator, QWidget* parent);
    ~HST_PagePanel() override;

    QWebView* view() const { return m_view; }
    QObject* mediator() const { return m_mediator.get(); }
    QString page() const { return m_page; }
    // Runs script in the page now and gives its result.
    QVariant evaluate(const QString& script);
    // Runs script once the page has loaded: now, or when its load finishes.
    void evaluateWhenLoaded(const QString& script);

public slots:
    void requestUpdate();

private:
    void deliverUpdate();

    QString m_page;
    std::unique_ptr<QObject> m_mediator;
    QWebView* m_view;
    QTimer m_updateTimer;
    bool m_loaded = false;
    QStringList m_pending;
};
