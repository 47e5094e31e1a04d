#include "save/JS_Mediator_SaveMedia.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Exception.h"
#include "util/UTL_TextHelpers.h"
#include "web/JS_OrderedJson.h"

#include <QDebug>
#include <QFileDialog>

JS_Mediator_SaveMedia::JS_Mediator_SaveMedia(APP_Host* host, const QString& name)
    : JS_Mediator(host, name)
{
}

QString JS_Mediator_SaveMedia::dataListText(const QList<DataRow>& rows, bool withNames)
{
    QStringList objects;
    for (const DataRow& row : rows) {
        JS_OrderedJson object;
        object.add(QStringLiteral("recid"), row.recid);
        if (withNames)
            object.add(QStringLiteral("name"), row.name);
        object.add(QStringLiteral("frame"), row.frames);
        object.add(QStringLiteral("date"), firmwareDateText(row.date));
        object.add(QStringLiteral("time"), firmwareTimeText(row.date, row.time));
        objects << object.text();
    }
    return QLatin1Char('[') + objects.join(QLatin1Char(',')) + QLatin1Char(']');
}

void JS_Mediator_SaveMedia::accept()
{
    emit accepted();
}

void JS_Mediator_SaveMedia::reject()
{
    emit rejected();
}

void JS_Mediator_SaveMedia::refresh()
{
    emit refreshed();
}

QString JS_Mediator_SaveMedia::selectFolder(const QString& dir)
{
    SYNC_TRACE(traceName("selectFolder"), FunctionLogGuard::parameter(QStringLiteral("dir"), dir));
    return UTL_Barrier::reported(m_host, QString(), [&] {
        return QFileDialog::getExistingDirectory(m_host->getMainWindow(),
            translate(QStringLiteral("Select folder")), dir, QFileDialog::ShowDirsOnly);
    });
}

QString JS_Mediator_SaveMedia::traceName(const char* method) const
{
    return QLatin1String(metaObject()->className()) + QStringLiteral("::") + QLatin1String(method);
}

DOC_Interface* JS_Mediator_SaveMedia::requireDocument(int dockey) const
{
    DOC_Interface* document = m_host->document(dockey);
    if (!document)
        throw UTL_Exception(QStringLiteral("The document %1 is no longer open.").arg(dockey), 0);
    return document;
}

void JS_Mediator_SaveMedia::statusFailed(const char* method, const std::exception& e) const
{
    qCritical().noquote() << traceName(method) << QString::fromUtf8(e.what());
}
