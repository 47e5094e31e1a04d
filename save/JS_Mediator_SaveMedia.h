#pragma once

#include "web/JS_Mediator.h"

#include <QStringList>

class DOC_Interface;

// What the pages of the three removable media kinds share: OK, Cancel and refresh as signals of
// their own, the folder choice, and how a camera's answers become the data list. Each kind
// asks its own operations of the camera.
class JS_Mediator_SaveMedia : public JS_Mediator
{
    Q_OBJECT

public:
    JS_Mediator_SaveMedia(APP_Host* host, const QString& name);

    // The compact JSON array of the data sets, one object per row with its fields in the order
    // pages read them. name null: the kind has no data names.
    struct DataRow
    {
        int recid = 0;
        QString name;
        int frames = 0;
        quint32 date = 0;
        qint32 time = 0;
    };
    static QString dataListText(const QList<DataRow>& rows, bool withNames);

    // No host gives this many data sets; a camera that goes on answering is cut off here.
    static const int mostDataSets = 65536;

signals:
    void accepted();
    void rejected();
    void refreshed();

public slots:
    void accept();
    void reject();
    void refresh();
    QString selectFolder(const QString& dir);

protected:
    // The class's name and the method's, for trace lines.
    QString traceName(const char* method) const;
    // The document of a key the page passed; throws a clear message when it has gone.
    DOC_Interface* requireDocument(int dockey) const;
    // A yes of a status out value.
    static bool yes(int value) { return value == 1; }
    // The status queries log a failure and answer false.
    template <typename Query> bool statusQuery(const char* method, Query&& query) const
    {
        try {
            return query();
        } catch (const std::exception& e) {
            statusFailed(method, e);
        }
        return false;
    }

private:
    void statusFailed(const char* method, const std::exception& e) const;
};
