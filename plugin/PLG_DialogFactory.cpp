#include "plugin/PLG_DialogFactory.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/PLG_PageRegistry.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "web/JS_Mediator.h"

#include <QDebug>
#include <QVariantMap>

namespace {

QString kindName(PLG_PageKind kind)
{
    switch (kind) {
    case PLG_PageKind::Dialog:
        return QStringLiteral("dialog");
    case PLG_PageKind::Panel:
        return QStringLiteral("panel");
    case PLG_PageKind::Page:
        return QStringLiteral("page");
    }
    return QString();
}

// Null, with the refusal in the log, unless the page is registered as that kind.
const PLG_PageEntry* entryOf(const QString& page, PLG_PageKind kind)
{
    const PLG_PageEntry* entry = PLG_PageRegistry::find(page);
    if (!entry || entry->kind != kind) {
        qCritical().noquote()
            << QStringLiteral("PLG_DialogFactory: no %1 named \"%2\"").arg(kindName(kind), page);
        return nullptr;
    }
    return entry;
}

} // namespace

PLG_DialogFactory::PLG_DialogFactory(APP_Host* host, QObject* parent)
    : QObject(parent)
    , m_host(host)
{
    setObjectName(QStringLiteral("dialogFactory"));
}

QVariantList PLG_DialogFactory::pages() const
{
    QVariantList pages;
    for (const PLG_PageEntry* entry : PLG_PageRegistry::entries())
        pages.append(QVariantMap { { QStringLiteral("page"), QLatin1String(entry->page) },
            { QStringLiteral("kind"), kindName(entry->kind) },
            { QStringLiteral("title"), QLatin1String(entry->title) } });
    return pages;
}

PLG_DialogContext PLG_DialogFactory::context(const QString& arg) const
{
    PLG_DialogContext context;
    context.host = m_host;
    context.parent = m_host->getMainWindow();
    context.arg = arg;
    context.currentKey = m_host->currentKey();
    for (int key : m_host->documentKeys(0)) {
        DOC_Interface* doc = m_host->document(key);
        if (doc && doc->isSelected())
            context.selectedKeys.append(key);
    }
    return context;
}

int PLG_DialogFactory::open(const QString& page, const QString& arg)
{
    SYNC_TRACE(QStringLiteral("PLG_DialogFactory::open"),
        FunctionLogGuard::parameter(QStringLiteral("page"), page)
            + FunctionLogGuard::parameter(QStringLiteral("arg"), arg));
    const PLG_PageEntry* entry = entryOf(page, PLG_PageKind::Dialog);
    if (!entry)
        return -1;
    return UTL_Barrier::reported(m_host, -1, [&] { return entry->open(context(arg)); });
}

QWidget* PLG_DialogFactory::createPanel(const QString& page, QWidget* parent)
{
    const PLG_PageEntry* entry = entryOf(page, PLG_PageKind::Panel);
    if (!entry)
        return nullptr;
    return UTL_Barrier::reported(m_host, static_cast<QWidget*>(nullptr),
        [&] { return entry->createPanel(context(QString()), parent); });
}

QObject* PLG_DialogFactory::createMediator(const QString& page)
{
    const PLG_PageEntry* entry = entryOf(page, PLG_PageKind::Page);
    if (!entry)
        return nullptr;
    return UTL_Barrier::reported(m_host, static_cast<QObject*>(nullptr),
        [&] { return static_cast<QObject*>(entry->createMediator(context(QString()))); });
}
