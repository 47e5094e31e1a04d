#pragma once

#include <QList>
#include <QString>

class APP_Host;
class JS_Mediator;
class QDialog;
class QWidget;

// How the host shows a registered page: a modal dialog the plug-in runs, a panel widget the
// host docks, or a page of the host's own that talks to a mediator the plug-in makes.
enum class PLG_PageKind { Dialog, Panel, Page };

// What a page is opened for: the host's current and selected documents when it was asked, and
// what the caller passed beyond that (a mode, a callback type, a flag).
struct PLG_DialogContext
{
    APP_Host* host = nullptr;
    QWidget* parent = nullptr;
    QString arg;
    int currentKey = -1;
    QList<int> selectedKeys;
};

// One registered page. Only the function of its kind is set.
struct PLG_PageEntry
{
    const char* page;
    PLG_PageKind kind;
    // Source text, translated by the host.
    const char* title;
    int (*open)(const PLG_DialogContext& context);
    QWidget* (*createPanel)(const PLG_DialogContext& context, QWidget* parent);
    JS_Mediator* (*createMediator)(const PLG_DialogContext& context);
};

// The plug-in file's pages that the host reaches through the dialog factory. A new dialog adds
// one entry to the table in PLG_PageRegistry.cpp.
class PLG_PageRegistry
{
public:
    PLG_PageRegistry() = delete;

    static QList<const PLG_PageEntry*> entries();
    // Null for a name nobody registered.
    static const PLG_PageEntry* find(const QString& page);
    // Runs a dialog modally and deletes it, also when its parent went first; gives its result.
    static int exec(QDialog* dialog);
};
