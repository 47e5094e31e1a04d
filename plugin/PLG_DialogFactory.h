#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

class APP_Host;
class QWidget;
struct PLG_DialogContext;

// How the host reaches the plug-in file's dialogs and panels without a second export and
// without the plug-in's headers: a child of the plug-in object named "dialogFactory", whose
// invokable methods the host calls through Qt's meta-object system. Nothing leaves them as an
// exception: a failure is reported to the host and gives the neutral answer.
class PLG_DialogFactory : public QObject
{
    Q_OBJECT

public:
    PLG_DialogFactory(APP_Host* host, QObject* parent);

    // One map per registered page: "page" (the page's name, qrc:/PAGE.html), "kind" ("dialog",
    // "panel" or "page") and "title" (a source text for the host to translate).
    Q_INVOKABLE QVariantList pages() const;
    // Runs a dialog modally for the host's current and selected documents and gives its
    // result; -1 when the page is no registered dialog or it failed.
    Q_INVOKABLE int open(const QString& page, const QString& arg);
    // A panel's widget for the host to dock; null for anything else. The caller owns it.
    Q_INVOKABLE QWidget* createPanel(const QString& page, QWidget* parent);
    // The mediator of a page the host shows itself; null for anything else. The caller owns it
    // and publishes it under its object name.
    Q_INVOKABLE QObject* createMediator(const QString& page);

private:
    PLG_DialogContext context(const QString& arg) const;

    APP_Host* m_host;
};
